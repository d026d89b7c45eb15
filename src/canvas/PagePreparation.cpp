#include "canvas/PagePreparation.h"

#include <algorithm>

#include "platform/Graphics.h"

namespace xrpt {
namespace {

class NoGraphics final : public Graphics {
 public:
  void Save() override {}
  void Restore() override {}
  void ClipRect(const RectD&) override {}
  void ClipRoundRect(const RectD&, double, double) override {}
  void Translate(double, double) override {}
  void Rotate(double) override {}
  void FillRect(const RectD&, Color) override {}
  void FillRoundRect(const RectD&, double, double, Color) override {}
  void FillEllipse(const RectD&, Color) override {}
  void FillPolygon(std::span<const PointD>, Color) override {}
  void FillPie(const RectD&, double, double, Color) override {}
  void DrawLine(PointD, PointD, const Pen&) override {}
  void DrawPolyline(std::span<const PointD>, const Pen&) override {}
  void DrawPolygon(std::span<const PointD>, const Pen&) override {}
  void DrawRect(const RectD&, const Pen&) override {}
  void DrawRoundRect(const RectD&, double, double, const Pen&) override {}
  void DrawEllipse(const RectD&, const Pen&) override {}
  void DrawText(const TextRun&) override {}
  void DrawPicture(const PicturePtr&, const RectD&) override {}
};

void LayOut(const RVCardControl& card, const tagDraw& draw) {
  NoGraphics nowhere;
  try {
    card.Draw(nowhere, draw);
  } catch (...) {
    // Whoever paints the card says that it cannot be drawn.
  }
}

}  // namespace

// A snapshot of the cards is never changed, and lives as long as the thread looks at it.
void PagePreparation::Begin(const CardList& cards, const tagDraw& draw) {
  Stop();
  cards_ = cards.Share();
  thread_ = std::jthread([this, draw](const std::stop_token& stop) {
    const std::size_t count = std::min(cards_.Size(), kMostCards);
    for (std::size_t i = 0; i < count && !stop.stop_requested(); ++i) LayOut(*cards_[i], draw);
  });
}

void PagePreparation::Stop() {
  thread_ = {};
  cards_ = {};
}

void PagePreparation::Finish() {
  if (thread_.joinable()) thread_.join();
}

}  // namespace xrpt
