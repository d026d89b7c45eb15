// What is done to pages of many cards, and what it costs: every command of the catalogue, taken back and made again,
// and what else hands do there.
#pragma once

#include <functional>
#include <memory>

#include "canvas/CardNotes.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

// A frame whose page in the middle of three holds so many cards.
class Desk {
 public:
  virtual ~Desk() = default;
  virtual RVEditControlWnd& Editor() = 0;
  // Everything that a deed posted and marked to be painted is done.
  virtual void Settle() { Editor().Queue().Drain(); }

  // One card in `share` is selected, and none is locked, hidden or grouped.
  void Begin(std::size_t share);
  // Of the work and all that follows from it, milliseconds.
  double Cost(const std::function<void()>& work);

 protected:
  // Makes the pages and the cards.
  void Fill(std::size_t count);

 private:
  CardNotes notes_;  // of the page: what is locked, hidden and grouped
};

// Prints what everything costs on desks of each count of cards; false when something grows too fast or takes too long.
bool MeasureAll(const std::function<std::unique_ptr<Desk>(std::size_t count)>& makeDesk);

}  // namespace xrpt
