// A report as it stands at one moment, for checks that go on while it is edited. Cards are shared with the report and
// its history, which copy a card before they change it, so that a snapshot of 10,000 cards costs their pointers at
// most. It is made and destroyed on the thread that edits, and may be read on any.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "formulas/checks/EditorChecks.h"
#include "model/RVReport.h"

namespace xrpt {

struct PageSnapshot {
  SharedCards cards;
  PageShape shape;
  bool isNamed = true;                              // a page without an identifier is none of the host's
  std::shared_ptr<const RVCardControl> background;  // null without one
};

// A table of the report, and how it reads, to tell it from others.
struct TableSnapshot {
  std::string text;
  std::shared_ptr<const XmlDocument> document;
};

struct ReportSnapshot {
  std::wstring name;  // empty for one that was never saved
  Path file;          // where it is saved
  std::vector<PageSnapshot> pages;
  TableSnapshot formulas;
  bool hasDeclarations = false;  // virtual devices and go-back variables count
  TableSnapshot virtualDevices;
  TableSnapshot goBackVariables;

  // What is as it was in the snapshot before, the two share.
  explicit ReportSnapshot(const RVReport& report, const ReportSnapshot* before = nullptr);
  ReportSnapshot(const ReportSnapshot&) = delete;
  ReportSnapshot& operator=(const ReportSnapshot&) = delete;

  // Nothing that is checked is another; a card that was changed is another card, if it reads alike or not.
  bool IsSame(const ReportSnapshot& other) const;
};

}  // namespace xrpt
