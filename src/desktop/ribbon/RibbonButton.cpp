#include "desktop/ribbon/RibbonButton.h"

#include <QAction>
#include <QStyle>
#include <QStyleOptionToolButton>

#include "desktop/ribbon/PopupButton.h"

namespace xrpt {

namespace {

constexpr int kLargeIcon = 28;
constexpr int kSmallIcon = 18;
constexpr int kGap = 4;  // between icon and label

QSize IconSizeOf(ButtonShape shape) {
  const int side = shape == ButtonShape::Large ? kLargeIcon : kSmallIcon;
  return {side, side};
}

Qt::ToolButtonStyle StyleOf(ButtonShape shape) {
  switch (shape) {
    case ButtonShape::Large:
      return Qt::ToolButtonTextUnderIcon;
    case ButtonShape::Small:
      return Qt::ToolButtonTextBesideIcon;
    case ButtonShape::IconOnly:
      break;
  }
  return Qt::ToolButtonIconOnly;
}

}  // namespace

QString InTwoLines(const QString& label) {
  qsizetype best = -1;
  for (qsizetype at = label.indexOf(QLatin1Char(' ')); at >= 0; at = label.indexOf(QLatin1Char(' '), at + 1)) {
    const auto unevenness = [&label](qsizetype cut) { return std::abs(label.size() - 2 * cut); };
    if (best < 0 || unevenness(at) < unevenness(best)) best = at;
  }
  QString broken = label;
  if (best <= 0) return broken + QLatin1Char('\n');
  broken[best] = QLatin1Char('\n');
  return broken;
}

RibbonButton::RibbonButton(QAction& action, ButtonShape shape, QWidget* parent)
    : QToolButton(parent), action_(action), shape_(shape) {
  setProperty("flat", true);
  setObjectName(action.objectName());
  setFocusPolicy(Qt::TabFocus);
  SetShape(shape);
  connect(&action_, &QAction::changed, this, [this] { TakeFromAction(); });
  connect(this, &QToolButton::clicked, &action_, [this] {
    ClosePopupAround(*this);
    action_.trigger();
  });
}

void RibbonButton::SetShape(ButtonShape shape) {
  shape_ = shape;
  const bool isLarge = shape == ButtonShape::Large;
  setIconSize(IconSizeOf(shape));
  setToolButtonStyle(StyleOf(shape));
  setSizePolicy(isLarge ? QSizePolicy::Minimum : QSizePolicy::Preferred,
                isLarge ? QSizePolicy::MinimumExpanding : QSizePolicy::Fixed);
  TakeFromAction();
}

QString RibbonButton::LabelAs(ButtonShape shape) const {
  return shape == ButtonShape::Large ? InTwoLines(action_.text()) : action_.text();
}

// Groups ask at every width the window passes through.
QSize RibbonButton::SizeAs(ButtonShape shape) const {
  ensurePolished();
  QSize& size = sizes_[static_cast<std::size_t>(shape)];
  if (!size.isValid()) size = Measure(shape);
  return size;
}

void RibbonButton::changeEvent(QEvent* event) {
  QToolButton::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) sizes_.fill({});
}

QSize RibbonButton::Measure(ButtonShape shape) const {
  QStyleOptionToolButton option;
  initStyleOption(&option);
  option.iconSize = IconSizeOf(shape);
  option.toolButtonStyle = StyleOf(shape);
  option.text = LabelAs(shape);
  QSize size = option.iconSize;
  const QSize label = fontMetrics().size(Qt::TextShowMnemonic, option.text) +
                      QSize(fontMetrics().horizontalAdvance(QLatin1Char(' ')) * 2, 0);
  if (shape == ButtonShape::Large)
    size = QSize(std::max(size.width(), label.width()), size.height() + kGap + label.height());
  if (shape == ButtonShape::Small)
    size = QSize(size.width() + kGap + label.width(), std::max(size.height(), label.height()));
  option.rect.setSize(size);
  return style()->sizeFromContents(QStyle::CT_ToolButton, &option, size, this);
}

void RibbonButton::TakeFromAction() {
  if (accessibleName() != action_.text()) sizes_.fill({});
  setIcon(action_.icon());
  setText(LabelAs(shape_));
  setAccessibleName(action_.text());
  setAccessibleDescription(action_.statusTip());
  setToolTip(action_.toolTip());
  setStatusTip(action_.statusTip());
  setEnabled(action_.isEnabled());
  setCheckable(action_.isCheckable());
  setChecked(action_.isChecked());
}

}  // namespace xrpt
