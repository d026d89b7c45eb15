#include "desktop/look/FieldStyle.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include "desktop/look/Theme.h"

namespace xrpt {

namespace {

constexpr double kRadius = 4.0;

bool IsEnabled(const QStyleOption& option) { return option.state & QStyle::State_Enabled; }
bool HasFocus(const QStyleOption& option) { return option.state & QStyle::State_HasFocus; }

QColor BorderOf(const QStyleOption& option) {
  if (HasFocus(option) && IsEnabled(option)) return CurrentTheme().accent;
  return IsEnabled(option) ? CurrentTheme().fieldBorder : CurrentTheme().border;
}

void DrawBox(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& border) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(border, 1.0));
  painter.setBrush(fill);
  painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  painter.restore();
}

void DrawField(QPainter& painter, const QStyleOption& option) {
  DrawBox(painter, option.rect, IsEnabled(option) ? CurrentTheme().field : CurrentTheme().window, BorderOf(option));
}

// A small arrow head in the middle of a rectangle.
void DrawChevron(QPainter& painter, const QRect& rect, bool isUp, bool isEnabled) {
  const QPointF middle = QRectF(rect).center() + QPointF(0.5, 0.5);
  const double rise = isUp ? -1.6 : 1.6;
  const QPointF points[] = {middle + QPointF(-3.2, -rise), middle + QPointF(0, rise), middle + QPointF(3.2, -rise)};
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  QColor color = CurrentTheme().muted;
  if (!isEnabled) color.setAlphaF(0.45F);
  painter.setPen(QPen(color, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(points, 3);
  painter.restore();
}

void DrawButton(QPainter& painter, const QStyleOption& option) {
  const ThemeColors& colors = CurrentTheme();
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  const bool isDefault = button && (button->features & QStyleOptionButton::DefaultButton);
  const bool isDown = option.state & (QStyle::State_Sunken | QStyle::State_On);
  const bool isHovered = IsEnabled(option) && (option.state & QStyle::State_MouseOver);
  const QColor fill = isDown ? colors.pressed : isHovered ? colors.hover : colors.field;
  DrawBox(painter, option.rect, fill, isDefault && IsEnabled(option) ? colors.accent : BorderOf(option));
}

void DrawCheck(QPainter& painter, const QStyleOption& option) {
  const ThemeColors& colors = CurrentTheme();
  const bool isSet = option.state & (QStyle::State_On | QStyle::State_NoChange);
  const QColor fill = !IsEnabled(option) ? colors.window : isSet ? colors.accent : colors.field;
  // A box that is filled with the accent needs another colour to show the keyboard on it.
  const bool isFilled = isSet && IsEnabled(option);
  DrawBox(painter, option.rect, fill, !isFilled ? BorderOf(option) : HasFocus(option) ? colors.text : colors.accent);
  if (!isSet) return;
  const QRectF box(option.rect);
  const QPointF check[] = {{box.left() + box.width() * 0.25, box.top() + box.height() * 0.52},
                           {box.left() + box.width() * 0.43, box.top() + box.height() * 0.70},
                           {box.left() + box.width() * 0.76, box.top() + box.height() * 0.32}};
  const QPointF dash[] = {{box.left() + box.width() * 0.28, box.center().y()},
                          {box.right() - box.width() * 0.28, box.center().y()}};
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(
      QPen(IsEnabled(option) ? colors.onAccent : colors.muted, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  option.state& QStyle::State_NoChange ? painter.drawPolyline(dash, 2) : painter.drawPolyline(check, 3);
  painter.restore();
}

// One of several to choose from: a ring, filled in the middle when it is the one.
void DrawRadio(QPainter& painter, const QStyleOption& option) {
  const ThemeColors& colors = CurrentTheme();
  const bool isSet = option.state & QStyle::State_On;
  const QRectF ring = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(isSet && IsEnabled(option) ? colors.accent : BorderOf(option), 1.0));
  painter.setBrush(IsEnabled(option) ? colors.field : colors.window);
  painter.drawEllipse(ring);
  if (isSet) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(IsEnabled(option) ? colors.accent : colors.muted);
    painter.drawEllipse(ring.center(), ring.width() * 0.28, ring.height() * 0.28);
  }
  painter.restore();
}

void DrawSpinBox(const QStyle& style, QPainter& painter, const QStyleOptionComplex& option, const QWidget* widget) {
  DrawField(painter, option);
  const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(&option);
  const auto part = [&](QStyle::SubControl which) {
    return style.subControlRect(QStyle::CC_SpinBox, &option, which, widget);
  };
  const auto steps = spin ? spin->stepEnabled : QAbstractSpinBox::StepNone;
  DrawChevron(painter, part(QStyle::SC_SpinBoxUp).translated(0, 1), true, steps & QAbstractSpinBox::StepUpEnabled);
  DrawChevron(painter, part(QStyle::SC_SpinBoxDown).translated(0, -1), false,
              steps & QAbstractSpinBox::StepDownEnabled);
}

void DrawComboBox(const QStyle& style, QPainter& painter, const QStyleOptionComplex& option, const QWidget* widget) {
  DrawField(painter, option);
  const QRect arrow = style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, widget);
  DrawChevron(painter, arrow, false, IsEnabled(option));
}

}  // namespace

FieldStyle::FieldStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void FieldStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  switch (element) {
    case PE_PanelLineEdit: {
      const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
      if (frame && frame->lineWidth > 0) DrawField(*painter, *option);
      return;
    }
    case PE_FrameLineEdit:
      return DrawField(*painter, *option);
    case PE_Frame:
      if (!widget || !widget->inherits("QPlainTextEdit")) break;
      return DrawField(*painter, *option);
    case PE_PanelButtonCommand:
    case PE_PanelButtonBevel:
    case PE_PanelButtonTool:
      return DrawButton(*painter, *option);
    case PE_IndicatorCheckBox:
      return DrawCheck(*painter, *option);
    case PE_IndicatorRadioButton:
      return DrawRadio(*painter, *option);
    case PE_FrameFocusRect:
      if (widget && (widget->inherits("QComboBox") || widget->inherits("QPushButton"))) return;
      break;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void FieldStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
  if (control == CC_SpinBox) return DrawSpinBox(*this, *painter, *option, widget);
  if (control == CC_ComboBox) return DrawComboBox(*this, *painter, *option, widget);
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_Slider && HasFocus(*option))
    DrawBox(*painter, option->rect, Qt::transparent, CurrentTheme().accent);
}

// Buttons of dialogs say what they do in words alone.
int FieldStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, data);
}

int FieldStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  if (metric == PM_ScrollBarExtent) return 12;
  return QProxyStyle::pixelMetric(metric, option, widget);
}

}  // namespace xrpt
