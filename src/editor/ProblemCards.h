// From a problem to the card it is about, and what can be done about it.
#pragma once

#include <optional>

#include "formulas/checks/Problem.h"

namespace xrpt {

class RVEditControlWnd;

// Where the problem's card stands now, pages from 0; nothing for a problem without a card, or when it is gone.
struct CardSpot {
  std::size_t page = 0;
  std::size_t card = 0;
};
std::optional<CardSpot> FindCard(const RVEditControlWnd& frame, const Problem& problem);

// What the card is called in lists; empty without one.
std::wstring CardTitle(const RVEditControlWnd& frame, const Problem& problem);

// Shows the problem's page and selects its card there. False when there is nothing to show.
bool ShowProblem(RVEditControlWnd& frame, const Problem& problem);

// Carries the problem's remedy out as one step of the history. False when it has none or its card is gone.
bool ApplyRemedy(RVEditControlWnd& frame, const Problem& problem);

}  // namespace xrpt
