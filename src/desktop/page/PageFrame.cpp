#include "desktop/page/PageFrame.h"

#include <QGridLayout>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/page/PageView.h"
#include "desktop/page/Rulers.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

PageFrame::PageFrame(QWidget* parent) : QWidget(parent) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  corner_ = new QWidget(this);
  across_ = new Ruler(Qt::Horizontal, this);
  down_ = new Ruler(Qt::Vertical, this);
  view_ = new PageView(this);
  grid->addWidget(corner_, 0, 0);
  grid->addWidget(across_, 0, 1);
  grid->addWidget(down_, 1, 0);
  grid->addWidget(view_, 1, 1);
  view_->pointerMoved = [this](std::optional<QPoint> at) { MovePointer(at); };
  view_->placementChanged = [this] { Refresh(); };
  setFocusProxy(view_);
}

void PageFrame::ShowRulers(bool on) {
  for (QWidget* part : {corner_, static_cast<QWidget*>(across_), static_cast<QWidget*>(down_)}) part->setVisible(on);
}

bool PageFrame::HasRulers() const { return !across_->isHidden(); }

void PageFrame::Refresh() {
  if (!frame_ || frame_->PageCount() == 0) return;
  RVEditTemplateWnd& window = frame_->CurrentPage();
  const RVGlobalProperties& page = window.Page().properties;
  const PagePlacement placement = window.Placement();
  if (!(page.width > 0.0) || !(page.height > 0.0)) return;
  across_->SetScale({placement.offsetX, placement.pageWidthPx / page.width}, page.width);
  down_->SetScale({placement.offsetY, placement.pageHeightPx / page.height}, page.height);
  const Rect area = window.SelectedArea();
  const bool isEmpty = window.Selection().IsEmpty();
  across_->SetSelection(isEmpty ? std::nullopt : std::optional(std::pair(area.left, area.right - 1)));
  down_->SetSelection(isEmpty ? std::nullopt : std::optional(std::pair(area.top, area.bottom - 1)));
}

void PageFrame::MovePointer(std::optional<QPoint> at) {
  across_->SetPointer(at ? std::optional(at->x()) : std::nullopt);
  down_->SetPointer(at ? std::optional(at->y()) : std::nullopt);
  if (!pointerMoved || !frame_ || frame_->PageCount() == 0) return;
  const PagePlacement placement = frame_->CurrentPage().Placement();
  const RVGlobalProperties& page = frame_->CurrentPage().Page().properties;
  if (!at || !(placement.pageWidthPx > 0.0) || !(placement.pageHeightPx > 0.0)) return pointerMoved(std::nullopt);
  pointerMoved(PointD{(at->x() - placement.offsetX) * page.width / placement.pageWidthPx,
                      (at->y() - placement.offsetY) * page.height / placement.pageHeightPx});
}

}  // namespace xrpt
