// The editor's frame without its looks: the report, one window a page, which page is shown, and the flows that decide
// (open, save, save as, pages, zoom). Commands reach it through the catalogue.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "canvas/CardNotes.h"
#include "canvas/InsertTools.h"
#include "editor/CProperties.h"
#include "editor/EditorPort.h"
#include "editor/ReportEdit.h"
#include "editor/ReportGuard.h"
#include "model/RVReport.h"
#include "platform/Messages.h"

namespace xrpt {

struct StyleRenaming;
struct TextChange;

class RVEditControlWnd final : public MessageTarget, private PageHistoryListener {
 public:
  // The number hosts send to open the table of formulas.
  static constexpr int kFormulasCommand = 32523;

  // Starts on a new, empty report. `port` must outlive the frame.
  explicit RVEditControlWnd(EditorPort& port, const EditingOptions& options = {});
  ~RVEditControlWnd() override;

  // --- The report ---
  const RVReport& Report() const { return report_; }
  const EditingOptions& Options() const { return options_; }
  bool IsModified() const { return report_.modified; }
  void SetModified(bool modified);
  // The report's name, or the text for one that has none.
  std::wstring Caption() const;

  // Opens by name or path; what could not be read opens as a new report, and the result says why. With guarded files it
  // leaves the open report alone, and so does a user who would rather not open what somebody else has open.
  LoadResult Setup(const std::wstring& nameOrPath);
  // The same for a name of the report list.
  LoadResult OpenByName(const std::wstring& name);
  LoadResult OpenFile(const Path& file, const std::wstring* askedName);
  // The file of the open report again, as it is on disk now.
  LoadResult Reload();
  // Work that an earlier session did not save: it counts as modified, and goes back to where it came from.
  LoadResult OpenRecovered(const Recovered& work);
  // Asks about unsaved changes, lets the user choose, opens. False when nothing was opened.
  bool OpenFromList();
  // Asks about unsaved changes, then starts an empty report. False when the user's save failed or the user cancelled.
  bool NewReport();
  // Asks about unsaved changes, then opens a file the user chose. False when nothing was opened.
  bool OpenInstead(const Path& file);
  // The same as a new report, but with what a file holds: a report of its own without a name, which leaves the file
  // alone.
  LoadResult NewFrom(const Path& sample);
  // A new report nobody has touched yet.
  bool IsUntouched() const { return report_.name.empty() && report_.File().empty() && !report_.modified; }
  // Asks about unsaved changes before the end. True when nothing is left to be kept.
  bool MayClose();
  // True when the report was written; what happened otherwise is the last save's to tell, and the report stays
  // modified.
  bool Save();
  const SaveResult& LastSave() const { return lastSave_; }
  // Under a name of the user's or the host's: a report of its own with a new identity.
  bool SaveAs(const std::wstring& name);
  // The same in any file, which gives the name. Whoever chose the file knows whether it is there already.
  bool SaveAsFile(const Path& file);
  // Under the next free reportN, keeping the identity.
  bool SaveUnderGeneratedName();
  void Rename(const std::wstring& name);

  // --- Guarded files: for whoever has timers ---
  // Keeps what is not saved where a crash cannot take it; costs nothing when nothing changed.
  void KeepUnsaved();
  // Every LockService::kBeatSeconds: says that we are still there. True when somebody took the report over.
  bool Beat() { return guard_.Beat(); }
  // Somebody else has the open report's file.
  bool IsReadOnly() const { return guard_.IsReadOnly(); }
  const LockHolder& Holder() const { return guard_.Holder(); }
  // References to text styles that the next save will lose.
  int LostStyles() const { return lostStyles_; }

  // --- Changes: one door, one history (see ReportEdit.h) ---
  ReportEdit Edit(UndoName name);
  // What comes next is a step of its own. Every command, save and look at something else begins with it.
  void EndEdits();
  bool CanUndo() const { return history_.CanUndo(); }
  bool CanRedo() const { return history_.CanRedo(); }
  // Takes back what was done last, on whichever page, and shows that page. False when there is nothing.
  bool Undo();
  bool Redo();
  const ReportHistory& History() const { return history_; }

  // --- Pages ---
  std::size_t PageCount() const { return pages_.size(); }
  std::size_t CurrentPageIndex() const { return current_; }
  RVEditTemplateWnd& Page(std::size_t index) { return *pages_[index]->window; }
  RVEditTemplateWnd& CurrentPage() { return Page(current_); }
  const RVEditTemplateWnd& CurrentPage() const { return *pages_[current_]->window; }
  WindowPort& PagePort(std::size_t index) { return *pages_[index]->port; }
  bool ShowPage(std::size_t index);
  // Adds an empty page at the end and shows it.
  void AddPage();
  // Asks first. A report keeps at least one page.
  bool DeletePage();
  // A copy behind the current page, with identities of its own.
  bool DuplicatePage();
  // Puts a page before the one that stands at `to` now.
  bool MovePage(std::size_t from, std::size_t to);
  // 0 makes the current page landscape, anything else portrait. False when it was already.
  bool SetOrientation(int orientation);
  // Lets the user change the properties of the current page, and its paper that of all pages: one step. True when
  // something changed.
  bool OnConfig();
  // The grid's sign switches it; the step stays.
  bool IsGridOn() const;
  bool ToggleGrid();

  // --- What is remembered beside the report: locked and hidden cards, groups, names, lines ---
  // The folder of the files they are kept in; nothing is remembered before this, and reports are as they ever were.
  void RememberIn(const Path& folder);

  // --- How pages are looked at, the same for all of them ---
  bool IsPreview() const { return preview_; }
  bool TogglePreview();
  // Whether the grid is seen, which need not be whether cards snap to it.
  bool IsGridShown() const { return CurrentPage().IsGridShown(); }
  bool ToggleGridShown();
  // So large that the selected cards fill the window, as far as zooms go. False when nothing is selected.
  bool ZoomToSelection();

  // --- The insert tool, the same for all pages (see InsertTools.h) ---
  int Tool() const { return tool_; }
  void SetTool(int tool);

  // --- Zoom of the current page ---
  // Entries of the zoom box: 0 fit page, 1 fit width, then 50 % to 1000 % in steps of 50 %.
  static constexpr int kFitPageEntry = 0;
  static constexpr int kFitWidthEntry = 1;
  static constexpr double kSmallestZoom = 0.5;
  static constexpr double kLargestZoom = 10.0;
  bool ZoomIn();
  bool ZoomOut();
  bool SetZoom(double zoom);
  bool FitPage();
  bool FitWidth();
  int ZoomEntry() const;
  bool SetZoomEntry(int entry);

  // Style files changed: every card reads its font again, and goes on using a style that has a new name now.
  void StylesModified();
  void StylesModified(const std::vector<StyleRenaming>& renamings);
  // Pictures of the image store changed.
  void ImagesModified();
  // A card was changed by somebody who went by no door: the report counts as modified and panels are read again.
  void OnCtrlHasChanged();

  // The property panels, about the one selected card, or about the page when none is selected.
  CProperties& Properties();

  // --- Search and replace, see FrameSearch.cpp ---
  // What the search dialog asks; the answer is in the record. Searches the page that is shown, replaces what was found
  // last, or everything on all pages as one step.
  void OnSearchReplace(tagSearchReplace& request);
  // Makes a match the one found last, on whichever page: that is shown, and the card picked. `match` counts from 0 in
  // the card. False when it is not there.
  bool GoToMatch(std::size_t page, std::size_t card, std::size_t match, const std::wstring& text, bool matchCase);
  // Carries out the replace that waits. True when something was replaced.
  bool ApplyPendingReplace();
  // Changes texts all over the report, formulas included, as one step; gives how many. Nothing is changed when formulas
  // would refer to each other in a circle, which the user is told.
  std::size_t ApplyChanges(const std::vector<TextChange>& changes, UndoName name);

  // Whether cards with problems are marked, as the user or the host wants it.
  bool AreMarksShown() const { return marksShown_; }
  void ShowMarks(bool on);
  bool ToggleMarks();

  // Tells states of what lies outside the report and cards refer to (styles, pictures) apart.
  std::uint64_t ResourcesSerial() const { return resourcesSerial_; }

  // Shows the page of a card and selects it there. False when no page has such a card.
  bool SelectControlById(const std::wstring& id);

  void OnMessage(const MessageData& message) override;
  MessageQueue& Queue() { return queue_; }
  EditorPort& Port() { return port_; }

 private:
  friend class ReportEdit;

  // PageHistoryListener
  void OnStepTaken(RVEditTemplateWnd& page, const UndoName& name, bool changesPage) override;
  void OnStepJoined(RVEditTemplateWnd& page) override;
  void OnStepWithdrawn(RVEditTemplateWnd& page) override;
  void OnOldestDropped(RVEditTemplateWnd& page) override { history_.OldestPageStepGone(page); }
  void OnStepUndone(RVEditTemplateWnd& page) override;
  void OnStepRedone(RVEditTemplateWnd& page) override;
  void OnHistoryCleared(RVEditTemplateWnd& page) override { history_.PageCleared(page); }

  // The report, see FrameFiles.cpp
  template <class Load>
  LoadResult LoadWith(const Load& load);
  std::optional<LockState> Enter(const LoadResult& result);
  std::optional<LockState> LockOf(const Path& file);
  void Show(RVReport report, const LockState& lock);
  // False when the user wanted to save and that failed, or cancelled.
  bool LetGoOfChanges();
  SaveResult SaveGuarded();
  SaveResult Attempt();
  SaveResult AfterRefusal(const SaveResult& refused);
  bool Conclude(SaveResult result);
  bool MayLoseStyles();
  bool HasName();
  template <class SaveIt>
  bool SaveAsAnother(const std::wstring& name, const SaveIt& save);
  void ReportListChanged();
  void StartAnew();
  void OnKey(const MessageData& message);
  void OnTimerStateChange(bool runs);
  void OnPageCommand(int command);

  // Pages, see FramePages.cpp
  std::shared_ptr<PageSlot> NewSlot(std::shared_ptr<RVReportPage> page);
  void Attach(PageSlot& slot);
  void Detach(PageSlot& slot);
  void BuildPages();
  void DropPages();
  PageOrder CurrentOrder() const { return {pages_, current_}; }
  void ApplyOrder(const PageOrder& order);

  // Steps, see FrameHistory.cpp
  bool FinishEdit();
  void Take(ReportStep step);
  void Replay(const ReportStep& step, bool back);
  void Apply(const ReportChange& change, bool back);
  void ShowPageOf(const ReportStep& step);
  XmlDocument& Table(ReportTable table);
  void Touch() {
    report_.modified = true;
    ++changes_;
  }
  void MarkSaved();
  void MarkByHistory(bool changesReport);

  bool Fit(int mode);
  void ReadNotes();
  void KeepNotes();
  bool TakeProperties(const CDlgGlobalProperties& dialog);

  // Searching, see FrameSearch.cpp
  void Search(tagSearchReplace& request);
  std::size_t ReplaceAll(const tagSearchReplace& request);
  struct PendingReplace {
    bool isPending = false;
    std::wstring text;
    std::wstring replacement;
  };

  // An edit under way: the step it will be, and how deep edits are opened inside it.
  struct OpenEdit {
    ReportStep step;
    int depth = 0;
  };

  EditorPort& port_;
  EditingOptions options_;
  MessageQueue queue_;
  RVReport report_;
  SaveResult lastSave_;
  ReportGuard guard_;
  int lostStyles_ = 0;
  std::uint64_t changes_ = 0;  // counts what may have changed the report, there and back
  PageSlots pages_;            // one a page of the report, same order
  std::size_t current_ = 0;
  int tool_ = tool::kPointer;
  CardNotes notes_;
  Path notesFolder_;
  bool preview_ = false;
  std::optional<bool> gridShown_;
  bool marksShown_ = true;
  std::uint64_t resourcesSerial_ = 0;
  CProperties properties_;
  ReportHistory history_;
  OpenEdit open_;
  bool replaying_ = false;
  int searchPage_ = -1;  // of the match found last
  PendingReplace replace_;
  static constexpr std::uint64_t kNever = ~std::uint64_t{0};
  std::uint64_t savedSerial_ = 0;  // where the history stood when the report was saved
};

// The next larger and smaller of the zoom steps, from a stored zoom (negative: fitted). The value itself when refused.
double NextZoomIn(double zoom);
double NextZoomOut(double zoom);

}  // namespace xrpt
