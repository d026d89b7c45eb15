#include "canvas/RVUndo.h"

namespace xrpt {
namespace {

// Order and rectangles do not count.
bool SameCards(const RVSelection& left, const RVSelection& right) {
  if (left.Size() != right.Size()) return false;
  std::vector<std::wstring> a = left.Ids();
  std::vector<std::wstring> b = right.Ids();
  std::sort(a.begin(), a.end());
  std::sort(b.begin(), b.end());
  return a == b;
}

}  // namespace

RVUndo RVUndo::After(const RVUndo& newest) {
  RVUndo step = newest;
  step.cardsChanged_ = step.selectionChanged_ = step.pageChanged_ = false;
  step.name = {};
  return step;
}

bool RVUndo::SetChange(const CardList& current) {
  const bool changed = !current.Equals(cards_);
  if (changed) cards_ = current.Share(cards_);
  cardsChanged_ = cardsChanged_ || changed;
  return changed;
}

bool RVUndo::SetChange(const RVSelection& current) {
  const bool changed = !SameCards(selection_, current);
  if (changed) selection_ = current;
  selectionChanged_ = selectionChanged_ || changed;
  return changed;
}

bool RVUndo::SetChange(const RVGlobalProperties& current) {
  const bool changed = page_ != current;
  if (changed) page_ = current;
  pageChanged_ = pageChanged_ || changed;
  return pageChanged_;
}

}  // namespace xrpt
