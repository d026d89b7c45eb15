#include "desktop/ribbon/RibbonButton.h"

#include <QAction>

namespace xrpt {

namespace {
constexpr int kLargeIcon = 28;
constexpr int kSmallIcon = 18;
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
  connect(this, &QToolButton::clicked, &action_, [this] { action_.trigger(); });
}

void RibbonButton::SetShape(ButtonShape shape) {
  shape_ = shape;
  const bool isLarge = shape == ButtonShape::Large;
  setIconSize(isLarge ? QSize(kLargeIcon, kLargeIcon) : QSize(kSmallIcon, kSmallIcon));
  setToolButtonStyle(isLarge                       ? Qt::ToolButtonTextUnderIcon
                     : shape == ButtonShape::Small ? Qt::ToolButtonTextBesideIcon
                                                   : Qt::ToolButtonIconOnly);
  setSizePolicy(isLarge ? QSizePolicy::Minimum : QSizePolicy::Preferred,
                isLarge ? QSizePolicy::MinimumExpanding : QSizePolicy::Fixed);
  TakeFromAction();
}

void RibbonButton::TakeFromAction() {
  setIcon(action_.icon());
  setText(shape_ == ButtonShape::Large ? InTwoLines(action_.text()) : action_.text());
  setAccessibleName(action_.text());
  setAccessibleDescription(action_.statusTip());
  setToolTip(action_.toolTip());
  setStatusTip(action_.statusTip());
  setEnabled(action_.isEnabled());
  setCheckable(action_.isCheckable());
  setChecked(action_.isChecked());
}

}  // namespace xrpt
