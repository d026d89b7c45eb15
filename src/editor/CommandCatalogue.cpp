#include "editor/CommandCatalogue.h"

#include <utility>

#include "canvas/InsertTools.h"
#include "canvas/KeepOnPage.h"
#include "canvas/UndoTexts.h"
#include "editor/CommandTexts.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {
namespace {

using Frame = RVEditControlWnd;
using Arguments = CommandArguments;

constexpr CommandTab kTabs[] = {{RibbonTab::Home, text::kHomeTab},       {RibbonTab::Insert, text::kInsertTab},
                                {RibbonTab::Arrange, text::kArrangeTab}, {RibbonTab::Page, text::kPageTab},
                                {RibbonTab::View, text::kViewTab},       {RibbonTab::Report, text::kReportTab}};

// --- When a command is enabled ---

bool Always(const Frame&) { return true; }
std::size_t Selected(const Frame& frame) { return frame.CurrentPage().Selection().Size(); }
bool OneSelected(const Frame& frame) { return Selected(frame) >= 1; }
bool TwoSelected(const Frame& frame) { return Selected(frame) >= 2; }
bool CanPaste(const Frame& frame) { return frame.CurrentPage().IsActionPasteEnabled(); }
bool CanUndo(const Frame& frame) { return frame.CanUndo(); }
bool CanRedo(const Frame& frame) { return frame.CanRedo(); }
bool HasCards(const Frame& frame) { return frame.CurrentPage().IsActionSelectAllEnabled(); }
bool HasNextPage(const Frame& frame) { return frame.CurrentPageIndex() + 1 < frame.PageCount(); }
bool HasPreviousPage(const Frame& frame) { return frame.CurrentPageIndex() > 0; }
bool HasSeveralPages(const Frame& frame) { return frame.PageCount() > 1; }
bool IsModified(const Frame& frame) { return frame.IsModified(); }
bool CanZoomIn(const Frame& frame) { return NextZoomIn(frame.CurrentPage().Zoom()) <= Frame::kLargestZoom; }
bool CanZoomOut(const Frame& frame) { return NextZoomOut(frame.CurrentPage().Zoom()) >= Frame::kSmallestZoom; }

SizeD PageSize(const Frame& frame) {
  const RVGlobalProperties& page = frame.CurrentPage().Page().properties;
  return {page.width, page.height};
}
std::vector<std::size_t> LostCards(const Frame& frame) {
  const CardList& cards = frame.CurrentPage().Page().cards;
  std::vector<std::size_t> lost;
  for (std::size_t i = 0; i < cards.Size(); ++i) {
    if (IsOutOfSight(RectOf(cards[i]), PageSize(frame))) lost.push_back(i);
  }
  return lost;
}
bool HasLostCards(const Frame& frame) {
  const CardList& cards = frame.CurrentPage().Page().cards;
  for (std::size_t i = 0; i < cards.Size(); ++i) {
    if (IsOutOfSight(RectOf(cards[i]), PageSize(frame))) return true;
  }
  return false;
}

std::wstring UndoDetail(const Frame& frame) { return UndoText(frame.History().NextUndoName()); }
std::wstring RedoDetail(const Frame& frame) { return UndoText(frame.History().NextRedoName()); }

// --- What it does on the current page ---

template <int Mode>
bool Align(Frame& frame, Arguments) {
  frame.CurrentPage().AlignSelectedControls(Mode);
  return true;
}
template <int Mode>
bool AlignToSelection(Frame& frame, Arguments) {
  frame.CurrentPage().AlignSelectedControlsCtrl(Mode);
  return true;
}
template <int Mode>
bool Distribute(Frame& frame, Arguments) {
  frame.CurrentPage().DistributeSelectedControls(Mode);
  return true;
}
template <int Mode, bool AsGroup>
bool Justify(Frame& frame, Arguments) {
  frame.CurrentPage().JustifySelectedControls(Mode, AsGroup);
  return true;
}
template <bool Width, bool Height>
bool SameSize(Frame& frame, Arguments) {
  frame.CurrentPage().ResizeSelectedControls(Width, Height);
  return true;
}
template <auto Operation>
bool OnPage(Frame& frame, Arguments) {
  (frame.CurrentPage().*Operation)();
  return true;
}
template <auto Operation>
bool OnFrame(Frame& frame, Arguments) {
  return (frame.*Operation)();
}
template <int Orientation>
bool Orient(Frame& frame, Arguments) {
  return frame.SetOrientation(Orientation);
}
template <int Kind>
bool Tool(Frame& frame, Arguments) {
  frame.SetTool(Kind);
  return true;
}
template <int Kind>
bool IsTool(const Frame& frame) {
  return frame.Tool() == Kind;
}
bool BringBack(Frame& frame, Arguments) {
  const std::vector<std::size_t> lost = LostCards(frame);
  RVEditTemplateWnd& page = frame.CurrentPage();
  {
    PageEdit edit = page.Edit({text::kBringCardsBack, static_cast<int>(lost.size())});
    for (const std::size_t index : lost)
      SetRect(edit.Card(index), BroughtBack(RectOf(edit.Card(index)), PageSize(frame)));
  }
  page.SelectPlaces(lost);
  return true;
}
bool AddPage(Frame& frame, Arguments) {
  frame.AddPage();
  return true;
}
template <int Places>
bool MovePage(Frame& frame, Arguments) {
  const std::size_t from = frame.CurrentPageIndex();
  return Places < 0 ? from > 0 && frame.MovePage(from, from - 1) : frame.MovePage(from, from + 2);
}
bool NextPage(Frame& frame, Arguments) { return frame.ShowPage(frame.CurrentPageIndex() + 1); }
bool PreviousPage(Frame& frame, Arguments) { return frame.ShowPage(frame.CurrentPageIndex() - 1); }
bool NewReport(Frame& frame, Arguments) { return frame.NewReport(); }
bool IsLandscape(const Frame& frame) { return frame.CurrentPage().Page().properties.IsLandscape(); }
bool IsPortrait(const Frame& frame) { return !IsLandscape(frame); }
bool IsGridOn(const Frame& frame) { return frame.IsGridOn(); }
bool AreMarksShown(const Frame& frame) { return frame.AreMarksShown(); }
bool IsLocked(const Frame& frame) { return frame.CurrentPage().AreSelectedLocked(); }
bool HasLocked(const Frame& frame) { return frame.CurrentPage().HasNoted(&CardNote::locked); }
bool HasHidden(const Frame& frame) { return frame.CurrentPage().HasNoted(&CardNote::hidden); }
bool HasGroup(const Frame& frame) { return frame.CurrentPage().IsAnySelectedGrouped(); }
bool ToggleLock(Frame& frame, Arguments) {
  frame.CurrentPage().LockSelected(!IsLocked(frame));
  return true;
}
template <bool On>
bool GroupCards(Frame& frame, Arguments) {
  frame.CurrentPage().GroupSelected(On);
  return true;
}
bool IsPreview(const Frame& frame) { return frame.IsPreview(); }
bool IsGridShown(const Frame& frame) { return frame.IsGridShown(); }
bool IsActualSize(const Frame& frame) { return frame.CurrentPage().Zoom() == 1.0; }
bool ActualSize(Frame& frame, Arguments) { return frame.SetZoom(1.0); }
bool OneAlone(const Frame& frame) { return Selected(frame) == 1; }
bool IsFitPage(const Frame& frame) { return frame.ZoomEntry() == Frame::kFitPageEntry; }
bool IsFitWidth(const Frame& frame) { return frame.ZoomEntry() == Frame::kFitWidthEntry; }

constexpr auto kHome = RibbonTab::Home;
constexpr auto kInsert = RibbonTab::Insert;
constexpr auto kArrange = RibbonTab::Arrange;
constexpr auto kPage = RibbonTab::Page;
constexpr auto kView = RibbonTab::View;
constexpr auto kReport = RibbonTab::Report;

// name, tab, group, label, icon, keys, large, enabled, checked, run
constexpr Command kCommands[] = {
    {"NewReport", kHome, text::kFileGroup, text::kNewReport, "new", "Ctrl+N", true, Always, nullptr, NewReport},
    {"Open", kHome, text::kFileGroup, text::kOpen, "open", "Ctrl+O", true, Always, nullptr,
     OnFrame<&Frame::OpenFromList>},
    {"Save", kHome, text::kFileGroup, text::kSave, "save", "Ctrl+S", true, IsModified, nullptr, OnFrame<&Frame::Save>},
    {"Paste", kHome, text::kClipboardGroup, text::kPaste, "paste", "Ctrl+V", true, CanPaste, nullptr,
     OnPage<&RVEditTemplateWnd::ControlPaste>},
    {"Cut", kHome, text::kClipboardGroup, text::kCut, "cut", "Ctrl+X", false, OneSelected, nullptr,
     OnPage<&RVEditTemplateWnd::ControlCut>},
    {"Copy", kHome, text::kClipboardGroup, text::kCopy, "copy", "Ctrl+C", false, OneSelected, nullptr,
     OnPage<&RVEditTemplateWnd::ControlCopy>},
    {"PasteInPlace", kHome, text::kClipboardGroup, text::kPasteInPlace, "paste-in-place", "Ctrl+Shift+V", false, Always,
     nullptr, OnPage<&RVEditTemplateWnd::ControlPasteInPlace>},
    {"Duplicate", kHome, text::kClipboardGroup, text::kDuplicate, "duplicate", "Ctrl+D", false, OneSelected, nullptr,
     OnPage<&RVEditTemplateWnd::DuplicateSelectedControls>},
    {"Delete", kHome, text::kClipboardGroup, text::kDelete, "delete", "Del", false, OneSelected, nullptr,
     OnPage<&RVEditTemplateWnd::ControlDelete>},
    {"Undo", kHome, text::kHistoryGroup, text::kUndo, "undo", "Ctrl+Z", true, CanUndo, nullptr, OnFrame<&Frame::Undo>,
     UndoDetail},
    {"Redo", kHome, text::kHistoryGroup, text::kRedo, "redo", "Ctrl+Y Ctrl+Shift+Z", true, CanRedo, nullptr,
     OnFrame<&Frame::Redo>, RedoDetail},
    {"SelectAll", kHome, text::kSelectGroup, text::kSelectAll, "select-all", "Ctrl+E Ctrl+A", true, HasCards, nullptr,
     OnPage<&RVEditTemplateWnd::ControlSelectAll>},
    {"SelectBelow", kHome, text::kSelectGroup, text::kSelectBelow, "select-below", "Alt+Shift+D", false, OneAlone,
     nullptr, OnPage<&RVEditTemplateWnd::SelectBelow>},
    {"EditText", kHome, text::kSelectGroup, text::kEditText, "edit-text", "F2", false, OneAlone, nullptr, nullptr},
    {"Search", kHome, text::kFindGroup, text::kSearch, "find", "Ctrl+F", true, Always, nullptr, nullptr},
    {"Replace", kHome, text::kFindGroup, text::kReplaceText, "replace", "Ctrl+H", true, Always, nullptr, nullptr},
    {"SearchNext", kHome, text::kFindGroup, text::kSearchNext, "find-next", "F3", false, Always, nullptr, nullptr},
    {"SearchPrevious", kHome, text::kFindGroup, text::kSearchPrevious, "find-previous", "Shift+F3", false, Always,
     nullptr, nullptr},

    {"Pointer", kInsert, text::kToolGroup, text::kPointer, "pointer", "V", true, Always, IsTool<tool::kPointer>,
     Tool<tool::kPointer>},
    {"NewLabel", kInsert, text::kCardsGroup, text::kNewLabel, "label", "L", true, Always, IsTool<tool::kLabel>,
     Tool<tool::kLabel>},
    {"NewDate", kInsert, text::kCardsGroup, text::kNewDate, "date", "D", true, Always, IsTool<tool::kDate>,
     Tool<tool::kDate>},
    {"NewFormule", kInsert, text::kCardsGroup, text::kNewFormule, "formule", "F", true, Always, IsTool<tool::kFormule>,
     Tool<tool::kFormule>},
    {"NewImage", kInsert, text::kCardsGroup, text::kNewImage, "image", "I", true, Always, IsTool<tool::kImage>,
     Tool<tool::kImage>},
    {"NewConditioned", kInsert, text::kCardsGroup, text::kNewConditioned, "conditioned", "C", true, Always,
     IsTool<tool::kConditioned>, Tool<tool::kConditioned>},
    {"NewReportGraph", kInsert, text::kCardsGroup, text::kNewReportGraph, "report-graph", "G", true, Always,
     IsTool<tool::kReportGraph>, Tool<tool::kReportGraph>},
    {"NewAnalogBar", kInsert, text::kCardsGroup, text::kNewAnalogBar, "analog-bar", "B", true, Always,
     IsTool<tool::kAnalogBar>, Tool<tool::kAnalogBar>},
    {"NewPrimitive", kInsert, text::kCardsGroup, text::kNewPrimitive, "primitive", "P", true, Always,
     IsTool<tool::kPrimitive>, Tool<tool::kPrimitive>},

    {"AlignLeft", kArrange, text::kAlignGroup, text::kAlignLeft, "align-left", "Alt+Shift+L", false, TwoSelected,
     nullptr, Align<1>},
    {"AlignCenterHorizontally", kArrange, text::kAlignGroup, text::kAlignCenterH, "align-center-h", "Alt+Shift+C",
     false, TwoSelected, nullptr, Align<32>},
    {"AlignRight", kArrange, text::kAlignGroup, text::kAlignRight, "align-right", "Alt+Shift+R", false, TwoSelected,
     nullptr, Align<2>},
    {"AlignTop", kArrange, text::kAlignGroup, text::kAlignTop, "align-top", "Alt+Shift+T", false, TwoSelected, nullptr,
     Align<4>},
    {"AlignCenterVertically", kArrange, text::kAlignGroup, text::kAlignCenterV, "align-center-v", "Alt+Shift+M", false,
     TwoSelected, nullptr, Align<64>},
    {"AlignBottom", kArrange, text::kAlignGroup, text::kAlignBottom, "align-bottom", "Alt+Shift+B", false, TwoSelected,
     nullptr, Align<8>},
    {"AlignSelectionLeft", kArrange, text::kAlignSelectionGroup, text::kAlignSelectionLeft, "align-selection-left",
     "Ctrl+K,L", false, TwoSelected, nullptr, AlignToSelection<1>},
    {"AlignSelectionCenterHorizontally", kArrange, text::kAlignSelectionGroup, text::kAlignSelectionCenterH,
     "align-selection-center-h", "Ctrl+K,C", false, TwoSelected, nullptr, AlignToSelection<32>},
    {"AlignSelectionRight", kArrange, text::kAlignSelectionGroup, text::kAlignSelectionRight, "align-selection-right",
     "Ctrl+K,R", false, TwoSelected, nullptr, AlignToSelection<2>},
    {"AlignSelectionTop", kArrange, text::kAlignSelectionGroup, text::kAlignSelectionTop, "align-selection-top",
     "Ctrl+K,T", false, TwoSelected, nullptr, AlignToSelection<4>},
    {"AlignSelectionCenterVertically", kArrange, text::kAlignSelectionGroup, text::kAlignSelectionCenterV,
     "align-selection-center-v", "Ctrl+K,M", false, TwoSelected, nullptr, AlignToSelection<64>},
    {"AlignSelectionBottom", kArrange, text::kAlignSelectionGroup, text::kAlignSelectionBottom,
     "align-selection-bottom", "Ctrl+K,B", false, TwoSelected, nullptr, AlignToSelection<8>},
    {"CenterHorizontally", kArrange, text::kCenterGroup, text::kCenterH, "center-h", "Alt+Shift+X", false, OneSelected,
     nullptr, Justify<0, false>},
    {"CenterVertically", kArrange, text::kCenterGroup, text::kCenterV, "center-v", "Alt+Shift+Y", false, OneSelected,
     nullptr, Justify<1, false>},
    {"CenterGroupHorizontally", kArrange, text::kCenterGroup, text::kCenterGroupH, "center-group-h", "Ctrl+K,X", false,
     TwoSelected, nullptr, Justify<0, true>},
    {"CenterGroupVertically", kArrange, text::kCenterGroup, text::kCenterGroupV, "center-group-v", "Ctrl+K,Y", false,
     TwoSelected, nullptr, Justify<1, true>},
    {"DistributeHorizontally", kArrange, text::kDistributeGroup, text::kDistributeH, "distribute-h", "Alt+Shift+H",
     false, TwoSelected, nullptr, Distribute<0>},
    {"DistributeVertically", kArrange, text::kDistributeGroup, text::kDistributeV, "distribute-v", "Alt+Shift+V", false,
     TwoSelected, nullptr, Distribute<1>},
    {"ResizeBoth", kArrange, text::kSizeGroup, text::kSameSize, "same-size", "Alt+Shift+S", false, TwoSelected, nullptr,
     SameSize<true, true>},
    {"ResizeHorizontally", kArrange, text::kSizeGroup, text::kSameWidth, "same-width", "Alt+Shift+W", false,
     TwoSelected, nullptr, SameSize<true, false>},
    {"ResizeVertically", kArrange, text::kSizeGroup, text::kSameHeight, "same-height", "Alt+Shift+E", false,
     TwoSelected, nullptr, SameSize<false, true>},
    {"BringToFront", kArrange, text::kOrderGroup, text::kBringToFront, "bring-to-front", "Ctrl+Shift+Home Ctrl+Shift+]",
     true, OneSelected, nullptr, OnPage<&RVEditTemplateWnd::ControlBringToFront>},
    {"SendToBack", kArrange, text::kOrderGroup, text::kSendToBack, "send-to-back", "Ctrl+Shift+End Ctrl+Shift+[", true,
     OneSelected, nullptr, OnPage<&RVEditTemplateWnd::ControlSendToBack>},
    {"BringForward", kArrange, text::kOrderGroup, text::kBringForward, "bring-forward", "Ctrl+Shift+Up Ctrl+]", false,
     OneSelected, nullptr, OnPage<&RVEditTemplateWnd::ControlBringForward>},
    {"SendBackward", kArrange, text::kOrderGroup, text::kSendBackward, "send-backward", "Ctrl+Shift+Down Ctrl+[", false,
     OneSelected, nullptr, OnPage<&RVEditTemplateWnd::ControlSendBackward>},
    {"BringBack", kArrange, text::kOrderGroup, text::kBringBack, "bring-back", "Ctrl+Shift+B", true, HasLostCards,
     nullptr, BringBack},

    {"AddPage", kPage, text::kPagesGroup, text::kAddPage, "add-page", "Ctrl+Shift+N", true, Always, nullptr, AddPage},
    {"DeletePage", kPage, text::kPagesGroup, text::kDeletePage, "delete-page", "Ctrl+Shift+Del", false, HasSeveralPages,
     nullptr, OnFrame<&Frame::DeletePage>},
    {"DuplicatePage", kPage, text::kPagesGroup, text::kDuplicatePage, "duplicate-page", "Ctrl+Shift+U", false, Always,
     nullptr, OnFrame<&Frame::DuplicatePage>},
    {"MovePageUp", kPage, text::kPagesGroup, text::kMovePageUp, "page-up", "Ctrl+Shift+PgUp", false, HasPreviousPage,
     nullptr, MovePage<-1>},
    {"MovePageDown", kPage, text::kPagesGroup, text::kMovePageDown, "page-down", "Ctrl+Shift+PgDown", false,
     HasNextPage, nullptr, MovePage<1>},
    {"PreviousPage", kPage, text::kPagesGroup, text::kPreviousPage, "previous-page", "PgUp Ctrl+PgUp", false,
     HasPreviousPage, nullptr, PreviousPage},
    {"NextPage", kPage, text::kPagesGroup, text::kNextPage, "next-page", "PgDown Ctrl+PgDown", false, HasNextPage,
     nullptr, NextPage},
    {"Config", kPage, text::kOrientationGroup, text::kConfig, "page-properties", "Alt+Return", true, Always, nullptr,
     OnFrame<&Frame::OnConfig>},
    {"Portrait", kPage, text::kOrientationGroup, text::kPortrait, "portrait", "Ctrl+K,P", true, Always, IsPortrait,
     Orient<1>},
    {"Landscape", kPage, text::kOrientationGroup, text::kLandscape, "landscape", "Ctrl+K,O", true, Always, IsLandscape,
     Orient<0>},
    {"Grid", kPage, text::kGridGroup, text::kGrid, "grid", "F9", true, Always, IsGridOn, OnFrame<&Frame::ToggleGrid>},

    {"ZoomIn", kView, text::kZoomGroup, text::kZoomIn, "zoom-in", "Ctrl++ Ctrl+=", false, CanZoomIn, nullptr,
     OnFrame<&Frame::ZoomIn>},
    {"ZoomOut", kView, text::kZoomGroup, text::kZoomOut, "zoom-out", "Ctrl+-", false, CanZoomOut, nullptr,
     OnFrame<&Frame::ZoomOut>},
    {"Adjusted", kView, text::kZoomGroup, text::kFitPage, "fit-page", "Ctrl+0", true, Always, IsFitPage,
     OnFrame<&Frame::FitPage>},
    {"FitWidth", kView, text::kZoomGroup, text::kFitWidth, "fit-width", "Ctrl+9", true, Always, IsFitWidth,
     OnFrame<&Frame::FitWidth>},
    {"ActualSize", kView, text::kZoomGroup, text::kActualSize, "zoom-actual", "Ctrl+1", false, Always, IsActualSize,
     ActualSize},
    {"ZoomToSelection", kView, text::kZoomGroup, text::kZoomToSelection, "zoom-selection", "Ctrl+2", false, OneSelected,
     nullptr, OnFrame<&Frame::ZoomToSelection>},
    {"Preview", kView, text::kShowGroup, text::kPreview, "preview", "F5", true, Always, IsPreview,
     OnFrame<&Frame::TogglePreview>},
    {"ShowGrid", kView, text::kShowGroup, text::kShowGrid, "show-grid", "Shift+F9", true, Always, IsGridShown,
     OnFrame<&Frame::ToggleGridShown>},
    {"SmartGuides", kView, text::kShowGroup, text::kSmartGuides, "guides", "Ctrl+F9", true, Always, nullptr, nullptr},
    {"Animation", kView, text::kShowGroup, text::kAnimation, "animation", "Ctrl+Shift+A", true, Always, nullptr,
     nullptr},
    {"Rulers", kView, text::kShowGroup, text::kRulers, "rulers", "Ctrl+R", true, Always, nullptr, nullptr},
    {"DarkTheme", kView, text::kShowGroup, text::kDarkTheme, "theme", "Ctrl+Shift+D", true, Always, nullptr, nullptr},
    {"ProblemMarks", kView, text::kShowGroup, text::kProblemMarks, "warning", "Ctrl+Shift+M", true, Always,
     AreMarksShown, OnFrame<&Frame::ToggleMarks>},
    {"Group", kView, text::kHoldGroup, text::kGroup, "group", "Ctrl+G", false, TwoSelected, nullptr, GroupCards<true>},
    {"Ungroup", kView, text::kHoldGroup, text::kUngroup, "ungroup", "Ctrl+Shift+G", false, HasGroup, nullptr,
     GroupCards<false>},
    {"Lock", kView, text::kHoldGroup, text::kLock, "lock", "Ctrl+Shift+K", false, OneSelected, IsLocked, ToggleLock},
    {"UnlockAll", kView, text::kHoldGroup, text::kUnlockAll, "unlock", "Ctrl+K,U", false, HasLocked, nullptr,
     OnPage<&RVEditTemplateWnd::UnlockAll>},
    {"HideCards", kView, text::kHoldGroup, text::kHideCards, "hide", "Ctrl+Shift+H", false, OneSelected, nullptr,
     OnPage<&RVEditTemplateWnd::HideSelected>},
    {"ShowAll", kView, text::kHoldGroup, text::kShowAll, "preview", "Ctrl+K,H", false, HasHidden, nullptr,
     OnPage<&RVEditTemplateWnd::ShowAll>},
    {"OutlinePanel", kView, text::kPanelsGroup, text::kOutlinePanel, "pages-panel", "Alt+1", false, Always, nullptr,
     nullptr},
    {"PropertiesPanel", kView, text::kPanelsGroup, text::kPropertiesPanel, "properties-panel", "Alt+2", false, Always,
     nullptr, nullptr},
    {"HistoryPanel", kView, text::kPanelsGroup, text::kHistoryPanel, "history-panel", "Alt+4", false, Always, nullptr,
     nullptr},
    {"ProblemsPanel", kView, text::kPanelsGroup, text::kProblemsPanel, "problems-panel", "Alt+3", false, Always,
     nullptr, nullptr},
    {"CommandPalette", kView, text::kHelpGroup, text::kCommandPalette, "palette", "Ctrl+Shift+P", true, Always, nullptr,
     nullptr},
    {"ShortcutSheet", kView, text::kHelpGroup, text::kShortcutSheet, "shortcuts", "F1", true, Always, nullptr, nullptr},

    {"StartPage", kReport, text::kFileGroup, text::kStartPageCommand, "start-page", "Ctrl+Shift+O", true, Always,
     nullptr, nullptr},
    {"SaveAs", kReport, text::kFileGroup, text::kSaveAs, "save-as", "Ctrl+Shift+S", true, Always, nullptr, nullptr},
    {"FormulesSetup", kReport, text::kDataGroup, text::kFormulasCommand, "formulas", "Ctrl+Shift+F", true, Always,
     nullptr, nullptr},
    {"VirtualDevices", kReport, text::kDataGroup, text::kVirtualDevicesCommand, "virtual-devices", "Ctrl+K,V", true,
     Always, nullptr, nullptr},
    {"Styles", kReport, text::kResourcesGroup, text::kStyles, "styles", "Ctrl+Shift+Y", true, Always, nullptr, nullptr},
    {"ImageStore", kReport, text::kResourcesGroup, text::kImageStore, "image-store", "Ctrl+Shift+J", true, Always,
     nullptr, nullptr},
    {"Validate", kReport, text::kChecksGroup, text::kValidate, "validate", "F7", true, Always, nullptr, nullptr},
    {"NextProblem", kReport, text::kChecksGroup, text::kNextProblem, "chevron-down", "F8", false, Always, nullptr,
     nullptr},
    {"PreviousProblem", kReport, text::kChecksGroup, text::kPreviousProblem, "chevron-up", "Shift+F8", false, Always,
     nullptr, nullptr},
    {"ExportPdf", kReport, text::kOutputGroup, text::kExportPdf, "export-pdf", "Ctrl+Shift+E", true, Always, nullptr,
     nullptr},
    {"ExportImages", kReport, text::kOutputGroup, text::kExportImages, "export-images", "Ctrl+Shift+I", true, Always,
     nullptr, nullptr},
    {"PrintPreview", kReport, text::kOutputGroup, text::kPrintPreview, "print-preview", "Ctrl+F2", true, Always,
     nullptr, nullptr},
    {"Print", kReport, text::kOutputGroup, text::kPrint, "print", "Ctrl+P", true, Always, nullptr, nullptr},
};

}  // namespace

std::span<const CommandTab> CommandTabs() { return kTabs; }

std::span<const Command> CommandCatalogue() { return kCommands; }

const Command* FindCommand(std::string_view name) {
  for (const Command& command : kCommands) {
    if (name == command.name) return &command;
  }
  return nullptr;
}

int WhyDisabledTextId(const Command& command) {
  static constexpr std::pair<bool (*)(const Frame&), int> kRows[] = {
      {OneSelected, text::kWhySelectOne},     {OneAlone, text::kWhySelectOneAlone},
      {TwoSelected, text::kWhySelectTwo},     {CanPaste, text::kWhyNothingCopied},
      {CanUndo, text::kWhyNothingToUndo},     {CanRedo, text::kWhyNothingToRedo},
      {HasCards, text::kWhyNoCards},          {HasNextPage, text::kWhyLastPage},
      {HasPreviousPage, text::kWhyFirstPage}, {HasSeveralPages, text::kWhyOnlyPage},
      {IsModified, text::kWhyNothingToSave},  {HasLostCards, text::kWhyNothingLost},
      {HasLocked, text::kWhyNothingLocked},   {HasHidden, text::kWhyNothingHidden},
      {HasGroup, text::kWhyNoGroup},          {CanZoomIn, text::kWhyLargest},
      {CanZoomOut, text::kWhySmallest}};
  for (const auto& [enabled, textId] : kRows) {
    if (command.isEnabled == enabled) return textId;
  }
  return 0;
}

bool RunCommand(RVEditControlWnd& frame, const Command& command, CommandArguments arguments) {
  if (!command.isEnabled(frame)) return false;
  frame.EndEdits();
  return command.run ? command.run(frame, arguments) : frame.Port().RunCommand(command.name);
}

}  // namespace xrpt
