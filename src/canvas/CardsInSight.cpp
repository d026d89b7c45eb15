#include "canvas/CardsInSight.h"

#include <algorithm>

#include "canvas/PagePainter.h"

namespace xrpt {
namespace {

constexpr int kCell = 64;         // pixels
constexpr int kMostCells = 1024;  // along one side; a window is smaller
constexpr int kLargeCard = 16;    // cells

int CellAt(int pixel, int from, int cells) { return std::clamp((pixel - from) / kCell, 0, std::max(cells - 1, 0)); }

}  // namespace

struct CardsInSight::Cells {
  int left, top, right, bottom;  // all of them included

  int Count() const { return (right - left + 1) * (bottom - top + 1); }
  template <class Visit>
  void ForEach(int columns, const Visit& visit) const {
    for (int row = top; row <= bottom; ++row) {
      for (int column = left; column <= right; ++column) visit(static_cast<std::size_t>(row * columns + column));
    }
  }
};

CardsInSight::CardsInSight(const CardList& cards, const PagePlacement& place, const Rect& client,
                           const std::function<bool(const RVCardControl&)>& shows)
    : client_(client) {
  if (!place.IsValid()) return;
  columns_ = std::clamp(client.Width() / kCell + 1, 1, kMostCells);
  rows_ = std::clamp(client.Height() / kCell + 1, 1, kMostCells);
  for (std::size_t i = 0; i < cards.Size(); ++i) {
    const Rect rect = ToPixels(place, RectOf(cards[i]));
    if (Touches(client, rect) && (!shows || shows(cards[i]))) cards_.push_back({i, rect});
  }
  Sort();
}

CardsInSight::Cells CardsInSight::CellsOf(const Rect& rect) const {
  return {CellAt(rect.left, client_.left, columns_), CellAt(rect.top, client_.top, rows_),
          CellAt(rect.right, client_.left, columns_), CellAt(rect.bottom, client_.top, rows_)};
}

// Counted first and then put in place, so that a page of many cards takes two long lists and no short ones.
void CardsInSight::Sort() {
  starts_.assign(static_cast<std::size_t>(columns_ * rows_) + 1, 0);
  for (std::uint32_t i = 0; i < cards_.size(); ++i) {
    const Cells cells = CellsOf(cards_[i].rect);
    if (cells.Count() > kLargeCard) {
      large_.push_back(i);
    } else {
      cells.ForEach(columns_, [this](std::size_t cell) { ++starts_[cell + 1]; });
    }
  }
  for (std::size_t cell = 1; cell < starts_.size(); ++cell) starts_[cell] += starts_[cell - 1];
  sorted_.resize(starts_.back());
  std::vector<std::size_t> next = starts_;
  for (std::uint32_t i = 0; i < cards_.size(); ++i) {
    const Cells cells = CellsOf(cards_[i].rect);
    if (cells.Count() <= kLargeCard) cells.ForEach(columns_, [&](std::size_t cell) { sorted_[next[cell]++] = i; });
  }
}

CardsInSight::Places CardsInSight::Touching(const Rect& part) const {
  Places found;
  if (cards_.empty()) return found;
  const auto add = [&](std::uint32_t place) {
    if (Touches(part, cards_[place].rect)) found.push_back(place);
  };
  std::for_each(large_.begin(), large_.end(), add);
  CellsOf(part).ForEach(columns_, [&](std::size_t cell) {
    for (std::size_t at = starts_[cell]; at < starts_[cell + 1]; ++at) add(sorted_[at]);
  });
  std::sort(found.begin(), found.end());
  found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

std::optional<std::uint32_t> CardsInSight::At(Point point) const {
  for (const std::uint32_t place : Touching({point.x, point.y, point.x, point.y})) {
    if (cards_[place].rect.Contains(point)) return place;
  }
  return std::nullopt;
}

}  // namespace xrpt
