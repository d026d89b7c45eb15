#include "canvas/RVUndo.h"

namespace xrpt {

RVUndo::RVUndo() : selection_(std::make_shared<RVSelection>()), page_(std::make_shared<RVGlobalProperties>()) {}

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
  const bool changed = !current.HasSameCards(*selection_);
  if (changed) selection_ = std::make_shared<RVSelection>(current);
  selectionChanged_ = selectionChanged_ || changed;
  return changed;
}

bool RVUndo::SetChange(const RVGlobalProperties& current, bool withGrid) {
  const bool sameGrid = !withGrid || (page_->xgrid == current.xgrid && page_->ygrid == current.ygrid);
  const bool changed = !sameGrid || *page_ != current;
  if (changed) page_ = std::make_shared<RVGlobalProperties>(current);
  pageChanged_ = pageChanged_ || changed;
  return changed;
}

}  // namespace xrpt
