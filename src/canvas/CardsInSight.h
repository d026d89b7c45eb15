// The cards of a page that a window shows, found by where they are without walking the page again: a pointer that moves
// and a text that moves concern the few cards around it. Good until a card, the placement or the window changes.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "canvas/Placement.h"
#include "model/CardList.h"

namespace xrpt {

class CardsInSight {
 public:
  struct Card {
    std::size_t index;  // in the page's list
    Rect rect;          // pixels
  };
  using Places = std::vector<std::uint32_t>;  // of cards in `Cards()`, rising: the top card first

  CardsInSight() = default;
  // All cards, or those that are shown.
  CardsInSight(const CardList& cards, const PagePlacement& place, const Rect& client,
               const std::function<bool(const RVCardControl&)>& shows = {});

  // Top card first; those that only touch the window's edge are seen too.
  const std::vector<Card>& Cards() const { return cards_; }
  // Those that meet a rectangle, be it at an edge.
  Places Touching(const Rect& part) const;
  // The top one that holds the point, its right and bottom edge apart.
  std::optional<std::uint32_t> At(Point point) const;

 private:
  struct Cells;
  Cells CellsOf(const Rect& rect) const;
  void Sort();

  Rect client_;
  int columns_ = 0;
  int rows_ = 0;
  std::vector<Card> cards_;
  Places large_;                     // cards over many cells, looked at wherever one asks
  Places sorted_;                    // the others, cell after cell
  std::vector<std::size_t> starts_;  // where each cell begins among them
};

}  // namespace xrpt
