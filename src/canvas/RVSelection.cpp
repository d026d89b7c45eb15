#include "canvas/RVSelection.h"

namespace xrpt {
namespace {

bool IsNull(const Rect& rect) { return rect == Rect(); }

Rect Union(const Rect& a, const Rect& b) {
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

}  // namespace

void RVSelection::AddSelection(const Rect& rect, Point fixedPoint, std::wstring id, bool resizable) {
  index_.emplace(id, static_cast<int>(entries_.size()));
  entries_.push_back({rect, fixedPoint, std::move(id), resizable});
}

bool RVSelection::Delete(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= entries_.size()) return false;
  entries_.erase(entries_.begin() + index);
  Reindex();
  return true;
}

void RVSelection::Reindex() {
  index_.clear();
  for (std::size_t i = 0; i < entries_.size(); ++i) index_.emplace(entries_[i].id, static_cast<int>(i));
}

int RVSelection::Find(std::wstring_view id) const {
  if (entries_.empty()) return -1;
  const auto found = index_.find(std::wstring(id));
  return found == index_.end() ? -1 : found->second;
}

bool RVSelection::HasSameCards(const RVSelection& other) const {
  return Size() == other.Size() &&
         std::all_of(entries_.begin(), entries_.end(), [&](const Entry& entry) { return other.IsSelected(entry.id); });
}

bool RVSelection::IsLastSelected(std::wstring_view id) const { return !entries_.empty() && entries_.back().id == id; }

std::vector<std::wstring> RVSelection::Ids() const {
  std::vector<std::wstring> ids;
  for (const Entry& entry : entries_) ids.push_back(entry.id);
  return ids;
}

Rect RVSelection::CalculateGlobalRect() const {
  if (band_) return *band_;
  std::optional<Rect> all;
  for (const Entry& entry : entries_) {
    if (!IsNull(entry.rect)) all = all ? Union(*all, entry.rect) : entry.rect;
  }
  return all.value_or(Rect());
}

int RVSelection::GetTargetX() const {
  const Rect all = CalculateGlobalRect();
  if (band_) return band_->left == startPoint_.x ? all.right : all.left;
  if (entries_.empty()) return 0;
  return entries_.front().rect.left == entries_.front().fixedPoint.x ? all.right : all.left;
}

int RVSelection::GetTargetY() const {
  const Rect all = CalculateGlobalRect();
  if (band_) return band_->top == startPoint_.y ? all.bottom : all.top;
  if (entries_.empty()) return 0;
  return entries_.front().rect.top == entries_.front().fixedPoint.y ? all.bottom : all.top;
}

void RVSelection::ResizeDraggingRect(Rect& rect, Point fixed, Point delta) {
  (rect.left != fixed.x ? rect.left : rect.right) += delta.x;
  (rect.top != fixed.y ? rect.top : rect.bottom) += delta.y;
  rect.Normalize();
}

void RVSelection::ActualizeResizeDraggingRect(Point delta) {
  if (band_) return ResizeDraggingRect(*band_, startPoint_, delta);
  for (Entry& entry : entries_) {
    if (entry.resizable) ResizeDraggingRect(entry.rect, entry.fixedPoint, delta);
  }
}

void RVSelection::Offset(int dx, int dy) {
  for (Entry& entry : entries_) entry.rect.Offset(dx, dy);
}

void RVSelection::StartBand(Point corner) {
  band_ = Rect{corner.x, corner.y, corner.x, corner.y};
  startPoint_ = corner;
  anchor = corner;
}

}  // namespace xrpt
