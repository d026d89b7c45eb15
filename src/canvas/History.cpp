#include "canvas/History.h"

namespace xrpt {

bool History::Add(RVUndo step, std::size_t most) {
  undone_.clear();
  steps_.push_back(std::move(step));
  if (CanUndo()) steps_[steps_.size() - 2].Pack(steps_.back());
  if (steps_.size() <= most) return false;
  steps_.pop_front();
  return true;
}

const RVUndo& History::StepBack() {
  undone_.push_back(std::move(steps_.back()));
  steps_.pop_back();
  undone_.back().Pack(steps_.back());
  return undone_.back();
}

const RVUndo& History::StepForward() {
  steps_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  if (CanUndo()) steps_[steps_.size() - 2].Pack(steps_.back());
  return steps_.back();
}

void History::DeleteLast() {
  if (!steps_.empty()) steps_.pop_back();
}

void History::Clear() {
  steps_.clear();
  undone_.clear();
}

}  // namespace xrpt
