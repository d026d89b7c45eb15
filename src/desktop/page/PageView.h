// The page on the screen: a scroll area that hands its events to the window of the page it shows and carries out what
// that window asks. It decides nothing about cards.
#pragma once

#include <QAbstractScrollArea>
#include <QElapsedTimer>
#include <QTimer>
#include <functional>

#include "canvas/PagePreparation.h"
#include "desktop/page/PageImage.h"
#include "platform/Window.h"

namespace xrpt {

class Actions;
class InPlaceEditor;
class PagePort;
class RVEditControlWnd;
class RVEditTemplateWnd;

class PageView final : public QAbstractScrollArea {
 public:
  explicit PageView(QWidget* parent = nullptr);

  // Whom zooming asks. Before this nothing is shown.
  void Connect(RVEditControlWnd& frame, Actions& actions);
  void ShowPage(PagePort& port);
  void Forget(const PagePort& port);
  const PagePort* Port() const { return port_; }
  // The window of the page that is shown; null without one.
  const RVEditTemplateWnd* Shown() const { return Window(); }
  // The page's pixels are painted anew, for what the window could not see (the theme).
  void RepaintPage();

  // Whether scrolling texts and pictures move.
  void SetAnimated(bool on);
  bool IsAnimated() const { return animated_; }

  // How often a page was painted afresh.
  int PagePaintings() const { return image_.Paintings(); }

  // --- What a page's window asks ---
  Rect PageArea() const;
  void Repaint();
  void Capture(bool on);
  void ShowCursor(Cursor cursor);
  void ShowScroll(ScrollAxis axis, const ScrollInfo& info);
  void OpenMenu(Point at);

  // Scrolls so that this many millimetres of the page come to stand at a pixel.
  void ZoomAt(double zoom, QPoint at);

  // Scrolls until the selected cards are in sight, as far as they fit.
  void RevealSelection();
  // Screen pixels.
  QRect SelectionOnScreen() const;

  // The text of the selected card is edited where it stands; what is typed already replaces it. False for a card whose
  // text is none to be edited.
  bool EditText(const QString& typed = {});
  // The same, or else whatever else there is to edit of the card.
  void EditContent();
  // Ends that; the text is kept.
  void KeepText();
  const InPlaceEditor* Editor() const { return editor_; }

  // What lies over the page for the time being, and what it says at a pixel (nothing: no tooltip).
  std::function<void(QPainter&)> paintOver;
  std::function<QString(QPoint)> tipAt;

  // What the rulers and the status bar follow. The pointer left when there is no position.
  std::function<void(std::optional<QPoint>)> pointerMoved;
  std::function<void()> placementChanged;
  // A command of the page's own menu ran, or Tab selected another card.
  std::function<void()> changed;
  std::function<void()> resized;
  // Cards begin to be dragged.
  std::function<void()> dragBegun;
  // Something was dropped on the page: texts and files at a pixel.
  std::function<void(const QString& words, QPoint at)> textDropped;
  std::function<void(const QStringList& files, QPoint at)> filesDropped;
  // The selected card's content is wanted, which is edited elsewhere.
  std::function<void()> contentWanted;

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  RVEditTemplateWnd* Window() const;
  void LoseCapture();
  bool StartPanning(QMouseEvent& event);
  void Pan(QPoint to);
  void StopPanning();
  void ScrollByWheel(QWheelEvent& event);
  bool SelectNeighbour(bool next);
  void WriteText(const std::wstring& words);
  void EndText(bool keeps);
  void ScrollAlong();
  void ShowMoment();
  void ShowArrived();
  void PrepareWhenAtRest();
  void Prepare();
  void Escape();

  RVEditControlWnd* frame_ = nullptr;
  Actions* actions_ = nullptr;
  PagePort* port_ = nullptr;
  QTimer animation_;  // runs while something in sight moves
  QTimer scrolling_;  // runs while a drag is beyond the edge
  QTimer arrivals_;   // runs for a moment when pictures have arrived
  QTimer rest_;       // runs until the page was left alone for a while
  int prepared_ = 0;  // the painting after which the rest of the page was laid out last
  PagePreparation preparation_;
  PageImage image_;  // the first to go: its thread starts a timer
  InPlaceEditor* editor_ = nullptr;
  QElapsedTimer clock_;
  bool animated_ = true;
  bool captured_ = false;
  bool spaceHeld_ = false;
  std::optional<QPoint> panFrom_;
};

}  // namespace xrpt
