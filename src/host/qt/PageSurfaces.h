// What `xrpt render`, export and the clipboard paint pages on: a PNG picture, or a PDF document page by page.
#pragma once

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>
#include <optional>
#include <string>

#include "host/qt/QtGraphics.h"

namespace xrpt {

// White to begin with; one unit is one pixel.
class PngSurface {
 public:
  static constexpr qint64 kMaxPixels = 256 << 20;

  PngSurface(int width, int height, double dpi = 96.0);
  // False for a size that cannot be painted; then there is nothing to draw on.
  bool IsValid() const { return graphics_.has_value(); }
  xrpt::Graphics& Graphics() { return *graphics_; }
  // The file's bytes. Nothing may be drawn afterwards.
  std::string Finish();

 private:
  QImage image_;
  QPainter painter_;
  PictureCache cache_;
  std::optional<QtGraphics> graphics_;
};

// Vectors and text; one unit is 1/`unitsPerInch` of an inch, from the page's own corner (no margins).
class PdfSurface {
 public:
  explicit PdfSurface(const std::wstring& title, double unitsPerInch = 96.0);
  // Ends the page before it. False for a page of no size, which is left out.
  bool BeginPage(SizeD millimetres);
  xrpt::Graphics& Graphics() { return *graphics_; }
  // The file's bytes, empty when no page was begun. Nothing may be drawn afterwards.
  std::string Finish();

 private:
  static constexpr int kDotsPerInch = 1200;

  double unitsPerInch_;
  QBuffer buffer_;
  QPdfWriter writer_;
  QPainter painter_;
  PictureCache cache_;
  std::optional<QtGraphics> graphics_;
};

}  // namespace xrpt
