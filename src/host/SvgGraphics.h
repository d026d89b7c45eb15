// A page as SVG: text stays text, lines stay vectors, clipping is kept, pictures are embedded. The same drawing gives
// the same bytes.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/Graphics.h"

namespace xrpt {

class SvgGraphics final : public Graphics {
 public:
  // The drawing covers `size` units of its own and is `millimetres` large on paper.
  SvgGraphics(SizeD size, SizeD millimetres);
  // The whole document. Nothing may be drawn afterwards.
  std::string Finish();

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
  void OpenGroup(const std::string& attributes);
  void CloseGroups();
  void Element(const std::string& shape, const std::string& paint);
  // The name under which the picture was embedded, empty for one that cannot be.
  std::string NameOf(const PicturePtr& picture);

  std::string out_;
  std::vector<int> groups_ = {0};  // open groups of each saved state
  int clips_ = 0;
  std::map<PicturePtr, std::string> pictures_;
};

}  // namespace xrpt
