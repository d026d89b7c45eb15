// What mouse, wheel and keyboard do on the page view: handed on to the page's window, but for panning, zooming and
// walking from card to card, which are the view's own.
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QUrl>
#include <QWheelEvent>

#include "canvas/InsertTools.h"
#include "canvas/RVEditTemplateWnd.h"
#include "desktop/page/InPlaceEditor.h"
#include "desktop/page/KeyCodes.h"
#include "desktop/page/PagePort.h"
#include "desktop/page/PageView.h"
#include "desktop/ribbon/Actions.h"
#include "editor/RVEditControlWnd.h"
#include "editor/SelectedFields.h"

namespace xrpt {

namespace {

constexpr int kPixelsPerNotch = 60;
constexpr double kZoomPerNotch = 1.2;
constexpr int kNotch = 120;

Point PositionOf(const QMouseEvent& event) { return {event.position().toPoint().x(), event.position().toPoint().y()}; }

MouseFlags FlagsOf(Qt::KeyboardModifiers modifiers) {
  MouseFlags flags;
  flags.control = modifiers.testFlag(Qt::ControlModifier);
  flags.shift = modifiers.testFlag(Qt::ShiftModifier);
  flags.alt = modifiers.testFlag(Qt::AltModifier);
  return flags;
}

DragModifiers ModifiersOf(Qt::KeyboardModifiers modifiers) {
  DragModifiers drag;
  drag.alt = modifiers.testFlag(Qt::AltModifier);
  drag.shift = modifiers.testFlag(Qt::ShiftModifier);
  return drag;
}

// A character that begins a text; Space pans.
bool IsTyping(const QKeyEvent& key) {
  const Qt::KeyboardModifiers held =
      key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier);
  return held == Qt::NoModifier && !key.text().isEmpty() && key.text().front().isPrint() && key.key() != Qt::Key_Space;
}

constexpr Point kNowhere{-1, -1};

// How far a stretch of pixels must go to be within a length; its near end counts most.
int IntoSight(int near, int far, int length) {
  if (near < 0) return near;
  return far > length ? std::min(near, far - length) : 0;
}

}  // namespace

// --- Mouse ---

void PageView::mousePressEvent(QMouseEvent* event) {
  KeepText();
  if (!Window() || StartPanning(*event) || event->button() != Qt::LeftButton) return;
  Window()->OnLButtonDown(PositionOf(*event), FlagsOf(event->modifiers()));
}

// On the selected card, which the first click has selected; of a group, on the one card.
void PageView::mouseDoubleClickEvent(QMouseEvent* event) {
  const Point at = PositionOf(*event);
  const bool onCard = Window() && event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier &&
                      Window()->InsertKind() == tool::kPointer && Window()->SelectedArea().Contains(at);
  if (!onCard || spaceHeld_) return mousePressEvent(event);
  if (Window()->Selection().Size() > 1) Window()->SelectOnlyAt(at);
  EditContent();
}

// --- Text edited where it stands ---

bool PageView::EditText(const QString& typed) {
  KeepText();
  const auto text = Window() ? Window()->EditableText() : std::nullopt;
  if (!text) return false;
  RevealSelection();
  Window()->EndEdit();
  editor_ = new InPlaceEditor(*Window()->EditableText(), viewport());
  editor_->ended = [this](bool keeps) { EndText(keeps); };
  connect(editor_, &QTextEdit::textChanged, this, [this] { WriteText(editor_->Words()); });
  editor_->Begin(typed);
  return true;
}

void PageView::EditContent() {
  if (Window() && !Window()->Selection().IsEmpty() && !EditText() && contentWanted) contentWanted();
}

// The card has the text while it is typed, so that saving and everything else knows of it.
void PageView::WriteText(const std::wstring& words) {
  if (Window()) Window()->SetTextOf(editor_->Card(), words);
  if (changed) changed();
}

void PageView::KeepText() { EndText(true); }

void PageView::EndText(bool keeps) {
  if (!editor_) return;
  if (!keeps) WriteText(editor_->Before());
  if (Window()) Window()->EndEdit();
  InPlaceEditor* editor = std::exchange(editor_, nullptr);
  editor->disconnect(this);
  editor->ended = nullptr;
  const bool hadFocus = editor->hasFocus();
  editor->hide();
  editor->deleteLater();
  if (hadFocus) setFocus(Qt::OtherFocusReason);
  if (changed) changed();
}

void PageView::mouseMoveEvent(QMouseEvent* event) {
  if (pointerMoved) pointerMoved(event->position().toPoint());
  if (panFrom_) return Pan(event->position().toPoint());
  if (!Window() || spaceHeld_) return;
  const bool wasClick = Window()->CurrentGesture().Row().kind == GestureKind::Click;
  Window()->OnMouseMove(PositionOf(*event), ModifiersOf(event->modifiers()));
  if (wasClick && Window()->CurrentGesture().Row().kind == GestureKind::Drag && dragBegun) dragBegun();
  const bool isOutside = captured_ && !viewport()->rect().contains(event->position().toPoint());
  if (isOutside && !scrolling_.isActive()) scrolling_.start();
  if (!isOutside) scrolling_.stop();
}

void PageView::ScrollAlong() {
  if (!captured_ || !Window()) return scrolling_.stop();
  const QPoint at = viewport()->mapFromGlobal(QCursor::pos());
  Window()->ScrollTowards({at.x(), at.y()}, ModifiersOf(QGuiApplication::queryKeyboardModifiers()));
}

void PageView::mouseReleaseEvent(QMouseEvent* event) {
  if (panFrom_) return StopPanning();
  if (!Window()) return;
  if (event->button() == Qt::LeftButton) Window()->OnLButtonUp(PositionOf(*event));
  if (event->button() == Qt::RightButton && !captured_) Window()->OnRButtonUp(PositionOf(*event));
}

bool PageView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip && tipAt) {
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), tipAt(help->pos()), viewport());
    return true;
  }
  if (event->type() == QEvent::Leave) {
    if (pointerMoved) pointerMoved(std::nullopt);
    if (Window() && !captured_) Window()->OnMouseMove(kNowhere);  // no card is under the pointer any more
  }
  return QAbstractScrollArea::viewportEvent(event);
}

// The mouse's own menu comes with the button's release; this is the keyboard's.
void PageView::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Keyboard && Window())
    Window()->OnRButtonUp({viewport()->width() / 2, viewport()->height() / 2});
}

void PageView::focusOutEvent(QFocusEvent* event) {
  if (event->reason() != Qt::PopupFocusReason) LoseCapture();
  QAbstractScrollArea::focusOutEvent(event);
}

// --- Drops ---

namespace {

QStringList LocalFiles(const QMimeData& data) {
  QStringList files;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) files << url.toLocalFile();
  }
  return files;
}

bool IsWelcome(const QMimeData& data) { return !LocalFiles(data).isEmpty() || data.hasText(); }

}  // namespace

void PageView::dragEnterEvent(QDragEnterEvent* event) {
  if (Window() && IsWelcome(*event->mimeData())) event->acceptProposedAction();
}

void PageView::dragMoveEvent(QDragMoveEvent* event) { event->acceptProposedAction(); }

void PageView::dropEvent(QDropEvent* event) {
  KeepText();
  event->acceptProposedAction();
  const QPoint at = event->position().toPoint();
  const QStringList files = LocalFiles(*event->mimeData());
  if (!files.isEmpty() && filesDropped) return filesDropped(files, at);
  if (textDropped) textDropped(event->mimeData()->text().trimmed(), at);
}

// --- Panning ---

bool PageView::StartPanning(QMouseEvent& event) {
  const bool pans = event.button() == Qt::MiddleButton || (spaceHeld_ && event.button() == Qt::LeftButton);
  if (!pans || captured_) return pans;
  panFrom_ = event.position().toPoint();
  viewport()->setCursor(Qt::ClosedHandCursor);
  return true;
}

void PageView::Pan(QPoint to) {
  const QPoint step = to - *panFrom_;
  panFrom_ = to;
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - step.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() - step.y());
}

void PageView::StopPanning() {
  if (!panFrom_) return;
  panFrom_.reset();
  viewport()->setCursor(spaceHeld_ ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

// --- Wheel ---

void PageView::wheelEvent(QWheelEvent* event) {
  event->accept();
  if (!Window() || captured_) return;
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return ScrollByWheel(*event);
  const double notches = event->angleDelta().y() / static_cast<double>(kNotch);
  ZoomAt(std::abs(Window()->Zoom()) * std::pow(kZoomPerNotch, notches), event->position().toPoint());
}

void PageView::ScrollByWheel(QWheelEvent& event) {
  QPoint step = event.hasPixelDelta() ? event.pixelDelta() : event.angleDelta() * kPixelsPerNotch / kNotch;
  if (event.modifiers().testFlag(Qt::ShiftModifier)) step = {step.y(), step.x()};
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - step.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() - step.y());
}

// The page's point under the pixel stays there, as far as there is something to scroll.
void PageView::ZoomAt(double zoom, QPoint at) {
  const PagePlacement before = Window()->Placement();
  zoom = std::clamp(zoom, RVEditControlWnd::kSmallestZoom, RVEditControlWnd::kLargestZoom);
  const PointD fraction{(at.x() - before.offsetX) / before.pageWidthPx,
                        (at.y() - before.offsetY) / before.pageHeightPx};
  if (!frame_->SetZoom(zoom)) return;
  const PagePlacement after = Window()->Placement();
  horizontalScrollBar()->setValue(roundi(fraction.x * after.pageWidthPx - at.x()));
  verticalScrollBar()->setValue(roundi(fraction.y * after.pageHeightPx - at.y()));
}

void PageView::RevealSelection() {
  if (!Window() || Window()->Selection().IsEmpty()) return;
  const Rect area = Window()->SelectedArea();
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                  IntoSight(area.left, area.right, viewport()->width()));
  verticalScrollBar()->setValue(verticalScrollBar()->value() + IntoSight(area.top, area.bottom, viewport()->height()));
}

QRect PageView::SelectionOnScreen() const {
  if (!Window() || Window()->Selection().IsEmpty()) return {};
  const Rect area = Window()->SelectedArea();
  return {viewport()->mapToGlobal(QPoint(area.left, area.top)), QSize(area.Width(), area.Height())};
}

// --- Keyboard ---

// A letter is a tool's, but over a label whose text it begins.
bool PageView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && IsTyping(*static_cast<QKeyEvent*>(event)) && Window() &&
      Window()->EditableText()) {
    event->accept();
    return true;
  }
  return QAbstractScrollArea::event(event);
}

void PageView::keyPressEvent(QKeyEvent* event) {
  if (!Window()) return;
  if (event->key() == Qt::Key_Space) {
    spaceHeld_ = true;
    if (!panFrom_) viewport()->setCursor(Qt::OpenHandCursor);
    return;
  }
  if (event->key() == Qt::Key_Escape) return Escape();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return EditContent();
  if (IsTyping(*event) && EditText(event->text())) return;
  if (const int code = VirtualKey(event->key())) Window()->OnKeyDown(code, FlagsOf(event->modifiers()));
}

void PageView::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space || event->isAutoRepeat()) return QAbstractScrollArea::keyReleaseEvent(event);
  spaceHeld_ = false;
  if (!panFrom_) ShowCursor(port_ ? port_->LastCursor() : Cursor::Arrow);
}

// Ends a gesture or a preview, else puts the insert tool away.
void PageView::Escape() {
  if (captured_) return LoseCapture();
  if (Window()->IsPreview()) return actions_->Find("Preview")->trigger();
  QAction* pointer = actions_->Find("Pointer");
  pointer->isChecked() ? Window()->OnKeyDown(key::Escape, {}) : pointer->trigger();
}

// Tab walks the cards, back to front, and leaves the page after the last.
bool PageView::focusNextPrevChild(bool next) {
  return SelectNeighbour(next) || QAbstractScrollArea::focusNextPrevChild(next);
}

bool PageView::SelectNeighbour(bool next) {
  if (!Window() || !hasFocus()) return false;
  const std::size_t count = Window()->Page().cards.Size();
  const std::vector<std::size_t> selected = SelectedIndexes(*Window());
  const std::size_t none = next ? count : CardList::kNowhere;
  const std::size_t at = selected.empty() ? none : selected.back();
  const std::size_t neighbour = next ? at - 1 : at + 1;
  if (neighbour >= count) return false;
  Window()->SelectPlaces({neighbour});
  RevealSelection();
  if (changed) changed();
  return true;
}

}  // namespace xrpt
