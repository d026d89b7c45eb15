// The steps that undo and redo of one page walk, the oldest first. A new step ends what could be redone.
#pragma once

#include <deque>
#include <vector>

#include "canvas/RVUndo.h"

namespace xrpt {

class History {
 public:
  std::size_t Size() const { return steps_.size(); }
  bool CanUndo() const { return steps_.size() >= 2; }
  bool CanRedo() const { return !undone_.empty(); }
  bool IsEmpty() const { return steps_.empty(); }
  const RVUndo& Newest() const { return steps_.back(); }
  RVUndo& Newest() { return steps_.back(); }
  // The one before the newest. Needs CanUndo.
  const RVUndo& Previous() const { return steps_[steps_.size() - 2]; }
  const RVUndo* NextRedo() const { return undone_.empty() ? nullptr : &undone_.back(); }

  // True when the oldest had to go, because there would be more than `most`.
  bool Add(RVUndo step, std::size_t most);
  // Takes the newest step off and remembers it for redo. Needs CanUndo.
  const RVUndo& StepBack();
  // Puts the step undone last back. Needs CanRedo.
  const RVUndo& StepForward();
  void DeleteLast();
  void ForgetUndone() { undone_.clear(); }
  void Clear();

 private:
  std::deque<RVUndo> steps_;
  std::vector<RVUndo> undone_;
};

}  // namespace xrpt
