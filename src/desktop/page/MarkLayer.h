// The marks over the cards that have problems, and what they say when the pointer rests on them.
#pragma once

#include <QPoint>
#include <QString>

#include "editor/ProblemMarks.h"

class QPainter;

namespace xrpt {

class RVEditControlWnd;

class MarkLayer {
 public:
  MarkLayer(const RVEditControlWnd& frame, const ProblemList& problems) : frame_(frame), problems_(problems) {}

  // Over a view of that size, canvas pixels.
  void Paint(QPainter& painter, QSize view) const;
  // Empty where there is no mark.
  QString TipAt(QPoint at, QSize view) const;

 private:
  std::vector<CardMark> Marks(QSize view) const;

  const RVEditControlWnd& frame_;
  const ProblemList& problems_;
};

}  // namespace xrpt
