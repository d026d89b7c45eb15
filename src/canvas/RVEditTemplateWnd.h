// The canvas: a window, free of any toolkit, in which one report page is laid out. It edits the page and adds what is
// about looking and touching: zoom, scrolling, selection, gestures, history, clipboard. Events go in, card geometry and
// selection come out; what it wants of the screen it asks its port, what happened it tells its parent by messages.
//
// Cards are known by key and id; no pointer to one is kept from one event to the next. Nobody changes the page but
// through an edit (see PageEdit.h), the window's own gestures and commands included.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "canvas/Arrange.h"
#include "canvas/CardClipboard.h"
#include "canvas/CardNotes.h"
#include "canvas/EditingOptions.h"
#include "canvas/Gesture.h"
#include "canvas/History.h"
#include "canvas/HitTest.h"
#include "canvas/InsertKinds.h"
#include "canvas/InsertTools.h"
#include "canvas/PageEdit.h"
#include "canvas/PageHistoryListener.h"
#include "canvas/RVSelection.h"
#include "canvas/TextInPlace.h"
#include "canvas/Viewport.h"
#include "model/RVReportPage.h"
#include "model/tagDraw.h"
#include "platform/Host.h"
#include "platform/Messages.h"
#include "platform/Window.h"

namespace xrpt {

// Which edit commands are available; cut and copy always agree.
struct tagEditMenuState {
  bool cut = false;
  bool copy = false;
  bool paste = false;
  bool delete_ = false;
  bool selectAll = false;
  bool undo = false;
};

class RVEditTemplateWnd {
 public:
  // `page`, `port`, `queue` and `parent` must outlive the window. The page as it is becomes the base of the history.
  RVEditTemplateWnd(RVReportPage& page, WindowPort& port, MessageQueue& queue, MessageTarget& parent);
  virtual ~RVEditTemplateWnd();
  RVEditTemplateWnd(const RVEditTemplateWnd&) = delete;
  RVEditTemplateWnd& operator=(const RVEditTemplateWnd&) = delete;

  const RVReportPage& Page() const { return page_; }
  // Opens the door: the edit gives the mutable objects, its end is the step.
  PageEdit Edit(UndoName name, JoinKey joins = {});
  // What comes next is a step of its own, even in the field that was edited last.
  void EndEdit() { joins_.clear(); }

  // Rebuilds the page from a "page" element and starts a history of its own. False without an element.
  bool SetTemplate(const XmlNode& page);
  void SaveTemplate(XmlWriter& root) const { page_.SaveTemplate(root); }
  void SaveCtrlsTemplate(XmlWriter& page) const { page_.SaveCtrlsTemplate(page); }

  // --- Set-up ---
  void SetOptions(const EditingOptions& options) { options_ = options; }
  const EditingOptions& Options() const { return options_; }
  void SetHistoryListener(PageHistoryListener* listener) { listener_ = listener; }
  void SetDpi(int dpiX, int dpiY);
  void SetFontFactor(double factor);
  void SetInsertKind(int kind) { insertKind_ = kind; }
  int InsertKind() const { return insertKind_; }
  // Which kinds may be inserted: a mask bit each.
  void SetLabelSupport(bool on) { SetSupport(tool::kLabel, on); }
  void SetImageSupport(bool on) { SetSupport(tool::kImage, on); }
  void SetDateSupport(bool on) { SetSupport(tool::kDate, on); }
  void SetFormuleSupport(bool on) { SetSupport(tool::kFormule, on); }
  void SetConditionedSupport(bool on) { SetSupport(tool::kConditioned, on); }
  void SetReportGraphSupport(bool on) { SetSupport(tool::kReportGraph, on); }
  void SetAnalogBarSupport(bool on) { SetSupport(tool::kAnalogBar, on); }
  void SetPrimitiveSupport(bool on) { SetSupport(tool::kPrimitive, on); }

  // What lies round the page follows the user's theme, unless the page was given a colour of its own.
  void SetSurround(Color color);
  Color Surround() const;

  // --- Zoom, orientation, scrolling ---
  // See ZoomOfMode. True when the stored zoom changed.
  bool SetMode(int mode);
  // A scale of one's own; redraws and sets the scroll bars up again. True when it changed.
  bool SetZoom(double zoom);
  // As stored: negative follows the window.
  double Zoom() const { return viewport_.Zoom(); }
  ZoomFit Fit() const { return viewport_.Fit(); }
  // 0 makes the page at least as wide as high, anything else at least as high as wide. True when that swapped its
  // sides.
  bool SetOrientation(int orientation);
  void InitializeScrollBars(bool hide);
  void OnHScroll(ScrollCommand command, int thumb) { Scroll(ScrollAxis::Horizontal, command, thumb); }
  void OnVScroll(ScrollCommand command, int thumb) { Scroll(ScrollAxis::Vertical, command, thumb); }
  void ScrollTo(int x, int y);
  const ScrollInfo& HorizontalScroll() const { return viewport_.Horizontal(); }
  const ScrollInfo& VerticalScroll() const { return viewport_.Vertical(); }
  void OnSize();

  // --- Placement ---
  PagePlacement Placement() const { return Placement(port_.ClientRect()); }
  PagePlacement Placement(const Rect& client) const { return viewport_.Place(page_.properties, client); }
  bool GetTemplateDimensions(double& offsetX, double& offsetY, double& pageWidthPx, double& pageHeightPx,
                             double& roundedPxX, double& roundedPxY) const;
  bool GetMinimumControlDimensions(double& pageWidthPx, double& pageHeightPx) const;
  bool GetInitialControlDimensions(double& x, double& y, double& width, double& height) const;
  // Rectangles that only touch count as visible.
  static bool IsVisible(const Rect& a, const Rect& b);

  // --- Cards ---
  // Inserts a card of the active kind on top and selects it; millimetres. A kind outside the list, or one that is not
  // supported, inserts nothing.
  virtual void AddControl(double x, double y, double width, double height);
  // One inserter a kind, whichever is active.
  void AddLabel(double x, double y, double width, double height) { AddCard(tool::kLabel, x, y, width, height); }
  void AddImage(double x, double y, double width, double height) { AddCard(tool::kImage, x, y, width, height); }
  void AddDate(double x, double y, double width, double height) { AddCard(tool::kDate, x, y, width, height); }
  void AddFormule(double x, double y, double width, double height) { AddCard(tool::kFormule, x, y, width, height); }
  void AddConditioned(double x, double y, double width, double height) {
    AddCard(tool::kConditioned, x, y, width, height);
  }
  void AddReportGraph(double x, double y, double width, double height) {
    AddCard(tool::kReportGraph, x, y, width, height);
  }
  void AddAnalogBar(double x, double y, double width, double height) { AddCard(tool::kAnalogBar, x, y, width, height); }
  void AddPrimitive(double x, double y, double width, double height) { AddCard(tool::kPrimitive, x, y, width, height); }
  // The same at the pointer, without a drawn rectangle.
  void AddControlAtPointer();
  // A card of a kind near a pixel, of the size that a click gives or `fill` asks for: one step of that name. False for
  // a kind that cannot be inserted, and where the page has no place.
  bool InsertCardAt(int kind, Point at, UndoName name, const std::function<void(RVCardControl&)>& fill);
  // A label with these words, as large as they need.
  bool InsertText(const std::wstring& words, Point at);
  const RVCardControl* GetControlById(std::wstring_view id) const { return page_.cards.Find(id); }
  bool SelectControlById(std::wstring_view id);
  // Replaces the selection; ids of no card are left out.
  void SelectControls(const std::vector<std::wstring>& ids);
  // The same by the places in the card list, for lists in which ids need not tell cards apart.
  void SelectPlaces(const std::vector<std::size_t>& indexes);
  void ClearSelection();
  const RVSelection& Selection() const { return selection_; }
  // Where the selected cards stand on the page, in selection order; kNowhere for one that is not there any more. One
  // walk over the cards however many are selected.
  std::vector<std::size_t> SelectedIndexes() const;
  // Their rectangles, client pixels, in that order: as they are dragged, or as they lie; empty for one that is gone.
  std::vector<Rect> SelectedRects() const;
  // The rectangle round all of them.
  Rect SelectedArea() const;
  // The selected card when there is exactly one, else empty.
  std::wstring SelectedCardId() const;
  // Selects the card under a point by itself, out of its group. False where there is none.
  bool SelectOnlyAt(Point point);
  // Selects the next card beneath the selected one, and from the lowest the top one again: where the pointer is over
  // it, or in its middle. Does nothing unless one card is selected.
  void SelectBelow();
  void ImagesManagerModified();
  void StylesModified();

  // --- Text edited where it stands ---
  // That of the one selected card; nothing for a card that does not say its text, or where nobody asked for it.
  std::optional<TextInPlace> EditableText() const;
  // One step, which goes on until EndEdit: giving the first text back takes it away. False when the text was the same,
  // or there is no such card any more.
  bool SetTextOf(CardKey card, const std::wstring& words);

  // --- Mouse and keyboard ---
  void OnLButtonDown(Point point, MouseFlags flags);
  void OnMouseMove(Point point, DragModifiers modifiers = {});
  void OnLButtonUp(Point point);
  void OnRButtonUp(Point point);
  // `flags` of the key event goes on to the parent with keys the canvas does not handle.
  void OnKeyDown(int key, MouseFlags flags, long long keyFlags = 0);
  void OnCaptureChanged();
  // Ends a gesture without writing anything.
  void DropGesture();
  // Where what is drawn, moved or resized would be put by a release now, millimetres: round all cards. Nothing during
  // other gestures and none.
  std::optional<CardRect> DraggedBox() const;
  // While a gesture runs and the pointer is outside of the client area: scrolls a little that way and carries the
  // gesture along. False when there was nothing to scroll.
  bool ScrollTowards(Point pointer, DragModifiers modifiers);
  // The toolbar entry of the popup menu, named and carried out by whoever owns toolbars; without one there is none.
  struct ToolbarEntry {
    int textId = 0;
    std::function<bool()> isShown;
    std::function<void(int toolbar)> toggle;
  };
  void SetToolbarEntry(ToolbarEntry entry) { toolbar_ = std::move(entry); }
  // A command of the popup menu or the host, by its number. False for one the canvas does not carry out.
  bool OnCommand(int command);
  const Gesture& CurrentGesture() const { return gesture_; }
  int CurrentMouseState() const { return gesture_.State(); }
  Cursor CurrentCursor() const { return gesture_.shownCursor; }
  Point LastMousePoint() const { return gesture_.lastPoint; }

  // --- History ---
  // Takes a snapshot when anything changed, or always when forced. True when it took one.
  bool AddUndoInfo(bool force, UndoName name = {});
  void ControlUndo();
  void ControlRedo();
  // Withdraws the newest snapshot, as if it had not been taken.
  void DeleteLastUndo();
  void DeleteUndoList();
  // What was undone cannot be made again any more: another page was changed since.
  void ForgetRedo() { history_.ForgetUndone(); }
  std::size_t UndoCount() const { return history_.Size(); }
  // What undo and redo would take back or make again; text id 0 when there is nothing.
  UndoName NextUndoName() const;
  UndoName NextRedoName() const;

  // --- Clipboard and commands on the selection ---
  // False when nothing was copied: nothing is selected, or there is more than the clipboard takes, which the parent is
  // told. Then nothing is cut either.
  bool ControlCopy();
  void ControlCut();
  virtual void ControlPaste();
  // Where the cards were copied from.
  void ControlPasteInPlace();
  // Copies beside the selected cards, which the clipboard knows nothing of.
  void DuplicateSelectedControls();
  void ControlDelete() { DeleteSelectedControls(); }
  void DeleteSelectedControls();
  void ControlSelectAll();
  bool IsActionCopyEnabled() const { return !selection_.IsEmpty(); }
  bool IsActionCutEnabled() const { return !selection_.IsEmpty(); }
  bool IsActionDeleteEnabled() const { return !selection_.IsEmpty(); }
  bool IsActionPasteEnabled() const;
  bool IsActionSelectAllEnabled() const { return !page_.cards.IsEmpty(); }
  bool IsActionUndoEnabled() const { return history_.CanUndo(); }
  bool IsActionRedoEnabled() const { return history_.CanRedo(); }
  void GetEditMenuState(tagEditMenuState& state) const;
  tagEditMenuState EditMenuState() const;
  // Pictures of the copied cards for other programs; none are made without it.
  using PictureMaker =
      std::function<void(const RVReportPage&, const std::vector<std::wstring>& ids, ClipboardContent&)>;
  void SetPictureMaker(PictureMaker maker) { pictureMaker_ = std::move(maker); }

  // --- Searching the cards' texts, see SearchCommands.cpp ---
  // Looks through every card, in list order.
  void CreateSearchInfo(const std::wstring& pattern, bool matchCase) const;
  // Steps to the next match, after the last one to the first again (a call in between finds nothing), and tells the
  // parent whose card it is in. A new search starts at the first card.
  bool SearchControl(const std::wstring& pattern, bool matchCase, bool newSearch);
  // Makes a match of a card the one found last, counted from 0 in that card, and tells the parent as a search does.
  bool GoToMatch(std::size_t card, std::size_t match, const std::wstring& pattern, bool matchCase);
  // Replaces the match found last; false when there is none.
  bool ReplaceControl(const std::wstring& pattern, const std::wstring& replacement);
  // In every card, as one step. How many matches were replaced.
  std::size_t ReplaceAllControls(const std::wstring& pattern, const std::wstring& replacement, bool matchCase);
  // Picks the card of the match found last, as `SelectControlById` does.
  bool SelectSearchedCard();
  // Opens the dialog, which is the parent's.
  void OnControlSearch();
  void OnControlReplace();

  // --- What the editor remembers beside the report (see CardNotes.h, NoteCommands.cpp) ---
  // The notes are the report's editor's; without any, nothing is locked, hidden or grouped. `changed` hears of changes.
  void SetNotes(CardNotes* notes, std::function<void()> changed) {
    notes_ = notes;
    notesChanged_ = std::move(changed);
  }
  const CardNote& NoteOf(const RVCardControl& card) const;
  bool IsHidden(const RVCardControl& card) const { return NoteOf(card).hidden; }
  // Whether to ask that of every card; asks none of them.
  bool HidesAny() const { return notes_ && notes_->HasAny(&CardNote::hidden); }
  bool AreSelectedLocked() const;
  bool IsAnySelectedGrouped() const;
  // Whether any card of the page has this noted.
  bool HasNoted(bool CardNote::*what) const;
  void LockSelected(bool on);
  void HideSelected();
  void HideCard(std::size_t index, bool on);
  void UnlockAll();
  void ShowAll();
  void GroupSelected(bool on);
  // What lists call the card; no name calls it by its content again.
  void NameCard(std::size_t index, const std::wstring& name);
  // Lines on this page that cards are placed by.
  const PageLines& Lines() const;
  // `isMoving`: more of the same is to come, and nothing is kept yet.
  void SetLines(PageLines lines, bool isMoving = false);

  // --- Arranging the selected cards; modes as in Arrange.h ---
  void AlignSelectedControls(int mode);
  void AlignSelectedControlsCtrl(int mode);
  void DistributeSelectedControls(int mode);
  void JustifySelectedControls(int mode, bool asGroup);
  void ResizeSelectedControls(bool sameWidth, bool sameHeight);
  void ControlBringToFront();
  void ControlSendToBack();
  // Cards by their places, ascending, put over the one that stands at a place now; the count of cards puts them lowest.
  void StackBefore(const std::vector<std::size_t>& indexes, std::size_t before);
  // Over or under the next card only.
  void ControlBringForward();
  void ControlSendBackward();

  // --- Timers and animation ---
  void OnTimer();
  void PlayTimer();
  void PauseTimer();
  void OnControlAnimationStart() { ++animation_.cards; }
  void OnControlAnimationStop();
  int AnimatedCards() const { return animation_.cards; }
  int Phase() const { return marching_.phase; }
  // How long the page has been shown, in milliseconds: where moving texts and pictures are on their way.
  void SetAnimationTime(int milliseconds) { animation_.time = milliseconds; }

  // --- What painting needs ---
  tagDraw MakeDraw(const Rect& clip) const;
  bool NeedsBackground() const { return redrawBackground_; }
  void BackgroundDrawn() { redrawBackground_ = false; }
  void RedrawBackground();
  // The page as readers see it: no frames, grid, marks or stand-ins.
  void SetPreview(bool on);
  bool IsPreview() const { return preview_; }
  // Whether the grid is seen. Unless somebody says otherwise it is when cards snap to it.
  void ShowGrid(std::optional<bool> shown);
  bool IsGridShown() const;
  // The card the search picked blinks; 0 when none does.
  CardKey PickedCard() const { return picked_; }
  // Outlines of what is being dragged: the band, or the selected cards; none while nothing is.
  std::vector<Rect> DraggingRects() const { return gesture_.Outlines(); }

  // --- Smart guides: off until the application asks for them ---
  // Alt lets go of guides and grid during a drag, Shift keeps a moved card on its row or column.
  void SetSmartGuides(bool on) { smartGuides_ = on; }
  bool HasSmartGuides() const { return smartGuides_; }
  const std::vector<GuideLine>& Guides() const { return gesture_.Guides(); }

  static void FormatDouble(std::wstring& out, double value, int integers, int decimals, bool thousandSeparator,
                           bool leftPadding, bool rightPadding);
  static void ParseDate(std::wstring& out, std::wstring_view pattern, const std::tm& moment);

 protected:
  // The cursor over empty page: the arrow.
  virtual void UpdateActiveCursor() { gesture_.activeCursor = Cursor::Arrow; }
  // Escape, which the canvas leaves to its parent.
  virtual void KeyProcessESC(long long keyFlags);

 private:
  friend class PageEdit;
  static constexpr int kSelectionTimer = 1;
  static constexpr int kTimerPeriod = 200;  // milliseconds

  // Set-up and cards
  void SetSupport(int kind, bool on);
  bool Supports(int kind) const;
  void SelectAlone(CardKey card);
  void Pick(const RVCardControl& card);
  void DropGoneFromSelection();
  void Insert(std::unique_ptr<RVCardControl> card);
  void AddCard(int kind, double x, double y, double width, double height);
  std::unique_ptr<RVCardControl> NewCard(int kind) const;

  // Mouse, see MouseGestures.cpp
  // What a press takes hold of: a card, and which of its edges.
  struct Grip {
    HitCard hit;
    int style = kNoEdge;
  };
  Grip GripAt(Point point, bool alt) const;
  Grip HandleGripAt(Point point) const;
  HitCard SelectedCardAt(Point point) const;
  int StyleInside(const HitCard& hit, Point point) const;
  bool DrawsOverCards() const;
  bool IsReachable(const RVCardControl& card) const;
  HitCard CardUnder(Point point) const;
  // The selected cards that are not locked; kNowhere in the place of others.
  std::vector<std::size_t> ChangeableIndexes() const;
  void SelectGroups();
  void DropGroupOf(const RVCardControl& card);
  std::vector<std::size_t> AllIndexes() const;
  template <class Change>
  void ChangeNotes(const std::vector<std::size_t>& indexes, const Change& change);
  bool StartOnPage(Point point, MouseFlags flags);
  void StartOnCard(const Grip& grip, bool wasSelected, Point point, MouseFlags flags);
  void StartGesture();
  std::vector<Gesture::Part> SelectedParts() const;
  void Hover(Point point);
  void SetCursor(Cursor cursor);
  GestureGround Ground() const;
  GuideSource GatherGuides(const PagePlacement& place) const;
  UndoName GestureName() const;

  // What a release does, see GestureEnds.cpp. True when a drawn card was too small to be made.
  bool RepositioningControl();
  void EndBand(const PagePlacement& place);
  bool EndDrawing(const PagePlacement& place);
  CardRect DrawnRect(const PagePlacement& place) const;
  CardRect ClickedRect(const PagePlacement& place) const;
  void EndDrag(const PagePlacement& place);
  std::vector<std::size_t> DraggedIndexes() const;
  std::vector<CardRect> RectsAfterDrag(const std::vector<std::size_t>& indexes, const PagePlacement& place) const;
  std::vector<CardRect> DroppedRects(const std::vector<std::size_t>& indexes, const PagePlacement& place) const;
  void EndClick();

  // Changes and history, see PageEdit.cpp and UndoCommands.cpp
  bool FinishEdit(UndoName name, const JoinKey& joins, bool announces);
  bool Record(bool force, UndoName name, const JoinKey& joins);
  bool Join();
  void RefitAfterPageChange();
  void AnnounceAnimations();
  UndoName StepName(const RVUndo& step, UndoName asked) const;
  void Restore(const RVUndo& step, const RVUndo& flags);
  void TakePageFrom(const RVUndo& step);

  bool PasteShifted(double dx, double dy);
  void PasteText();
  void InsertCopies(std::vector<std::size_t> indexes, std::vector<CardRect> rects, int undoTextId);
  void SelectBelowAt(Point point);
  void MoveByKey(int key, bool control);
  void MoveFinely(int key);
  void SelectUnder(Point point);
  bool OnControlKey(int key, bool shift);
  bool ToggleToolbar(int toolbar);
  void StartTimer();
  void PostChange(bool selectionOnly);
  void Refuse(int textId);
  void Scroll(ScrollAxis axis, ScrollCommand command, int thumb);

  // Searching
  std::size_t SearchedIndex() const;
  void ForgetSearch();
  void PassSearchOn(const std::vector<std::size_t>& going);

  // Arranging, see ArrangeCommands.cpp
  template <class Rule>
  void Arrange(const Rule& rule, int undoTextId);
  void Stack(bool front, int undoTextId);
  using OrderRule = std::vector<std::size_t> (*)(std::size_t count, const std::vector<std::size_t>& chosen);
  void Restack(OrderRule rule, int undoTextId);
  bool IsReferenceThere() const;
  static ArrangePage PageOf(const PagePlacement& place);

  // The dashes of the selection march while its timer runs.
  struct Marching {
    int timerId = 0;
    int phase = 0;
  };
  struct Animation {
    int cards = 0;  // that announced one
    int time = 0;
    bool pendingRefresh = false;
  };

  RVReportPage& editedPage_;  // what edits and the history change; everybody else reads `page_`
  const RVReportPage& page_;
  WindowPort& port_;
  MessageQueue& queue_;
  MessageTarget& parent_;
  PageHistoryListener* listener_ = nullptr;
  EditingOptions options_;

  Viewport viewport_;
  Gesture gesture_;
  RVSelection selection_;
  History history_;
  JoinKey joins_;  // of the newest step, while the same field may go on being edited

  unsigned support_ = AllInsertKinds();
  int insertKind_ = tool::kLabel;
  CardKey picked_ = 0;
  CardKey searched_ = 0;  // of the match found last; 0 for none
  bool redrawBackground_ = true;
  bool smartGuides_ = false;
  bool preview_ = false;
  CardNotes* notes_ = nullptr;
  std::function<void()> notesChanged_;
  std::optional<bool> gridShown_;
  Marching marching_;
  Animation animation_;
  Color madeWithBackcolor_;
  std::optional<Color> surround_;

  ClipboardReader clipboardReader_;
  PictureMaker pictureMaker_;
  ToolbarEntry toolbar_;
};

}  // namespace xrpt
