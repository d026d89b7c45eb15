// What is wrong with a report that is being edited, as it stands. After a change only the cards that changed are looked
// at again, and those that hang on what changed; and the work can be done a little at a time, between two frames of the
// window. For one thread.
#pragma once

#include <chrono>
#include <unordered_map>

#include "formulas/checks/EditorInspection.h"
#include "formulas/checks/Inspector.h"

namespace xrpt {

class OpenReportCheck {
 public:
  using Clock = std::chrono::steady_clock;

  explicit OpenReportCheck(const Host& host, CheckChoice choice = CheckChoice::All());
  OpenReportCheck(const OpenReportCheck&) = delete;
  OpenReportCheck& operator=(const OpenReportCheck&) = delete;

  // Takes note of the report as it stands. Nothing is checked yet, and later changes are not seen before the next look.
  void Look(const RVReport& report);
  // Checks on until the time is up; true once all is done that the last look found.
  bool Work(Clock::time_point until);
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
  struct PageState {
    SharedCards cards;  // keeps the cards as they were, and so the entries
    PageShape shape;
    bool isNamed = true;
    std::vector<Finding> background;
  };

  void LookAtTables(const RVReport& report);
  void LookAtPage(const RVReportPage& page, PageState& state, Entries& former);
  void CheckCardAt(const PageState& page, CardPlace place);
  void CheckWithHost(const XmlNode& element, CardEntry& entry, CardPlace place);
  void Conclude();
  void TakeUsed(const CardEntry& entry);

  const Host& host_;
  const CheckChoice choice_;
  std::vector<Finding> found_;  // by the inspector, of the card it is at
  Inspector inspector_;
  XmlDocument formulas_;
  std::string tables_[2];  // formulas; what is declared
  tagSDebugData data_;
  FormulaTable formulaTable_;
  std::vector<PageState> pages_;
  Entries entries_;
  CardPlace next_;
  bool isConcluded_ = false;
  std::vector<Finding> findings_;
  std::size_t cardsChecked_ = 0;
};

}  // namespace xrpt
