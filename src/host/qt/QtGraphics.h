// Painting on anything the toolkit paints on: a window, a picture, a PDF, a printer.
//
// On pixels, strokes name pixels: a line of width 1 from (2, 3) fills the pixels of row 3, and fills and clips end on
// whole pixels, so that frames are crisp. On paper, and when turned, coordinates are exact and a stroke lies around
// them.
#pragma once

#include <QPainter>
#include <map>

#include "host/qt/PictureCache.h"
#include "platform/Graphics.h"

namespace xrpt {

class QtGraphics final : public Graphics {
 public:
  // Both must outlive this; the cache serves as many paintings as its owner likes.
  QtGraphics(QPainter& painter, PictureCache& cache);
  ~QtGraphics() override;
  QtGraphics(const QtGraphics&) = delete;
  QtGraphics& operator=(const QtGraphics&) = delete;

  void Save() override;
  void Restore() override;
  void ClipRect(const RectD& rect) override;
  void ClipRoundRect(const RectD& rect, double radiusX, double radiusY) override;
  void Translate(double dx, double dy) override;
  void Rotate(double degrees) override;

  void FillRect(const RectD& rect, Color color) override;
  void FillRoundRect(const RectD& rect, double radiusX, double radiusY, Color color) override;
  void FillEllipse(const RectD& rect, Color color) override;
  void FillPolygon(std::span<const PointD> points, Color color) override;
  void FillPie(const RectD& rect, double start, double sweep, Color color) override;

  void DrawLine(PointD from, PointD to, const Pen& pen) override;
  void DrawPolyline(std::span<const PointD> points, const Pen& pen) override;
  void DrawPolygon(std::span<const PointD> points, const Pen& pen) override;
  void DrawRect(const RectD& rect, const Pen& pen) override;
  void DrawRoundRect(const RectD& rect, double radiusX, double radiusY, const Pen& pen) override;
  void DrawEllipse(const RectD& rect, const Pen& pen) override;

  void DrawText(const TextRun& run) override;
  void DrawPicture(const PicturePtr& picture, const RectD& target) override;

 private:
  // True where coordinates should end on whole pixels.
  bool IsOnPixels() const;
  QPointF OnPixel(QPointF point) const;
  QRectF Aligned(const RectD& rect) const;
  bool BeginFill(Color color);
  // Sets the pen; false when it leaves no mark. `shift` is what moves a stroke onto its pixels.
  bool BeginStroke(const Pen& pen, double& shift);
  QRectF StrokeRect(const RectD& rect, double shift) const;
  const QFont& FontOf(const Font& font);

  QPainter& painter_;
  PictureCache& cache_;
  bool isRaster_;
  int saved_ = 0;
  std::map<std::pair<std::wstring, FontStyle>, QFont> fonts_;
};

}  // namespace xrpt
