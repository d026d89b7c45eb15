// The order of steps over the whole report, above the pages' own histories: what was done last is undone first, on
// whichever page it was. A step is the newest step of one or several pages, a change of what is not on a page (the list
// of pages, the name, the tables), or both at once.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "canvas/RVEditTemplateWnd.h"
#include "platform/Window.h"

namespace xrpt {

// One page of the report with its window. A page that was deleted lives on in the step that can bring it back, its own
// history with it.
struct PageSlot {
  std::shared_ptr<RVReportPage> page;
  std::unique_ptr<WindowPort> port;
  std::unique_ptr<RVEditTemplateWnd> window;
};
using PageSlots = std::vector<std::shared_ptr<PageSlot>>;

struct PageOrder {
  PageSlots pages;
  std::size_t current = 0;  // the one shown
};

enum class ReportTable { Formules, VirtualDevices, GoBackVariables };
inline constexpr std::size_t kReportTables = 3;

template <class Value>
struct Replaced {
  Value before;
  Value after;
};

// What a step changed beside the pages' contents; nothing where a part stayed as it was.
struct ReportChange {
  std::optional<Replaced<std::wstring>> name;
  std::optional<Replaced<PageOrder>> pages;
  std::array<std::optional<Replaced<std::shared_ptr<const XmlDocument>>>, kReportTables> tables;

  bool IsEmpty() const;
};

struct ReportStep {
  UndoName name;
  std::vector<RVEditTemplateWnd*> pages;  // each has a step of its own beneath
  ReportChange change;
  bool changesReport = false;  // something that is saved, not the selection alone
  std::uint64_t serial = 0;

  bool IsEmpty() const { return pages.empty() && change.IsEmpty(); }
  bool Holds(const RVEditTemplateWnd& page) const;
};

class ReportHistory {
 public:
  bool CanUndo() const { return !done_.empty(); }
  bool CanRedo() const { return !undone_.empty(); }
  UndoName NextUndoName() const { return CanUndo() ? done_.back().name : UndoName(); }
  UndoName NextRedoName() const { return CanRedo() ? undone_.back().name : UndoName(); }
  // All steps, the oldest first, and those that could be made again, the next one first: for a list.
  std::vector<UndoName> DoneNames() const;
  std::vector<UndoName> UndoneNames() const;
  // Tells states of the report apart: that of the newest step, 0 before the first.
  std::uint64_t Serial() const { return done_.empty() ? 0 : done_.back().serial; }

  // A new step ends what could be redone. Keeps at most `most` changes beside the pages, and what came after them.
  void Add(ReportStep step, std::size_t most);
  // The step to be taken back, or made again; it changes sides.
  const ReportStep& StepBack();
  const ReportStep& StepForward();
  void Clear();

  // What became of a page's own steps.
  // True when that changed what is saved.
  bool PageStepUndone(RVEditTemplateWnd& page);
  bool PageStepRedone(RVEditTemplateWnd& page);
  void NewestPageStepGone(const RVEditTemplateWnd& page);
  void OldestPageStepGone(const RVEditTemplateWnd& page);
  void PageCleared(const RVEditTemplateWnd& page);

 private:
  std::deque<ReportStep> done_;
  std::vector<ReportStep> undone_;
  std::uint64_t lastSerial_ = 0;
};

}  // namespace xrpt
