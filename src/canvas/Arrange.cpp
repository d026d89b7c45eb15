#include "canvas/Arrange.h"

#include <limits>
#include <numeric>

namespace xrpt {
namespace {

// One axis of a rectangle.
struct Axis {
  double CardRect::*near;
  double CardRect::*size;
  double ArrangePage::*page;
  double ArrangePage::*pixel;

  double Far(const CardRect& rect) const { return rect.*near + rect.*size; }
};

constexpr Axis kHorizontal{&CardRect::x, &CardRect::width, &ArrangePage::width, &ArrangePage::pixelX};
constexpr Axis kVertical{&CardRect::y, &CardRect::height, &ArrangePage::height, &ArrangePage::pixelY};

const Axis& AxisOf(bool vertical) { return vertical ? kVertical : kHorizontal; }

// What reaches over the far edge ends one pixel inside.
void Clamp(const Axis& axis, CardRect& rect, const ArrangePage& page) {
  if (rect.*axis.near < 0.0) {
    rect.*axis.near = 0.0;
  } else if (axis.Far(rect) >= page.*axis.page) {
    rect.*axis.near -= axis.Far(rect) - page.*axis.page + page.*axis.pixel;
  }
}

// Puts a part of the rectangle (0 near edge, 0.5 centre, 1 far edge) at a place.
void Put(const Axis& axis, CardRect& rect, double part, double place) {
  rect.*axis.near = place - part * rect.*axis.size;
}

// Which axis and which part of a rectangle a mode is about.
struct Mode {
  const Axis* axis = nullptr;
  double part = 0.0;
};

Mode ModeOf(int mode) {
  switch (mode) {
    case kAlignLeftEdges:
      return {&kHorizontal, 0.0};
    case kAlignRightEdges:
      return {&kHorizontal, 1.0};
    case kAlignTopEdges:
      return {&kVertical, 0.0};
    case kAlignBottomEdges:
      return {&kVertical, 1.0};
    case kAlignHorizontalCenters:
      return {&kHorizontal, 0.5};
    case kAlignVerticalCenters:
      return {&kVertical, 0.5};
    default:
      return {};
  }
}

struct Extent {
  double near;
  double far;
};

// From the page's far edge and 0, so that what lies wholly outside the page does not widen the box.
Extent ExtentOnPage(const Axis& axis, const Rects& rects, const ArrangePage& page) {
  Extent extent{page.*axis.page, 0.0};
  for (const CardRect& rect : rects) {
    extent.near = std::min(extent.near, rect.*axis.near);
    extent.far = std::max(extent.far, axis.Far(rect));
  }
  return extent;
}

// Wherever the rectangles are.
Extent TrueExtent(const Axis& axis, const Rects& rects) {
  Extent extent{std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()};
  for (const CardRect& rect : rects) {
    extent.near = std::min(extent.near, rect.*axis.near);
    extent.far = std::max(extent.far, axis.Far(rect));
  }
  return extent;
}

void AlignTo(CardRect& rect, const Mode& mode, double place, const ArrangePage& page) {
  if (mode.axis) Put(*mode.axis, rect, mode.part, place);
  Clamp(kHorizontal, rect, page);
  Clamp(kVertical, rect, page);
}

// Pulls a grown rectangle back over the far edge only.
void PullBack(const Axis& axis, CardRect& rect, const ArrangePage& page) {
  if (axis.Far(rect) > page.*axis.page) rect.*axis.near -= axis.Far(rect) - page.*axis.page + page.*axis.pixel;
}

}  // namespace

void AlignToLast(Rects& rects, int mode, const ArrangePage& page) {
  if (rects.empty()) return;
  const Mode about = ModeOf(mode);
  const CardRect reference = rects.back();
  const double place = about.axis ? reference.*about.axis->near + about.part * reference.*about.axis->size : 0.0;
  for (std::size_t i = 0; i + 1 < rects.size(); ++i) AlignTo(rects[i], about, place, page);
}

void AlignToAll(Rects& rects, int mode, const ArrangePage& page) {
  const Mode about = ModeOf(mode);
  const Extent extent = about.axis ? ExtentOnPage(*about.axis, rects, page) : Extent{0.0, 0.0};
  const double place = (extent.far - extent.near) * about.part + extent.near;
  for (CardRect& rect : rects) AlignTo(rect, about, place, page);
}

void Distribute(Rects& rects, bool vertical, const ArrangePage& page) {
  if (rects.size() < 2) return;
  const Axis& axis = AxisOf(vertical);
  std::vector<CardRect*> sorted;
  double sizes = 0.0;
  for (CardRect& rect : rects) {
    sorted.push_back(&rect);
    sizes += rect.*axis.size;
  }
  std::stable_sort(sorted.begin(), sorted.end(),
                   [&axis](const CardRect* a, const CardRect* b) { return a->*axis.near < b->*axis.near; });
  const Extent extent = ExtentOnPage(axis, rects, page);
  const double gap = (extent.far - extent.near - sizes) / static_cast<double>(rects.size() - 1);
  for (std::size_t i = 1; i < sorted.size(); ++i) {
    sorted[i]->*axis.near = axis.Far(*sorted[i - 1]) + gap;
    Clamp(axis, *sorted[i], page);
  }
}

void CenterEach(Rects& rects, bool vertical, const ArrangePage& page) {
  const Axis& axis = AxisOf(vertical);
  for (CardRect& rect : rects) rect.*axis.near = (page.*axis.page - rect.*axis.size) * 0.5;
}

void CenterAsGroup(Rects& rects, bool vertical, const ArrangePage& page) {
  if (rects.empty()) return;
  const Axis& axis = AxisOf(vertical);
  const Extent extent = TrueExtent(axis, rects);
  const double shift = (page.*axis.page - (extent.far - extent.near)) * 0.5 - extent.near;
  for (CardRect& rect : rects) rect.*axis.near += shift;
}

void SameSize(Rects& rects, const std::vector<bool>& resizable, bool width, bool height, const ArrangePage& page) {
  if (rects.empty()) return;
  const CardRect reference = rects.back();
  for (std::size_t i = 0; i + 1 < rects.size(); ++i) {
    if (!resizable[i]) continue;
    if (width) rects[i].width = reference.width;
    if (height) rects[i].height = reference.height;
    PullBack(kHorizontal, rects[i], page);
    PullBack(kVertical, rects[i], page);
  }
}

namespace {

std::vector<std::size_t> Unchanged(std::size_t count) {
  std::vector<std::size_t> order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  return order;
}

std::vector<bool> Marked(std::size_t count, const std::vector<std::size_t>& chosen) {
  std::vector<bool> marked(count, false);
  for (const std::size_t index : chosen) {
    if (index < count) marked[index] = true;
  }
  return marked;
}

}  // namespace

std::vector<std::size_t> OrderAfterRaising(std::size_t count, const std::vector<std::size_t>& chosen) {
  std::vector<std::size_t> order = Unchanged(count);
  const std::vector<bool> marked = Marked(count, chosen);
  for (std::size_t i = 1; i < count; ++i) {
    if (marked[order[i]] && !marked[order[i - 1]]) std::swap(order[i], order[i - 1]);
  }
  return order;
}

std::vector<std::size_t> OrderAfterLowering(std::size_t count, const std::vector<std::size_t>& chosen) {
  std::vector<std::size_t> order = Unchanged(count);
  const std::vector<bool> marked = Marked(count, chosen);
  for (std::size_t i = count; i-- > 1;) {
    if (marked[order[i - 1]] && !marked[order[i]]) std::swap(order[i], order[i - 1]);
  }
  return order;
}

std::vector<std::size_t> OrderAfterMoving(std::size_t count, const std::vector<std::size_t>& chosen,
                                          std::size_t before) {
  const std::vector<bool> marked = Marked(count, chosen);
  std::vector<std::size_t> order, moved, rest;
  for (std::size_t i = 0; i < count; ++i) (marked[i] ? moved : i < before ? order : rest).push_back(i);
  order.insert(order.end(), moved.begin(), moved.end());
  order.insert(order.end(), rest.begin(), rest.end());
  return order;
}

}  // namespace xrpt
