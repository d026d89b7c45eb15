// The canvas: a window, free of any toolkit, in which one report page is laid out. It edits the page and adds what is
// about looking and touching: zoom, scrolling, selection, gestures, history, clipboard. Events go in, card geometry and
// selection come out; what it wants of the screen it asks its port, what happened it tells its parent by messages.
//
// Cards are known by id; no pointer to one is kept from one event to the next.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "canvas/Arrange.h"
#include "canvas/CardClipboard.h"
#include "canvas/History.h"
#include "canvas/Placement.h"
#include "canvas/RVSelection.h"
#include "canvas/SmartGuides.h"
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
  RVReportPage& Page() { return page_; }

  // Rebuilds the page from a "page" element and starts a history of its own. False without an element.
  bool SetTemplate(const XmlNode& page);
  void SaveTemplate(XmlWriter& root) const { page_.SaveTemplate(root); }
  void SaveCtrlsTemplate(XmlWriter& page) const { page_.SaveCtrlsTemplate(page); }

  // --- Set-up ---
  void SetDpi(int dpiX, int dpiY);
  void SetFontFactor(double factor);
  void SetInsertKind(int kind) { insertKind_ = kind; }
  int InsertKind() const { return insertKind_; }
  // Which kinds may be inserted: a mask bit each.
  void SetLabelSupport(bool on) { SetSupport(0x0001, on); }
  void SetImageSupport(bool on) { SetSupport(0x0002, on); }
  void SetDateSupport(bool on) { SetSupport(0x0004, on); }
  void SetFormuleSupport(bool on) { SetSupport(0x0008, on); }
  void SetConditionedSupport(bool on) { SetSupport(0x0010, on); }
  void SetReportGraphSupport(bool on) { SetSupport(0x0020, on); }
  void SetAnalogBarSupport(bool on) { SetSupport(0x0040, on); }
  void SetPrimitiveSupport(bool on) { SetSupport(0x4000, on); }

  // The colour round the page where it follows the user's theme: no change of the page.
  void SetSurround(Color color);

  // --- Zoom, orientation, scrolling ---
  // See ZoomOfMode. True when the stored zoom changed.
  bool SetMode(int mode);
  // A scale of one's own; redraws and sets the scroll bars up again. True when it changed.
  bool SetZoom(double zoom);
  // As stored: negative follows the window.
  double Zoom() const { return zoom_; }
  // 0 makes the page at least as wide as high, anything else at least as high as wide. True when that swapped its
  // sides.
  bool SetOrientation(int orientation);
  void InitializeScrollBars(bool hide);
  void OnHScroll(ScrollCommand command, int thumb);
  void OnVScroll(ScrollCommand command, int thumb);
  void ScrollTo(int x, int y);
  const ScrollInfo& HorizontalScroll() const { return scrollX_; }
  const ScrollInfo& VerticalScroll() const { return scrollY_; }
  void OnSize();

  // --- Placement ---
  PagePlacement Placement() const;
  PagePlacement Placement(const Rect& client) const;
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
  void AddLabel(double x, double y, double width, double height) { AddCard(0, x, y, width, height); }
  void AddImage(double x, double y, double width, double height) { AddCard(1, x, y, width, height); }
  void AddDate(double x, double y, double width, double height) { AddCard(3, x, y, width, height); }
  void AddFormule(double x, double y, double width, double height) { AddCard(4, x, y, width, height); }
  void AddConditioned(double x, double y, double width, double height) { AddCard(8, x, y, width, height); }
  void AddReportGraph(double x, double y, double width, double height) { AddCard(9, x, y, width, height); }
  void AddAnalogBar(double x, double y, double width, double height) { AddCard(10, x, y, width, height); }
  void AddPrimitive(double x, double y, double width, double height) { AddCard(136, x, y, width, height); }
  // The same at the pointer, without a drawn rectangle.
  void AddControlAtPointer();
  const RVCardControl* GetControlById(std::wstring_view id) const { return page_.cards.Find(id); }
  bool SelectControlById(std::wstring_view id);
  // Replaces the selection; ids of no card are left out.
  void SelectControls(const std::vector<std::wstring>& ids);
  void ClearSelection();
  const RVSelection& Selection() const { return selection_; }
  // Where the selected cards stand on the page, in selection order; kNowhere for an id that no card has any more. One
  // walk over the cards however many are selected.
  std::vector<std::size_t> SelectedIndexes() const;
  // The selected card when there is exactly one, else empty.
  std::wstring SelectedCardId() const;
  // For panels: the card to change, then the end of the change, which records an undo step and repaints.
  RVCardControl* EditCard(std::wstring_view id) { return page_.cards.Edit(id); }
  void CommitEdit(UndoName name = {});
  // The same for the page's own properties.
  void CommitPageEdit();
  void ImagesManagerModified();
  void StylesModified();

  // --- Mouse and keyboard ---
  void OnLButtonDown(Point point, MouseFlags flags);
  void OnMouseMove(Point point, DragModifiers modifiers = {});
  void OnLButtonUp(Point point);
  void OnRButtonUp(Point point);
  // `flags` of the key event goes on to the parent with keys the canvas does not handle.
  void OnKeyDown(int key, MouseFlags flags, long long keyFlags = 0);
  void OnCaptureChanged();
  // The toolbar entry of the popup menu, named and carried out by whoever owns toolbars; without one there is none.
  struct ToolbarEntry {
    int textId = 0;
    std::function<bool()> isShown;
    std::function<void(int toolbar)> toggle;
  };
  void SetToolbarEntry(ToolbarEntry entry) { toolbar_ = std::move(entry); }
  // A command of the popup menu or the host, by its number. False for one the canvas does not carry out.
  bool OnCommand(int command);
  int CurrentMouseState() const { return mouseState_; }
  Cursor CurrentCursor() const { return cursor_; }
  Point LastMousePoint() const { return lastPoint_; }

  // --- History ---
  // Takes a snapshot when anything changed, or always when forced. True when it took one.
  bool AddUndoInfo(bool force, UndoName name = {});
  void ControlUndo();
  void ControlRedo();
  void DeleteLastUndo() { history_.DeleteLast(); }
  void DeleteUndoList() { history_.Clear(); }
  std::size_t UndoCount() const { return history_.Size(); }
  // What undo and redo would take back or make again; text id 0 when there is nothing.
  UndoName NextUndoName() const;
  UndoName NextRedoName() const;

  // --- Clipboard and commands on the selection ---
  void ControlCopy();
  void ControlCut();
  virtual void ControlPaste();
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

  // --- Arranging the selected cards; modes as in Arrange.h ---
  void AlignSelectedControls(int mode);
  void AlignSelectedControlsCtrl(int mode);
  void DistributeSelectedControls(int mode);
  void JustifySelectedControls(int mode, bool asGroup);
  void ResizeSelectedControls(bool sameWidth, bool sameHeight);
  void ControlBringToFront();
  void ControlSendToBack();

  // --- Timers and animation ---
  void OnTimer();
  void PlayTimer();
  void PauseTimer();
  void OnControlAnimationStart() { ++animatingCards_; }
  void OnControlAnimationStop();
  int Phase() const { return phase_; }
  // How long the page has been shown, in milliseconds: where moving texts and pictures are on their way.
  void SetAnimationTime(int milliseconds) { animationTime_ = milliseconds; }

  // --- What painting needs ---
  tagDraw MakeDraw(const Rect& clip) const;
  bool NeedsBackground() const { return redrawBackground_; }
  void BackgroundDrawn() { redrawBackground_ = false; }
  void RedrawBackground();
  // The picked card blinks; empty when none is.
  const std::wstring& PickedCardId() const { return pickedId_; }
  // Outlines of what is being dragged: the band, or the selected cards; none while nothing is.
  std::vector<Rect> DraggingRects() const;
  // Selected cards have their rectangles written back while frames are drawn.
  void UpdateRect(std::wstring_view id, const Rect& rect);

  // --- Smart guides: off until the application asks for them ---
  // Alt lets go of guides and grid during a drag, Shift keeps a moved card on its row or column.
  void SetSmartGuides(bool on) { smartGuides_ = on; }
  bool HasSmartGuides() const { return smartGuides_; }
  const std::vector<GuideLine>& Guides() const { return guideLines_; }

  static void FormatDouble(std::wstring& out, double value, int integers, int decimals, bool thousandSeparator,
                           bool leftPadding, bool rightPadding);
  static void ParseDate(std::wstring& out, std::wstring_view pattern, const std::tm& moment);

 protected:
  // The cursor over empty page: the arrow.
  virtual void UpdateActiveCursor() { activeCursor_ = Cursor::Arrow; }
  // Escape, which the canvas leaves to its parent.
  virtual void KeyProcessESC(long long keyFlags);
  Cursor activeCursor_ = Cursor::Arrow;  // what lies under the pointer asks for it

 private:
  static constexpr int kSelectionTimer = 1;
  static constexpr int kTimerPeriod = 200;     // milliseconds
  static constexpr int kSmallestDragged = 10;  // pixels

  // Set-up and cards
  void SetSupport(unsigned bit, bool on);
  bool Supports(int kind) const;
  void Select(const RVCardControl& card, const Rect& rect);
  void SelectAlone(const std::wstring& id);
  void RefreshRects();
  void Insert(std::unique_ptr<RVCardControl> card);
  void AddCard(int kind, double x, double y, double width, double height);
  std::unique_ptr<RVCardControl> NewCard(int kind) const;

  // Mouse, see MouseGestures.cpp
  bool StartOnPage(Point point, MouseFlags flags);
  void StartOnCard(const std::wstring& id, bool wasSelected, Point point, const Rect& rect, MouseFlags flags);
  void StartGesture();
  void Hover(Point point);
  void DragTo(Point point, const DragModifiers& modifiers);
  void SetCursor(Cursor cursor);
  void SetNewCursor();
  bool IsTooSmall() const;

  // Drags, see DragGestures.cpp
  void MoveDraggingRect(Point point);
  void ResizeDraggingRect(Point point, bool horizontal, bool vertical);
  bool RepositioningControl();
  void EndBand(const PagePlacement& place);
  bool EndDrawing(const PagePlacement& place);
  void EndDrag(const PagePlacement& place);
  void EndClick();
  void DropGesture();
  Point MoveInside(const Rect& all, Point delta, const PagePlacement& place) const;
  Point WithGuides(Point delta, const Rect& moved, GuideParts x, GuideParts y, const PagePlacement& place);
  GuideSource GatherGuides(const PagePlacement& place) const;
  void AdjustToGuides(std::vector<CardRect>& rects, bool resized) const;
  GridSteps DragGrid() const;

  void MoveByKey(int key, bool control);
  bool ToggleToolbar(int toolbar);
  void StartTimer();
  void PostChange(bool selectionOnly);
  void Restore(const RVUndo& step, const RVUndo& flags);

  // Arranging, see ArrangeCommands.cpp
  template <class Rule>
  void Arrange(const Rule& rule, int undoTextId);
  void FinishArranging(int undoTextId);
  void FinishStacking(int undoTextId);
  UndoName StepName(const RVUndo& step, UndoName asked) const;
  bool IsReferenceThere() const;
  static ArrangePage PageOf(const PagePlacement& place);

  UndoName GestureName() const;
  void Scroll(ScrollInfo& info, ScrollAxis axis, ScrollCommand command, int thumb);
  void SetScroll(ScrollInfo& info, ScrollAxis axis, int client, double pagePx, bool hide);

  RVReportPage& page_;
  WindowPort& port_;
  MessageQueue& queue_;
  MessageTarget& parent_;

  PixelsPerMm scale_;
  mutable double zoom_ = 1.0;  // an undetermined one is settled when the page is first placed
  ScrollInfo scrollX_;
  ScrollInfo scrollY_;
  unsigned support_ = 0x407F;
  int insertKind_ = 0;

  RVSelection selection_;
  History history_;
  int mouseState_ = 0;
  std::wstring pressedId_;  // the card under the press
  std::wstring pickedId_;
  std::wstring hoverId_;
  Point lastPoint_;
  Point pressPoint_;
  Cursor cursor_ = Cursor::Arrow;  // shown now

  bool redrawBackground_ = true;
  bool pendingRefresh_ = false;
  int phase_ = 0;
  int timerId_ = 0;
  int animatingCards_ = 0;
  int animationTime_ = 0;
  int orientation_ = 0;

  bool smartGuides_ = false;
  // Of the gesture that runs.
  bool snaps_ = true;                       // false while Alt is held
  std::optional<GuideSource> guideSource_;  // gathered when first needed
  GuideHits guideHits_;
  std::vector<GuideLine> guideLines_;
  ClipboardReader clipboardReader_;
  PictureMaker pictureMaker_;
  ToolbarEntry toolbar_;
};

}  // namespace xrpt
