#include "desktop/page/PageFrame.h"

#include <QGridLayout>
#include <cmath>

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
  ConnectRuler(*across_, true);
  ConnectRuler(*down_, false);
  setFocusProxy(view_);
}

// --- Lines to place cards by ---

namespace {

constexpr int kReach = 4;          // pixels round a line's mark
constexpr double kLineStep = 0.5;  // millimetres

std::vector<int> PixelsOf(const std::vector<double>& lines, double offset, double pixelsPerMm) {
  std::vector<int> pixels;
  for (const double at : lines) pixels.push_back(roundi(offset + at * pixelsPerMm));
  return pixels;
}

}  // namespace

void PageFrame::ConnectRuler(Ruler& ruler, bool isAcross) {
  ruler.pressed = [this, isAcross](int along) { TakeLine(isAcross, along); };
  ruler.dragged = [this](QPoint at) { DragLine(at, true); };
  ruler.released = [this](QPoint at) {
    DragLine(at, false);
    line_.reset();
  };
}

// The mark of a line takes that line; anywhere else a new one comes out, lying as the ruler lies.
void PageFrame::TakeLine(bool isAcrossRuler, int along) {
  line_.reset();
  if (!frame_ || frame_->PageCount() == 0) return;
  const RVEditTemplateWnd& window = frame_->CurrentPage();
  const PagePlacement place = window.Placement();
  if (!place.IsValid() || window.IsPreview()) return;
  line_ = DraggedLine{window.Lines(), isAcrossRuler};
  std::vector<double>& crossing = isAcrossRuler ? line_->others.down : line_->others.across;
  const std::vector<int> marks = isAcrossRuler ? PixelsOf(crossing, place.offsetX, place.pixelsPerMm.x)
                                               : PixelsOf(crossing, place.offsetY, place.pixelsPerMm.y);
  for (std::size_t i = 0; i < marks.size(); ++i) {
    if (std::abs(marks[i] - along) > kReach) continue;
    crossing.erase(crossing.begin() + static_cast<std::ptrdiff_t>(i));
    line_->isAcross = !isAcrossRuler;
    return;
  }
}

// Outside of the page it is none.
void PageFrame::DragLine(QPoint at, bool isMoving) {
  if (!line_ || !frame_ || frame_->PageCount() == 0) return;
  RVEditTemplateWnd& window = frame_->CurrentPage();
  const PagePlacement place = window.Placement();
  const QPoint here = view_->viewport()->mapFromGlobal(at);
  const double mm = line_->isAcross ? (here.y() - place.offsetY) * place.PixelHeight()
                                    : (here.x() - place.offsetX) * place.PixelWidth();
  PageLines lines = line_->others;
  const double far = line_->isAcross ? place.pageHeight : place.pageWidth;
  const bool isInView = line_->isAcross ? here.y() >= 0 : here.x() >= 0;
  if (mm >= 0.0 && mm <= far && isInView)
    (line_->isAcross ? lines.across : lines.down).push_back(std::round(mm / kLineStep) * kLineStep);
  window.SetLines(std::move(lines), isMoving);
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
  across_->SetLines(PixelsOf(window.Lines().down, placement.offsetX, placement.pixelsPerMm.x));
  down_->SetLines(PixelsOf(window.Lines().across, placement.offsetY, placement.pixelsPerMm.y));
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
