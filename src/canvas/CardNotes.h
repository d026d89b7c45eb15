// What the editor remembers beside the report: which cards are locked, hidden or grouped while the page is laid out,
// what the user calls them, and lines to place cards by. None of it is the report's: it is not saved with it, printed
// or undone, and the report is the same without it.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace xrpt {

struct CardNote {
  bool locked = false;  // hands on the page leave it alone
  bool hidden = false;  // from the editor's page; readers see it
  int group = 0;        // cards of one number are selected together; 0 is none
  std::wstring name;
  bool IsEmpty() const { return !locked && !hidden && group == 0 && name.empty(); }
  bool operator==(const CardNote&) const = default;
};

// Millimetres from the page's edges.
struct PageLines {
  std::vector<double> across;  // horizontal lines, by their y
  std::vector<double> down;    // vertical lines, by their x
  bool IsEmpty() const { return across.empty() && down.empty(); }
  bool operator==(const PageLines&) const = default;
};

class CardNotes {
 public:
  // Cards and pages are known by their ids; one without an id has no notes.
  const CardNote& Of(std::wstring_view card) const;
  // Whether any card has this noted, on whichever page.
  bool HasAny(bool CardNote::*what) const;
  void Set(std::wstring_view card, const CardNote& note);
  const PageLines& LinesOf(std::wstring_view page) const;
  void SetLines(std::wstring_view page, PageLines lines);
  // A number no group has.
  int FreeGroup() const;
  bool IsEmpty() const { return cards_.empty() && pages_.empty(); }
  void Clear() { *this = CardNotes(); }

  const std::map<std::wstring, CardNote, std::less<>>& Cards() const { return cards_; }
  const std::map<std::wstring, PageLines, std::less<>>& Pages() const { return pages_; }

 private:
  std::map<std::wstring, CardNote, std::less<>> cards_;
  std::map<std::wstring, PageLines, std::less<>> pages_;
};

}  // namespace xrpt
