// What a page is painted with. Screen, PNG, SVG, PDF and print each implement it; cards never know which one they get.
// Coordinates are the device's units as doubles, y downwards, already translated by whoever made the drawing context;
// angles are degrees, counter-clockwise.
#pragma once

#include <span>
#include <string_view>

#include "platform/Color.h"
#include "platform/Fonts.h"
#include "platform/Geometry.h"
#include "platform/Picture.h"

namespace xrpt {

enum class PenStyle { Solid, Dash, Dot, DashDot, DashDotDot, None };

struct Pen {
  Color color = kBlack;
  double width = 1.0;  // device units; 0 draws the thinnest line the device has
  PenStyle style = PenStyle::Solid;
};

// A run of text on one line. The device places it so that it starts at `origin` (left end of the baseline) and takes
// `width` device units; the font's em is `pixelSize` units high whatever the font's own size says.
struct TextRun {
  std::wstring_view text;
  const Font* font = nullptr;
  double pixelSize = 10.0;
  PointD origin;
  double width = 0.0;
  Color color = kBlack;
  // The width over what the text takes by nature; 0 when nobody knows, and the device must measure it again.
  double stretch = 0.0;
};

class Graphics {
 public:
  virtual ~Graphics() = default;

  // Clip and transform are saved and restored together.
  virtual void Save() = 0;
  virtual void Restore() = 0;
  virtual void ClipRect(const RectD& rect) = 0;
  virtual void ClipRoundRect(const RectD& rect, double radiusX, double radiusY) = 0;
  virtual void Translate(double dx, double dy) = 0;
  virtual void Rotate(double degrees) = 0;

  // Filled without outline. kNoColor fills nothing.
  virtual void FillRect(const RectD& rect, Color color) = 0;
  virtual void FillRoundRect(const RectD& rect, double radiusX, double radiusY, Color color) = 0;
  virtual void FillEllipse(const RectD& rect, Color color) = 0;
  virtual void FillPolygon(std::span<const PointD> points, Color color) = 0;
  // A slice of the ellipse in `rect`: from `start`, `sweep` degrees on; 0 is three o'clock.
  virtual void FillPie(const RectD& rect, double start, double sweep, Color color) = 0;

  virtual void DrawLine(PointD from, PointD to, const Pen& pen) = 0;
  virtual void DrawPolyline(std::span<const PointD> points, const Pen& pen) = 0;
  virtual void DrawPolygon(std::span<const PointD> points, const Pen& pen) = 0;
  virtual void DrawRect(const RectD& rect, const Pen& pen) = 0;
  virtual void DrawRoundRect(const RectD& rect, double radiusX, double radiusY, const Pen& pen) = 0;
  virtual void DrawEllipse(const RectD& rect, const Pen& pen) = 0;

  virtual void DrawText(const TextRun& run) = 0;
  virtual void DrawPicture(const PicturePtr& picture, const RectD& target) = 0;
};

// Counterpart of Save and Restore.
class GraphicsState {
 public:
  explicit GraphicsState(Graphics& graphics) : graphics_(graphics) { graphics_.Save(); }
  ~GraphicsState() { graphics_.Restore(); }
  GraphicsState(const GraphicsState&) = delete;
  GraphicsState& operator=(const GraphicsState&) = delete;

 private:
  Graphics& graphics_;
};

}  // namespace xrpt
