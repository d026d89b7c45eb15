#include "canvas/History.h"

namespace xrpt {

void History::Add(RVUndo step) {
  undone_.clear();
  steps_.push_back(std::move(step));
  if (steps_.size() > kMostSteps) steps_.pop_front();
}

const RVUndo& History::StepBack() {
  undone_.push_back(std::move(steps_.back()));
  steps_.pop_back();
  return undone_.back();
}

const RVUndo& History::StepForward() {
  steps_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  return steps_.back();
}

void History::DeleteLast() {
  if (!steps_.empty()) steps_.pop_back();
}

void History::Clear() {
  steps_.clear();
  undone_.clear();
}

void History::SetSurround(Color color) {
  for (RVUndo& step : steps_) step.SetSurround(color);
  for (RVUndo& step : undone_) step.SetSurround(color);
}

}  // namespace xrpt
