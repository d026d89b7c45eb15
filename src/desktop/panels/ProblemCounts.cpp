#include "desktop/panels/ProblemCounts.h"

#include <QPainter>

#include "desktop/ProblemTexts.h"
#include "desktop/look/SeverityIcon.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"

namespace xrpt {

namespace {

constexpr int kGap = 4;     // between icon and number, and beside both
constexpr int kApart = 10;  // between one kind and the next

}  // namespace

ProblemCounts::ProblemCounts(const ProblemList& problems, QWidget* parent)
    : QAbstractButton(parent), problems_(problems) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  Refresh();
}

void ProblemCounts::Refresh() {
  QStringList names;
  for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Information}) {
    names << Translated(CountTextId(severity), QString::number(problems_.Count(severity)));
  }
  setAccessibleName(names.join(QStringLiteral(", ")));
  setToolTip(names.join(QLatin1Char('\n')) + QLatin1Char('\n') + Translated(text::kShowProblems));
  updateGeometry();
  update();
}

std::vector<std::pair<Severity, QString>> ProblemCounts::Parts() const {
  std::vector<std::pair<Severity, QString>> parts;
  for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Information}) {
    const std::size_t count = problems_.Count(severity);
    if (count > 0 || severity != Severity::Information) parts.emplace_back(severity, QString::number(count));
  }
  return parts;
}

int ProblemCounts::IconSide() const { return fontMetrics().height() - 2; }

QSize ProblemCounts::sizeHint() const {
  int width = 2 * kGap - kApart;
  for (const auto& [severity, count] : Parts()) {
    width += IconSide() + kGap + fontMetrics().horizontalAdvance(count) + kApart;
  }
  return {width, fontMetrics().height() + kGap};
}

void ProblemCounts::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (isDown() || underMouse() || hasFocus()) {
    painter.setPen(hasFocus() ? QPen(CurrentTheme().accent) : QPen(Qt::NoPen));
    painter.setBrush(isDown() ? CurrentTheme().pressed : CurrentTheme().hover);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4.0, 4.0);
  }
  painter.setPen(palette().color(QPalette::WindowText));
  const int side = IconSide();
  int left = kGap;
  for (const auto& [severity, count] : Parts()) {
    PaintSeverity(painter, QRectF(left, (height() - side) / 2.0, side, side), severity);
    left += side + kGap;
    const int width = fontMetrics().horizontalAdvance(count);
    painter.drawText(QRect(left, 0, width, height()), Qt::AlignVCenter, count);
    left += width + kApart;
  }
}

}  // namespace xrpt
