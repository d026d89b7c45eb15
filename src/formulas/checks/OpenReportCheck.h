// What is wrong with a report that is being edited, as it stood when it was looked at last. After a change only the
// cards that changed are looked at again, and those that hang on what changed. For one thread.
#pragma once

#include <functional>
#include <unordered_map>

#include "formulas/checks/CheckChoice.h"
#include "formulas/checks/Inspector.h"
#include "formulas/checks/ReportSnapshot.h"

namespace xrpt {

class OpenReportCheck {
 public:
  explicit OpenReportCheck(const Host& host, CheckChoice choice = CheckChoice::All());
  OpenReportCheck(const OpenReportCheck&) = delete;
  OpenReportCheck& operator=(const OpenReportCheck&) = delete;

  // Takes note of the report; nothing is checked yet. The snapshot is needed until the end of the next look: an address
  // of one of its cards must not become another card's before.
  void Look(const ReportSnapshot& report);
  // Checks on until it is enough, which is asked before each card; true once all is done that the last look found.
  bool Work(const std::function<bool()>& isEnough = {});
  // In the order of pages and cards, then what belongs to the whole report. Those of the work done last.
  const std::vector<Finding>& Findings() const { return findings_; }
  // How often a card was looked at so far.
  std::size_t CardsChecked() const { return cardsChecked_; }
  // Styles, pictures, fonts or the plant are others now: the next look finds everything to do.
  void Forget();

 private:
  // What was found out about a card; of no use once the card, its page or what it refers to is another.
  struct CardEntry {
    bool isChecked = false;
    PageShape shape;
    bool onNamedPage = true;
    bool isOfHost = false;
    CardFacts facts;
    std::vector<Finding> findings;
    UsedIds virtualDevices;
    UsedIds goBackVariables;
  };
  using Entries = std::unordered_map<const RVCardControl*, CardEntry>;

  void LookAtTables(const ReportSnapshot& report);
  void LookAtPage(const PageSnapshot& page, Entries& former);
  void CheckCardAt(const PageSnapshot& page, CardPlace place);
  void CheckWithHost(const XmlNode& element, CardEntry& entry, CardPlace place);
  void Conclude();
  void ConcludePage(const PageSnapshot& page, int number, ReportFacts& facts);
  void TakeUsed(const CardEntry& entry);
  void CheckName();
  std::optional<Path> OtherOfThatName() const;

  const Host& host_;
  const CheckChoice choice_;
  std::vector<Finding> found_;  // by the inspector, of the card it is at
  Inspector inspector_;
  const ReportSnapshot* report_ = nullptr;
  Path file_;  // whose name was looked for last
  std::optional<Finding> nameShared_;
  std::string formulas_;      // how the tables read at the last look
  std::string declarations_;  // virtual devices and go-back variables
  std::shared_ptr<const XmlDocument> formulasDocument_;
  tagSDebugData data_;  // refers to it
  FormulaTable formulaTable_;
  Entries entries_;
  CardPlace next_;
  bool isConcluded_ = false;
  std::vector<Finding> findings_;
  std::size_t cardsChecked_ = 0;
};

}  // namespace xrpt
