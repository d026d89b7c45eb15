// How editing behaves. The defaults are the contract that hosts know; what the desktop wants beyond it is chosen here,
// in one value handed to the frame once, and nowhere else.
#pragma once

#include <cstddef>

namespace xrpt {

struct EditingOptions {
  // Snapshots a page keeps, the base state among them.
  std::size_t mostSnapshots = 20;
  // Whether selecting is a step of the history.
  bool countsSelections = true;
  // Whether switching the grid is a step, as every other change that is saved.
  bool countsGrid = false;
  // A move writes places only, a resize only the edges it moved, and what ends where it began changes nothing.
  // Otherwise a drag writes place and size as the pixels say.
  bool keepsStoredDigits = false;
  // The pointer tool comes back after each inserted card.
  bool returnsToPointer = false;
  // A right click selects what is under it first.
  bool rightClickSelects = false;
  // A rubber band may start beside the page; a click there and Escape let go of the selection.
  bool bandsBesidePage = false;
  // A zoom that fits the width goes on fitting the width when the page is turned or changed, by undo too.
  bool keepsFit = false;
  // The undo keys mean the whole report, and a report undone to what was saved counts as unmodified.
  bool reportHistory = false;
  // A report goes back to the file it was opened from, and nothing is lost or written over unasked: unsaved changes,
  // what others wrote, reports that somebody else has open. What is not saved survives a crash.
  bool guardsFiles = false;
  // The text of a label is edited where it stands.
  bool editsInPlace = false;
  // An insert tool makes a card wherever it is used, over other cards too, and a click makes one of good size.
  bool placesByClick = false;
  // Alt held at the press copies what is dragged, and reaches what lies beneath with a click; with arrow keys it moves
  // finer than any grid.
  bool altCopies = false;
  // Selected cards have handles to be seen and grabbed, and stand out whatever their colours.
  bool showsHandles = false;
  // Plain text on the clipboard is pasted as a label.
  bool pastesText = false;
  // Cards without content say what is missing, cut texts carry a mark, and new shapes begin with a thin outline and
  // hide nothing.
  bool hintsAtCards = false;

  // What the desktop, and scripts that ask for it, turn on.
  static constexpr EditingOptions Comfort() {
    EditingOptions options{501, false};
    options.countsGrid = options.keepsStoredDigits = options.returnsToPointer = true;
    options.rightClickSelects = options.bandsBesidePage = options.keepsFit = options.reportHistory = true;
    options.guardsFiles = true;
    options.editsInPlace = options.placesByClick = options.altCopies = true;
    options.showsHandles = options.hintsAtCards = options.pastesText = true;
    return options;
  }
};

}  // namespace xrpt
