#include "desktop/ribbon/RibbonGroup.h"

#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

#include "desktop/ribbon/RibbonButton.h"

namespace xrpt {

namespace {
constexpr int kRows = 3;
}

RibbonGroup::RibbonGroup(const QString& title, QWidget* parent) : QWidget(parent), title_(title) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(6, 4, 6, 3);
  column->setSpacing(1);
  body_ = new QWidget(this);
  grid_ = new QGridLayout(body_);
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(2);
  grid_->setVerticalSpacing(0);
  for (int row = 0; row < kRows; ++row) grid_->setRowStretch(row, 1);
  caption_ = new QLabel(title, this);
  caption_->setObjectName(QStringLiteral("ribbonGroupTitle"));
  caption_->setAlignment(Qt::AlignCenter);
  QFont small = caption_->font();
  small.setPointSizeF(small.pointSizeF() * 0.85);
  caption_->setFont(small);
  folded_ = new QToolButton(this);
  folded_->setProperty("flat", true);
  folded_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  folded_->setIconSize({28, 28});
  folded_->setPopupMode(QToolButton::InstantPopup);
  folded_->setFocusPolicy(Qt::TabFocus);
  folded_->setText(InTwoLines(title));
  folded_->setAccessibleName(title);
  folded_->setToolTip(title);
  folded_->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
  folded_->hide();
  column->addWidget(body_, 1);
  column->addWidget(folded_, 1);
  column->addWidget(caption_);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void RibbonGroup::AddAction(QAction& action, bool isLarge) {
  if (actions_.empty()) folded_->setIcon(action.icon());
  actions_.push_back(&action);
  auto* button = new RibbonButton(action, isLarge ? ButtonShape::Large : ButtonShape::Small, body_);
  if (isLarge) {
    if (row_ > 0) ++column_;
    grid_->addWidget(button, 0, column_++, kRows, 1);
    row_ = 0;
    return;
  }
  small_.push_back(button);
  grid_->addWidget(button, row_, column_, Qt::AlignLeft | Qt::AlignVCenter);
  if (++row_ == kRows) {
    row_ = 0;
    ++column_;
  }
}

void RibbonGroup::AddWidget(QWidget* widget) {
  if (row_ > 0) ++column_;
  row_ = 0;
  grid_->addWidget(widget, 0, column_++, kRows, 1, Qt::AlignVCenter);
  hasWidgets_ = true;
}

// Widgets cannot stand in a menu: a group that has some never folds.
void RibbonGroup::SetRoom(GroupRoom room) {
  if (hasWidgets_ && room == GroupRoom::Folded) room = GroupRoom::IconsOnly;
  if (room == room_) return;
  room_ = room;
  const bool isFolded = room == GroupRoom::Folded;
  for (RibbonButton* button : small_)
    button->SetShape(room == GroupRoom::Full ? ButtonShape::Small : ButtonShape::IconOnly);
  if (isFolded && !folded_->menu()) folded_->setMenu(MakeMenu());
  body_->setVisible(!isFolded);
  folded_->setVisible(isFolded);
  // At once, from the inside out: whoever fits groups measures them next.
  grid_->activate();
  body_->updateGeometry();
  layout()->activate();
  updateGeometry();
}

QMenu* RibbonGroup::MakeMenu() {
  auto* menu = new QMenu(title_, this);
  for (QAction* action : actions_) menu->addAction(action);
  return menu;
}

}  // namespace xrpt
