#include "desktop/ribbon/RibbonGroup.h"

#include <QGridLayout>

#include "desktop/ribbon/PopupButton.h"
#include "desktop/ribbon/RibbonButton.h"

namespace xrpt {

namespace {

constexpr std::size_t kRows = 3;
constexpr QMargins kMargins(6, 4, 6, 3);
constexpr int kColumnGap = 2;
constexpr QSize kFoldedIcon(28, 28);

int Across(const QMargins& margins) { return margins.left() + margins.right(); }
int Down(const QMargins& margins) { return margins.top() + margins.bottom(); }

ButtonShape ShapeOf(const RibbonButton& button, bool iconsOnly) {
  if (button.Shape() == ButtonShape::Large) return ButtonShape::Large;
  return iconsOnly ? ButtonShape::IconOnly : ButtonShape::Small;
}

int WidthOf(const QWidget& widget, bool iconsOnly) {
  const auto* button = dynamic_cast<const RibbonButton*>(&widget);
  return button ? button->SizeAs(ShapeOf(*button, iconsOnly)).width() : widget.sizeHint().width();
}

}  // namespace

RibbonGroup::RibbonGroup(const QString& title, QWidget* parent) : QWidget(parent), title_(title) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargins);
  column->setSpacing(1);
  body_ = new QWidget(this);
  grid_ = new QGridLayout(body_);
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(kColumnGap);
  grid_->setVerticalSpacing(0);
  for (std::size_t row = 0; row < kRows; ++row) grid_->setRowStretch(static_cast<int>(row), 1);
  caption_ = new QLabel(title, this);
  caption_->setObjectName(QStringLiteral("ribbonGroupTitle"));
  caption_->setAlignment(Qt::AlignCenter);
  QFont small = caption_->font();
  small.setPointSizeF(small.pointSizeF() * 0.85);
  caption_->setFont(small);
  MakeFoldedButton();
  column->addWidget(folded_, 1);
  column->addWidget(body_, 1);
  column->addWidget(caption_);
}

void RibbonGroup::MakeFoldedButton() {
  folded_ = new PopupButton(this);
  folded_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  folded_->setIconSize(kFoldedIcon);
  folded_->setText(InTwoLines(title_));
  folded_->setAccessibleName(title_);
  folded_->setToolTip(title_);
  folded_->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
  folded_->hide();
}

void RibbonGroup::AddColumn(QWidget* widget, Qt::Alignment alignment) {
  grid_->addWidget(widget, 0, static_cast<int>(columns_.size()), static_cast<int>(kRows), 1, alignment);
  columns_.push_back({widget});
  columnIsOpen_ = false;
}

void RibbonGroup::AddAction(QAction& action, bool isLarge) {
  if (columns_.empty()) folded_->setIcon(action.icon());
  auto* button = new RibbonButton(action, isLarge ? ButtonShape::Large : ButtonShape::Small, body_);
  if (isLarge) return AddColumn(button, {});
  if (!columnIsOpen_) columns_.emplace_back();
  Column& column = columns_.back();
  grid_->addWidget(button, static_cast<int>(column.size()), static_cast<int>(columns_.size()) - 1,
                   Qt::AlignLeft | Qt::AlignVCenter);
  column.push_back(button);
  columnIsOpen_ = column.size() < kRows;
}

void RibbonGroup::AddWidget(QWidget* widget, const QIcon& icon) {
  if (columns_.empty()) folded_->setIcon(icon);
  AddColumn(widget, Qt::AlignVCenter);
}

QIcon RibbonGroup::Icon() const { return folded_->icon(); }

int RibbonGroup::BodyWidth(bool iconsOnly) const {
  int width = -kColumnGap;
  for (const Column& column : columns_) {
    int widest = 0;
    for (const QWidget* widget : column) widest = std::max(widest, WidthOf(*widget, iconsOnly));
    width += widest + kColumnGap;
  }
  return std::max(width, caption_->sizeHint().width());
}

GroupWidths RibbonGroup::Widths() const {
  const int margins = Across(kMargins);
  return {BodyWidth(false) + margins, BodyWidth(true) + margins, folded_->sizeHint().width() + margins};
}

QSize RibbonGroup::sizeHint() const {
  const int body = std::max(body_->sizeHint().height(), folded_->sizeHint().height());
  const int height = body + layout()->spacing() + caption_->sizeHint().height() + Down(kMargins);
  return {Widths().At(room_), height};
}

// Nobody lays a page's groups out but the page, which calls this: nothing here may wait for a layout above.
void RibbonGroup::SetRoom(GroupRoom room) {
  if (room == room_) return;
  room_ = room;
  folded_->Close();
  for (const Column& column : columns_) {
    for (QWidget* widget : column) {
      auto* button = dynamic_cast<RibbonButton*>(widget);
      if (button) button->SetShape(ShapeOf(*button, room == GroupRoom::IconsOnly));
    }
  }
  const bool isFolded = room == GroupRoom::Folded || room == GroupRoom::Hidden;
  caption_->setVisible(!isFolded);
  folded_->setVisible(isFolded);
  if (isFolded == (body_->parentWidget() != this)) return;
  if (isFolded) return folded_->Hold(body_);
  static_cast<QBoxLayout*>(layout())->insertWidget(1, body_, 1);
  body_->show();
}

void RibbonGroup::OpenUnder(const QWidget& anchor) { folded_->OpenUnder(anchor); }

}  // namespace xrpt
