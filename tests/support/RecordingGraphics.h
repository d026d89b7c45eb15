// A drawing context that remembers what it is told: what a card draws, as data to look at or to draw again elsewhere.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/Graphics.h"

namespace xrpt {

enum class CallKind {
  Save,
  Restore,
  ClipRect,
  ClipRoundRect,
  Translate,
  Rotate,
  FillRect,
  FillRoundRect,
  FillEllipse,
  FillPolygon,
  FillPie,
  Line,
  Polyline,
  Polygon,
  Rect,
  RoundRect,
  Ellipse,
  Text,
  Picture
};

struct DrawCall {
  CallKind kind;
  RectD rect{};
  std::vector<PointD> points{};
  double first = 0.0;  // radius, offset or angle
  double second = 0.0;
  Color color = kNoColor;
  Pen pen{};
  std::wstring text{};
  Font font{};
  double pixelSize = 0.0;
  PicturePtr picture{};
};

class RecordingGraphics final : public Graphics {
 public:
  std::vector<DrawCall> calls;
  int depth = 0;  // of saved states

  std::size_t Count(CallKind kind) const {
    return static_cast<std::size_t>(
        std::count_if(calls.begin(), calls.end(), [kind](const DrawCall& call) { return call.kind == kind; }));
  }
  // The first call of a kind; a test that expects one fails without it.
  const DrawCall& First(CallKind kind) const {
    const auto found =
        std::find_if(calls.begin(), calls.end(), [kind](const DrawCall& call) { return call.kind == kind; });
    if (found == calls.end()) throw std::runtime_error("no such call was drawn");
    return *found;
  }
  // The texts in the order they were drawn.
  std::vector<std::wstring> Texts() const {
    std::vector<std::wstring> texts;
    for (const DrawCall& call : calls) {
      if (call.kind == CallKind::Text) texts.push_back(call.text);
    }
    return texts;
  }

  void Save() override {
    ++depth;
    calls.push_back({CallKind::Save});
  }
  void Restore() override {
    --depth;
    calls.push_back({CallKind::Restore});
  }
  void ClipRect(const RectD& rect) override { calls.push_back({CallKind::ClipRect, rect}); }
  void ClipRoundRect(const RectD& rect, double x, double y) override {
    calls.push_back({CallKind::ClipRoundRect, rect, {}, x, y});
  }
  void Translate(double dx, double dy) override { calls.push_back({CallKind::Translate, {}, {}, dx, dy}); }
  void Rotate(double degrees) override { calls.push_back({CallKind::Rotate, {}, {}, degrees}); }

  void FillRect(const RectD& rect, Color color) override { Fill(CallKind::FillRect, rect, color); }
  void FillRoundRect(const RectD& rect, double x, double y, Color color) override {
    calls.push_back({CallKind::FillRoundRect, rect, {}, x, y, color});
  }
  void FillEllipse(const RectD& rect, Color color) override { Fill(CallKind::FillEllipse, rect, color); }
  void FillPolygon(std::span<const PointD> points, Color color) override {
    calls.push_back({CallKind::FillPolygon, {}, {points.begin(), points.end()}, 0, 0, color});
  }
  void FillPie(const RectD& rect, double start, double sweep, Color color) override {
    calls.push_back({CallKind::FillPie, rect, {}, start, sweep, color});
  }

  void DrawLine(PointD from, PointD to, const Pen& pen) override { Stroke(CallKind::Line, {}, {from, to}, pen); }
  void DrawPolyline(std::span<const PointD> points, const Pen& pen) override {
    Stroke(CallKind::Polyline, {}, {points.begin(), points.end()}, pen);
  }
  void DrawPolygon(std::span<const PointD> points, const Pen& pen) override {
    Stroke(CallKind::Polygon, {}, {points.begin(), points.end()}, pen);
  }
  void DrawRect(const RectD& rect, const Pen& pen) override { Stroke(CallKind::Rect, rect, {}, pen); }
  void DrawRoundRect(const RectD& rect, double x, double y, const Pen& pen) override {
    calls.push_back({CallKind::RoundRect, rect, {}, x, y, kNoColor, pen});
  }
  void DrawEllipse(const RectD& rect, const Pen& pen) override { Stroke(CallKind::Ellipse, rect, {}, pen); }

  // The rectangle's left and bottom are where the text begins; its width is the run's.
  void DrawText(const TextRun& run) override {
    const RectD place(run.origin.x, run.origin.y - run.pixelSize, run.origin.x + run.width, run.origin.y);
    calls.push_back({CallKind::Text, place, {}, 0, 0, run.color, {}, std::wstring(run.text), *run.font, run.pixelSize});
  }
  void DrawPicture(const PicturePtr& picture, const RectD& target) override {
    calls.push_back({CallKind::Picture, target});
    calls.back().picture = picture;
  }

 private:
  void Fill(CallKind kind, const RectD& rect, Color color) { calls.push_back({kind, rect, {}, 0, 0, color}); }
  void Stroke(CallKind kind, const RectD& rect, std::vector<PointD> points, const Pen& pen) {
    calls.push_back({kind, rect, std::move(points), 0, 0, kNoColor, pen});
  }
};

}  // namespace xrpt
