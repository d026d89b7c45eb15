// The looks of fields and buttons: flat, with one thin rounded border that takes the accent colour with the keyboard.
// Everything else is the base style's.
#pragma once

#include <QProxyStyle>

namespace xrpt {

class FieldStyle final : public QProxyStyle {
 public:
  FieldStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace xrpt
