// Cards wholly behind one opaque card in front of them.
#include "formulas/checks/CheckTexts.h"
#include "formulas/checks/EditorChecks.h"

namespace xrpt {
namespace {

bool Covers(const RectD& front, const RectD& back) {
  return front.left <= back.left && front.top <= back.top && front.right >= back.right && front.bottom >= back.bottom;
}

// The opaque cards seen so far, by the squares of a grid they reach into: a card can only be behind one that shares the
// square its own corner is in.
class Covering {
 public:
  explicit Covering(const PageFacts& cards) {
    RectD all = cards.empty() ? RectD() : cards.front()->area;
    for (const CardFacts* card : cards) Extend(all, card->area);
    origin_ = {all.left, all.top};
    square_ = {std::max(all.Width() / kSquares, 1e-6), std::max(all.Height() / kSquares, 1e-6)};
  }

  bool Hides(const CardFacts& card) const {
    for (const CardFacts* front : squares_[Row(card.area.top)][Column(card.area.left)]) {
      if (Covers(front->area, card.area)) return true;
    }
    return false;
  }

  void Add(const CardFacts& card) {
    const std::size_t right = Column(card.area.right);
    const std::size_t bottom = Row(card.area.bottom);
    for (std::size_t row = Row(card.area.top); row <= bottom; ++row) {
      for (std::size_t column = Column(card.area.left); column <= right; ++column)
        squares_[row][column].push_back(&card);
    }
  }

 private:
  static constexpr int kSquares = 24;
  using Square = std::vector<const CardFacts*>;

  static void Extend(RectD& all, const RectD& area) {
    all = {std::min(all.left, area.left), std::min(all.top, area.top), std::max(all.right, area.right),
           std::max(all.bottom, area.bottom)};
  }
  static std::size_t Place(double distance, double square) {
    return static_cast<std::size_t>(std::clamp(trunci(distance / square), 0, kSquares - 1));
  }
  std::size_t Row(double y) const { return Place(y - origin_.y, square_.height); }
  std::size_t Column(double x) const { return Place(x - origin_.x, square_.width); }

  PointD origin_;
  SizeD square_;
  Square squares_[kSquares][kSquares];
};

bool HasSize(const RectD& area) { return area.Width() >= 0.0 && area.Height() >= 0.0; }

// What a hidden card covers, the one in front of it covers too.
void CheckPage(const PageFacts& cards, int page, std::vector<Note>& notes) {
  Covering covering(cards);
  for (std::size_t i = 0; i < cards.size(); ++i) {
    const CardFacts& card = *cards[i];
    if (!HasSize(card.area)) continue;
    if (covering.Hides(card)) {
      notes.push_back({{page, static_cast<int>(i)}, {}, {text::kBringToFront, {{Change::Kind::MoveToFront, {}, {}}}}});
    } else if (card.isOpaque) {
      covering.Add(card);
    }
  }
}

}  // namespace

std::vector<Note> HiddenCards(const ReportFacts& report) {
  std::vector<Note> notes;
  int page = 0;
  for (const PageFacts& cards : report.pages) CheckPage(cards, ++page, notes);
  return notes;
}

}  // namespace xrpt
