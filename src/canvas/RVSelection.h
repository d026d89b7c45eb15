// The selected cards by id, with their rectangles in pixels while they are dragged, and the rubber band.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Geometry.h"

namespace xrpt {

// Which edges a gesture moves. A move moves all four.
enum DraggingStyle : int {
  kNoEdge = 0,
  kLeftEdge = 1,
  kRightEdge = 2,
  kBottomEdge = 4,
  kTopEdge = 8,
  kMoveAll = 15,
};

class RVSelection {
 public:
  struct Entry {
    Rect rect;         // pixels
    Point fixedPoint;  // the corner that stays while the card is resized
    std::wstring id;
    bool resizable = true;  // a card that is not is moved but never resized
    bool operator==(const Entry&) const = default;
  };

  void AddSelection(const Rect& rect, Point fixedPoint, std::wstring id, bool resizable);
  bool Delete(int index);
  // Drops every entry for which the answer is false.
  template <class Keeps>
  void Retain(const Keeps& keeps) {
    std::erase_if(entries_, [&](const Entry& entry) { return !keeps(entry); });
    Reindex();
  }
  // -1 when absent.
  int Find(std::wstring_view id) const;
  bool IsSelected(std::wstring_view id) const { return Find(id) >= 0; }
  bool IsLastSelected(std::wstring_view id) const;
  void Clear() { *this = RVSelection(); }

  // In selection order; the last one is the most recently selected.
  const std::vector<Entry>& Entries() const { return entries_; }
  void SetRect(std::size_t index, const Rect& rect) { entries_[index].rect = rect; }
  void SetFixedPoint(std::size_t index, Point point) { entries_[index].fixedPoint = point; }
  std::size_t Size() const { return entries_.size(); }
  bool IsEmpty() const { return entries_.empty(); }
  std::vector<std::wstring> Ids() const;

  // The band where there is one, else the rectangle round all entries that have one.
  Rect CalculateGlobalRect() const;
  // The edge of the whole selection that moves.
  int GetTargetX() const;
  int GetTargetY() const;

  // Moves the edges that are not at the fixed corner; a rectangle may flip through it.
  static void ResizeDraggingRect(Rect& rect, Point fixed, Point delta);
  void ActualizeResizeDraggingRect(Point delta);
  void Offset(int dx, int dy);

  void SetRectUndefined() { band_.reset(); }
  bool IsRectUndefined() const { return !band_; }
  void StartBand(Point corner);
  const std::optional<Rect>& Band() const { return band_; }

  // The same cards, in whatever order and wherever they are.
  bool HasSameCards(const RVSelection& other) const;
  bool operator==(const RVSelection&) const = default;

  int draggingStyle = kNoEdge;
  Point anchor;  // where the mouse was when the last move was applied

 private:
  void Reindex();

  std::vector<Entry> entries_;
  std::unordered_map<std::wstring, int> index_;  // by id; the first of several
  std::optional<Rect> band_;                     // rubber band, or the rectangle of a card being drawn
  Point startPoint_;                             // its fixed corner
};

}  // namespace xrpt
