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
class PagePort;
class RVEditControlWnd;
class RVEditTemplateWnd;

class PageView final : public QAbstractScrollArea {
 public:
  explicit PageView(QWidget* parent = nullptr);

  // Whom zooming asks. Before this nothing is shown.
  void Connect(RVEditControlWnd& frame, const Actions& actions);
  void ShowPage(PagePort& port);
  void Forget(const PagePort& port);
  const PagePort* Port() const { return port_; }
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
  void OpenMenu(const std::vector<MenuItem>& items, Point at);

  // Scrolls so that this many millimetres of the page come to stand at a pixel.
  void ZoomAt(double zoom, QPoint at);

  // Scrolls until the selected cards are in sight, as far as they fit.
  void RevealSelection();
  // Screen pixels.
  QRect SelectionOnScreen() const;

  // What lies over the page for the time being, and what it says at a pixel (nothing: no tooltip).
  std::function<void(QPainter&)> paintOver;
  std::function<QString(QPoint)> tipAt;

  // What the rulers and the status bar follow. The pointer left when there is no position.
  std::function<void(std::optional<QPoint>)> pointerMoved;
  std::function<void()> placementChanged;
  // A command of the page's own menu ran, or Tab selected another card.
  std::function<void()> changed;
  std::function<void()> resized;

 protected:
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
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  RVEditTemplateWnd* Window() const;
  void LoseCapture();
  bool StartPanning(QMouseEvent& event);
  void Pan(QPoint to);
  void StopPanning();
  void ScrollByWheel(QWheelEvent& event);
  bool SelectNeighbour(bool next);
  void ShowMoment();
  void ShowArrived();
  void PrepareWhenAtRest();
  void Prepare();
  void Escape();

  RVEditControlWnd* frame_ = nullptr;
  const Actions* actions_ = nullptr;
  PagePort* port_ = nullptr;
  QTimer animation_;  // runs while something in sight moves
  QTimer arrivals_;   // runs for a moment when pictures have arrived
  QTimer rest_;       // runs until the page was left alone for a while
  int prepared_ = 0;  // the painting after which the rest of the page was laid out last
  PagePreparation preparation_;
  PageImage image_;  // before the timers: its thread starts one
  QElapsedTimer clock_;
  bool animated_ = true;
  bool captured_ = false;
  bool spaceHeld_ = false;
  std::optional<QPoint> panFrom_;
};

}  // namespace xrpt
