#include "desktop/ribbon/CornerBar.h"

#include <QComboBox>
#include <QSignalBlocker>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "desktop/ribbon/Actions.h"
#include "desktop/ribbon/PopupButton.h"
#include "desktop/ribbon/RibbonButton.h"
#include "editor/CommandTexts.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

namespace {

constexpr int kPartGap = 12;

QComboBox* MakeBox(QWidget* parent, int nameTextId, int characters) {
  auto* box = new QComboBox(parent);
  box->setAccessibleName(Translated(nameTextId));
  box->setToolTip(Translated(nameTextId));
  box->setFocusPolicy(Qt::TabFocus);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(characters);
  box->setMaxVisibleItems(24);
  return box;
}

}  // namespace

CornerBar::CornerBar(RVEditControlWnd& frame, const Actions& actions, QWidget* parent)
    : QWidget(parent), frame_(frame), more_(new PopupButton(this)) {
  more_->setIcon(ThemedIcon(QStringLiteral("more")));
  more_->setAccessibleName(Translated(text::kMoreCommands));
  more_->setToolTip(Translated(text::kMoreCommands));
  more_->hide();
  AddButtons(AddPart(), actions, {"Save", "Undo", "Redo"});
  QBoxLayout& pages = AddPart();
  AddButtons(pages, actions, {"PreviousPage"});
  pages_ = MakeBox(this, text::kPageSelector, 12);
  pages.addWidget(pages_);
  AddButtons(pages, actions, {"NextPage"});
  QBoxLayout& zoom = AddPart();
  AddButtons(zoom, actions, {"ZoomOut"});
  zoom_ = MakeBox(this, text::kZoom, 9);
  zoom.addWidget(zoom_);
  AddButtons(zoom, actions, {"ZoomIn"});
  connect(pages_, &QComboBox::activated, this, [this](int page) { frame_.ShowPage(static_cast<std::size_t>(page)); });
  connect(zoom_, &QComboBox::activated, this, [this](int entry) { ChooseZoom(entry); });
  zoom_->addItems({Translated(text::kFitPage), Translated(text::kFitWidth)});
  for (int percent = 50; percent <= 1000; percent += 50) zoom_->addItem(QStringLiteral("%1 %").arg(percent));
  zoom_->addItem(Translated(text::kZoomToSelection));
}

// The last entry is the selection's; without one the zoom stays.
void CornerBar::ChooseZoom(int entry) {
  entry + 1 == zoom_->count() ? frame_.ZoomToSelection() : frame_.SetZoomEntry(entry);
  RefreshZoom();
}

QBoxLayout& CornerBar::AddPart() {
  auto* part = new QWidget(this);
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins(0, 2, 0, 2);
  row->setSpacing(2);
  parts_.push_back(part);
  return *row;
}

void CornerBar::AddButtons(QBoxLayout& row, const Actions& actions, std::initializer_list<const char*> names) {
  for (const char* name : names) {
    if (QAction* action = actions.Find(name)) row.addWidget(new RibbonButton(*action, ButtonShape::IconOnly, this));
  }
}

// --- Room ---

QSize CornerBar::sizeHint() const {
  QSize size(-kPartGap, more_->sizeHint().height());
  for (const QWidget* part : parts_) {
    size.rwidth() += part->sizeHint().width() + kPartGap;
    size.rheight() = std::max(size.height(), part->sizeHint().height());
  }
  return size;
}

// Parts go from the right; with the first of them comes the button.
int CornerBar::Fit(int available) {
  int taken = sizeHint().width();
  const bool allFit = taken <= available;
  if (!allFit) taken += kPartGap + more_->sizeHint().width();
  for (std::size_t i = parts_.size(); i-- > 0;) {
    const bool gives = taken > available;
    if (gives) taken -= parts_[i]->sizeHint().width() + kPartGap;
    PutPart(parts_[i], gives);
  }
  more_->setVisible(!allFit);
  PlaceParts();
  return std::max(0, taken);
}

void CornerBar::PutPart(QWidget* part, bool inPopup) {
  if (inPopup == (part->parentWidget() != this)) return;
  more_->Close();
  if (inPopup) return more_->Hold(part);
  part->setParent(this);
  part->show();
}

void CornerBar::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceParts();
}

void CornerBar::PlaceParts() {
  int x = 0;
  for (QWidget* part : parts_) {
    if (part->parentWidget() != this) continue;
    part->setGeometry(x, 0, part->sizeHint().width(), height());
    x += part->width() + kPartGap;
  }
  more_->setGeometry(x, (height() - more_->sizeHint().height()) / 2, more_->sizeHint().width(),
                     more_->sizeHint().height());
}

// --- What it shows ---

void CornerBar::Refresh() {
  RefreshPages();
  RefreshZoom();
}

void CornerBar::RefreshPages() {
  const QSignalBlocker quiet(pages_);
  const int count = static_cast<int>(frame_.PageCount());
  while (pages_->count() > count) pages_->removeItem(pages_->count() - 1);
  while (pages_->count() < count) pages_->addItem(Translated(text::kPageNumber, QString::number(pages_->count() + 1)));
  pages_->setCurrentIndex(static_cast<int>(frame_.CurrentPageIndex()));
}

// A zoom between the box's entries shows its own number.
void CornerBar::RefreshZoom() {
  const QSignalBlocker quiet(zoom_);
  const double zoom = frame_.CurrentPage().Zoom();
  const int entry = frame_.ZoomEntry();
  const bool isListed = zoom < 0.0 || std::abs(zoom * 2.0 - std::round(zoom * 2.0)) < 1e-9;
  zoom_->setCurrentIndex(isListed ? entry : -1);
  zoom_->setPlaceholderText(QStringLiteral("%1 %").arg(std::lround(std::abs(zoom) * 100.0)));
}

}  // namespace xrpt
