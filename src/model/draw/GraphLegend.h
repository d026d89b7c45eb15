// The list of what is drawn in which colour, under a graph or beside it.
#pragma once

#include "model/draw/GraphCanvas.h"

namespace xrpt {

struct LegendEntry {
  std::wstring text;
  Color color = kBlack;
  const GraphSeries* series = nullptr;  // shown by its line or sign; without one by a block of colour
};

// Rows of as many columns as fit; entries that find no room are left out, and long ones shortened.
class Legend {
 public:
  Legend(const GraphCanvas& canvas, std::vector<LegendEntry> entries, SizeD most, std::size_t mostColumns = 1000);
  std::size_t Count() const { return placed_.size(); }
  bool IsEmpty() const { return placed_.empty(); }
  double Height() const { return height_; }
  double Width() const { return width_; }
  void Draw(PointD corner) const;

 private:
  struct Placed {
    LegendEntry entry;
    PointD at;  // left end, middle of the row
  };
  void DrawKey(const LegendEntry& entry, PointD at) const;

  const GraphCanvas& canvas_;
  std::vector<Placed> placed_;
  double key_ = 0.0;  // length of a key
  double width_ = 0.0;
  double height_ = 0.0;
};

}  // namespace xrpt
