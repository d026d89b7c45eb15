// A plain shape: a line, a box or an ellipse.
#pragma once

#include "model/CommonRows.h"
#include "model/RVCardControl.h"

namespace xrpt {

enum class PrimitiveType { Line = 0, Box = 1, Ellipse = 2 };
enum class ContourType { Solid = 0, Dash = 1, Dot = 2, DashDot = 3, DashDotDot = 4 };

inline constexpr Word kPrimitiveTypeWords[] = {{"LINE", 0, 60185}, {"BOX", 1, 60186}, {"ELIPSE", 2, 60187}};
inline constexpr Word kContourTypeWords[] = {
    {"SOLID", 0, 60160}, {"DASH", 1, 60161}, {"DOT", 2, 60162}, {"DASH_DOT", 3, 60163}, {"DASH_DOT_DOT", 4, 60164}};

class RVCardPrimitive : public RVCardControl {
 public:
  explicit RVCardPrimitive(ModelServices& services = InstalledServices());

  static const CardClass& Class();
  const CardClass& GetRuntimeClass() const override { return Class(); }
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<RVCardPrimitive>(*this); }

  void Draw(Graphics& graphics, const tagDraw& draw) const override;

  PrimitiveType type = PrimitiveType::Line;
  double size = 10.0;  // thickness of the contour, millimetres; 0 is the thinnest line there is
  ContourType contourType = ContourType::Solid;
  double orientation = 0.0;  // degrees
  bool isBackTransparent = false;

 private:
  static std::span<const CardRow> Rows();
};

}  // namespace xrpt
