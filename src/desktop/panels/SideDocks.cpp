#include "desktop/panels/SideDocks.h"

#include <QDockWidget>
#include <QMainWindow>
#include <algorithm>

namespace xrpt {

namespace {
constexpr int kPageWidth = 240;
}

SideDocks::SideDocks(QMainWindow& window, const std::vector<QDockWidget*>& docks) : window_(window) {
  for (QDockWidget* dock : docks) {
    sides_.push_back({dock});
    dock->installEventFilter(this);
  }
}

// Docks and page have less than they need, because the user asked for a dock all the same.
bool SideDocks::IsCrowded() const {
  int room = window_.width();
  for (const Side& side : sides_) room -= IsBeside(side) ? side.dock->width() : 0;
  return room < kPageWidth;
}

// A dock that changes while the window keeps its width is one that the user draws wider or narrower.
bool SideDocks::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && window_.width() == width_ && !IsCrowded()) {
    for (Side& side : sides_) {
      if (side.dock == watched) side.width = side.dock->width();
    }
  }
  return QObject::eventFilter(watched, event);
}

bool SideDocks::IsBeside(const Side& side) const {
  const Qt::DockWidgetArea area = window_.dockWidgetArea(side.dock);
  const bool isAtSide = area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
  return isAtSide && !side.dock->isHidden() && !side.dock->isFloating();
}

int SideDocks::RoomForPage() const {
  int room = window_.width();
  for (const Side& side : sides_) room -= IsBeside(side) ? side.width : 0;
  return room;
}

void SideDocks::Fit() {
  const bool isFirst = width_ == 0;
  for (Side& side : sides_) {
    if (isFirst) side.width = std::max(side.dock->width(), side.dock->sizeHint().width());
  }
  const bool isNarrower = window_.width() < width_;
  isFirst || isNarrower ? HideUntilPageFits() : ShowWhileTheyFit();
  width_ = window_.width();
}

void SideDocks::HideUntilPageFits() {
  for (Side& side : sides_) {
    if (RoomForPage() >= kPageWidth) return;
    if (!IsBeside(side)) continue;
    side.gaveWay = true;
    side.dock->hide();
  }
}

void SideDocks::ShowWhileTheyFit() {
  for (auto side = sides_.rbegin(); side != sides_.rend(); ++side) {
    if (!side->gaveWay) continue;
    if (RoomForPage() - side->width < kPageWidth) return;
    side->gaveWay = false;
    side->dock->show();
    window_.resizeDocks({side->dock}, {side->width}, Qt::Horizontal);
  }
}

void SideDocks::Forget(const QDockWidget& dock) {
  for (Side& side : sides_) side.gaveWay = side.gaveWay && side.dock != &dock;
}

// A window too narrow for both would leave the dock next to nothing.
void SideDocks::Open(QDockWidget& dock) {
  const auto side = std::find_if(sides_.begin(), sides_.end(), [&](const Side& one) { return one.dock == &dock; });
  const int width = side == sides_.end() ? 0 : std::min(side->width, window_.width() * 3 / 4);
  dock.show();
  dock.raise();
  if (width > 0 && IsBeside(*side)) window_.resizeDocks({&dock}, {width}, Qt::Horizontal);
}

void SideDocks::BringBack() {
  for (Side& side : sides_) {
    if (std::exchange(side.gaveWay, false)) side.dock->show();
  }
}

}  // namespace xrpt
