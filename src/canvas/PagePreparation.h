// Lays a page's cards out in a thread of its own, before anybody looks at them: what the host remembers of texts and
// pictures is then there when the view comes by. Draws nothing.
#pragma once

#include <thread>

#include "model/CardList.h"
#include "model/tagDraw.h"

namespace xrpt {

class PagePreparation {
 public:
  // As many as the host remembers texts of; more would push out the first.
  static constexpr std::size_t kMostCards = 20'000;

  // Begins with the top cards, as they are now, and gives up what it was at. The cards' services must outlive this.
  void Begin(const CardList& cards, const tagDraw& draw);
  // Gives up, at the next card at the latest.
  void Stop();
  // Waits until all are done.
  void Finish();

 private:
  // Let go of here and never in the thread: a card that nobody else holds may be changed where it stands.
  SharedCards cards_;
  std::jthread thread_;
};

}  // namespace xrpt
