#include "desktop/ribbon/CornerBar.h"

#include <QComboBox>
#include <QSignalBlocker>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/ribbon/Actions.h"
#include "desktop/ribbon/RibbonButton.h"
#include "editor/CommandTexts.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

namespace {

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
    : QWidget(parent), frame_(frame) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 2, 0, 2);
  row->setSpacing(2);
  AddButtons(actions, {"Save", "Undo", "Redo"});
  row->addSpacing(10);
  AddButtons(actions, {"PreviousPage"});
  pages_ = MakeBox(this, text::kPageSelector, 12);
  row->addWidget(pages_);
  AddButtons(actions, {"NextPage"});
  row->addSpacing(10);
  AddButtons(actions, {"ZoomOut"});
  zoom_ = MakeBox(this, text::kZoom, 9);
  row->addWidget(zoom_);
  AddButtons(actions, {"ZoomIn"});
  connect(pages_, &QComboBox::activated, this, [this](int page) { frame_.ShowPage(static_cast<std::size_t>(page)); });
  connect(zoom_, &QComboBox::activated, this, [this](int entry) { frame_.SetZoomEntry(entry); });
  zoom_->addItems({Translated(text::kFitPage), Translated(text::kFitWidth)});
  for (int percent = 50; percent <= 1000; percent += 50) zoom_->addItem(QStringLiteral("%1 %").arg(percent));
}

void CornerBar::AddButtons(const Actions& actions, std::initializer_list<const char*> names) {
  for (const char* name : names) {
    if (QAction* action = actions.Find(name))
      layout()->addWidget(new RibbonButton(*action, ButtonShape::IconOnly, this));
  }
}

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
