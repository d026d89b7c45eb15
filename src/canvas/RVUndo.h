// One step of a page's history: the page as it was, and in what it differs from the step before.
#pragma once

#include <memory>

#include "canvas/RVSelection.h"
#include "model/CardList.h"
#include "model/RVGlobalProperties.h"

namespace xrpt {

// What an undo step is called: a text that may hold the number of cards, or name the field that was changed.
struct UndoName {
  int textId = 0;
  int count = 0;
  int fieldTextId = 0;
  bool operator==(const UndoName&) const = default;
};

class RVUndo {
 public:
  // Starts as a copy of the newest step, with no differences; empty when there is none. What stays the same is shared.
  RVUndo();
  static RVUndo After(const RVUndo& newest);

  // Each compares the step's part with the page window's, takes it over when different, and says whether it was. Cards
  // are compared by all their rows, whatever their equality leaves out.
  bool SetChange(const CardList& current);
  bool SetChange(const RVSelection& current);
  // Page equality leaves the grid out; `withGrid` looks at it too.
  bool SetChange(const RVGlobalProperties& current, bool withGrid = false);
  // The selection as it is now, without making that a difference.
  void TakeSelection(const RVSelection& current) { selection_ = std::make_shared<RVSelection>(current); }

  // Of cards that only moved it keeps no more than where they were; for a step that is no longer the newest.
  void Pack(RVUndo& neighbour) { cards_.Pack(neighbour.cards_); }

  bool IsControlListChanged() const { return cardsChanged_; }
  bool IsSelectionChanged() const { return selectionChanged_; }
  bool IsGlobalsChanged() const { return pageChanged_; }
  bool ChangesPage() const { return cardsChanged_ || pageChanged_; }

  const SharedCards& Cards() const { return cards_; }
  const RVSelection& Selection() const { return *selection_; }
  const RVGlobalProperties& Page() const { return *page_; }

  UndoName name;

 private:
  SharedCards cards_;
  std::shared_ptr<const RVSelection> selection_;
  std::shared_ptr<const RVGlobalProperties> page_;
  bool cardsChanged_ = false;
  bool selectionChanged_ = false;
  bool pageChanged_ = false;
};

}  // namespace xrpt
