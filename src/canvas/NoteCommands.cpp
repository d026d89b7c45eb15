// Locking, hiding and grouping on the page, and what follows from it for hands: locked and hidden cards are not hit, a
// grouped card brings its group along.
#include <unordered_set>

#include "canvas/RVEditTemplateWnd.h"
#include "canvas/UndoTexts.h"

namespace xrpt {

const CardNote& RVEditTemplateWnd::NoteOf(const RVCardControl& card) const {
  static const CardNote kNone;
  return notes_ ? notes_->Of(card.id) : kNone;
}

bool RVEditTemplateWnd::IsReachable(const RVCardControl& card) const {
  const CardNote& note = NoteOf(card);
  return !note.locked && !note.hidden;
}

HitCard RVEditTemplateWnd::CardUnder(Point point) const {
  const PagePlacement place = Placement();
  if (!notes_ || notes_->IsEmpty()) return CardAt(page_.cards, place, point);
  for (const std::size_t index : CardsAt(page_.cards, place, point)) {
    if (IsReachable(page_.cards[index])) return {&page_.cards[index], ToPixels(place, RectOf(page_.cards[index]))};
  }
  return {};
}

std::vector<std::size_t> RVEditTemplateWnd::ChangeableIndexes() const {
  std::vector<std::size_t> indexes = SelectedIndexes();
  for (std::size_t& index : indexes) {
    if (index != CardList::kNowhere && NoteOf(page_.cards[index]).locked) index = CardList::kNowhere;
  }
  return indexes;
}

void RVEditTemplateWnd::SelectGroups() {
  if (!notes_ || notes_->IsEmpty()) return;
  std::unordered_set<int> groups;
  for (const RVSelection::Entry& entry : selection_.Entries()) groups.insert(notes_->Of(entry.id).group);
  groups.erase(0);
  for (std::size_t i = 0; !groups.empty() && i < page_.cards.Size(); ++i) {
    const bool belongs = groups.count(NoteOf(page_.cards[i]).group) > 0;
    if (belongs && IsReachable(page_.cards[i])) selection_.AddSelection(page_.cards[i]);
  }
}

void RVEditTemplateWnd::DropGroupOf(const RVCardControl& card) {
  const int group = NoteOf(card).group;
  selection_.Retain([&](const RVSelection::Entry& entry) {
    return entry.key != card.Key() && (group == 0 || notes_->Of(entry.id).group != group);
  });
}

// --- Commands ---

template <class Change>
void RVEditTemplateWnd::ChangeNotes(const std::vector<std::size_t>& indexes, const Change& change) {
  for (const std::size_t index : indexes) {
    if (index == CardList::kNowhere) continue;
    CardNote note = NoteOf(page_.cards[index]);
    change(note);
    notes_->Set(page_.cards[index].id, note);
  }
  RedrawBackground();
  if (notesChanged_) notesChanged_();
}

std::vector<std::size_t> RVEditTemplateWnd::AllIndexes() const {
  std::vector<std::size_t> all(page_.cards.Size());
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = i;
  return all;
}

bool RVEditTemplateWnd::AreSelectedLocked() const {
  if (!notes_ || selection_.IsEmpty()) return false;
  for (const RVSelection::Entry& entry : selection_.Entries()) {
    if (!notes_->Of(entry.id).locked) return false;
  }
  return true;
}

void RVEditTemplateWnd::LockSelected(bool on) {
  if (!notes_) return;
  DropGesture();
  ChangeNotes(SelectedIndexes(), [on](CardNote& note) { note.locked = on; });
}

void RVEditTemplateWnd::HideSelected() {
  if (!notes_) return;
  DropGesture();
  ChangeNotes(SelectedIndexes(), [](CardNote& note) { note.hidden = true; });
  ClearSelection();
  AddUndoInfo(false, {text::kSelect, 0});
  PostChange(true);
}

void RVEditTemplateWnd::HideCard(std::size_t index, bool on) {
  if (!notes_ || index >= page_.cards.Size()) return;
  ChangeNotes({index}, [on](CardNote& note) { note.hidden = on; });
}

void RVEditTemplateWnd::UnlockAll() {
  if (notes_) ChangeNotes(AllIndexes(), [](CardNote& note) { note.locked = false; });
}

void RVEditTemplateWnd::ShowAll() {
  if (notes_) ChangeNotes(AllIndexes(), [](CardNote& note) { note.hidden = false; });
}

void RVEditTemplateWnd::GroupSelected(bool on) {
  if (!notes_) return;
  const int group = on ? notes_->FreeGroup() : 0;
  ChangeNotes(SelectedIndexes(), [group](CardNote& note) { note.group = group; });
}

void RVEditTemplateWnd::NameCard(std::size_t index, const std::wstring& name) {
  if (!notes_ || index >= page_.cards.Size()) return;
  ChangeNotes({index}, [&name](CardNote& note) { note.name = name; });
}

bool RVEditTemplateWnd::HasNoted(bool CardNote::*what) const {
  if (!notes_ || !notes_->HasAny(what)) return false;
  for (std::size_t i = 0; i < page_.cards.Size(); ++i) {
    if (NoteOf(page_.cards[i]).*what) return true;
  }
  return false;
}

bool RVEditTemplateWnd::IsAnySelectedGrouped() const {
  for (const RVSelection::Entry& entry : selection_.Entries()) {
    if (notes_ && notes_->Of(entry.id).group != 0) return true;
  }
  return false;
}

// --- Lines to place cards by ---

const PageLines& RVEditTemplateWnd::Lines() const {
  static const PageLines kNone;
  return notes_ ? notes_->LinesOf(page_.properties.id) : kNone;
}

void RVEditTemplateWnd::SetLines(PageLines lines, bool isMoving) {
  if (!notes_) return;
  notes_->SetLines(page_.properties.id, std::move(lines));
  port_.Invalidate();
  if (notesChanged_ && !isMoving) notesChanged_();
}

}  // namespace xrpt
