// The marks over the cards that have problems, and what they say when the pointer rests on them.
#pragma once

#include <QPoint>
#include <QSize>
#include <QString>
#include <vector>

#include "editor/ProblemMarks.h"

class QPainter;

namespace xrpt {

class RVEditControlWnd;
class RVEditTemplateWnd;

class MarkLayer {
 public:
  MarkLayer(const RVEditControlWnd& frame, const ProblemList& problems) : frame_(frame), problems_(problems) {}

  // Over a view of that size, canvas pixels, that shows that painting of the page: while both stay, so do the marks.
  void Paint(QPainter& painter, QSize view, int painting);
  // Empty where there is no mark.
  QString TipAt(QPoint at, QSize view, int painting);
  // The problems are others now.
  void Forget() { shown_ = {}; }

 private:
  struct Shown {
    QSize size;
    int painting = 0;
    const RVEditTemplateWnd* page = nullptr;
    bool operator==(const Shown&) const = default;
  };
  const std::vector<CardMark>& Marks(QSize view, int painting);

  const RVEditControlWnd& frame_;
  const ProblemList& problems_;
  Shown shown_;
  std::vector<CardMark> marks_;
};

}  // namespace xrpt
