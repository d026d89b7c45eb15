// The steps that undo and redo walk: at most 20, the oldest first. A new step ends what could be redone.
#pragma once

#include <deque>
#include <vector>

#include "canvas/RVUndo.h"

namespace xrpt {

class History {
 public:
  static constexpr std::size_t kMostSteps = 20;

  std::size_t Size() const { return steps_.size(); }
  bool CanUndo() const { return steps_.size() >= 2; }
  bool CanRedo() const { return !undone_.empty(); }
  bool IsEmpty() const { return steps_.empty(); }
  const RVUndo& Newest() const { return steps_.back(); }
  RVUndo& Newest() { return steps_.back(); }
  const RVUndo* NextRedo() const { return undone_.empty() ? nullptr : &undone_.back(); }

  void Add(RVUndo step);
  // Takes the newest step off and remembers it for redo. Needs CanUndo.
  const RVUndo& StepBack();
  // Puts the step undone last back. Needs CanRedo.
  const RVUndo& StepForward();
  void DeleteLast();
  void Clear();
  void SetSurround(Color color);

 private:
  std::deque<RVUndo> steps_;
  std::vector<RVUndo> undone_;
};

}  // namespace xrpt
