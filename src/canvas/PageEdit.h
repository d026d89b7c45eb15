// The one door for changes of a page: whoever changes a card, the page's properties or the list of cards opens an edit
// with a name, gets the mutable object from it and from nowhere else, and its end is one step of the history.
//
//   PageEdit edit = window.Edit({text::kChange, 1});
//   edit.Card(index).field = L"M1.P";
//   edit.End();                       // or the end of the scope
#pragma once

#include <string>
#include <string_view>

#include "canvas/RVUndo.h"
#include "model/RVReportPage.h"

namespace xrpt {

class RVEditTemplateWnd;

// Edits with the same key that follow each other join to one step: typing in a field, a held arrow of a number. An
// empty key joins nothing.
using JoinKey = std::string;

class PageEdit {
 public:
  PageEdit(PageEdit&& other) noexcept;
  PageEdit& operator=(PageEdit&&) = delete;
  ~PageEdit() { End(); }

  const RVReportPage& Page() const;
  // A card to be changed, by its place in the list or its id (null for an id no card has). Good until the edit's end.
  RVCardControl& Card(std::size_t index);
  RVCardControl* Card(std::wstring_view id);
  RVGlobalProperties& Properties();
  // For adding, removing and stacking.
  CardList& Cards();
  // What the step is called, when that is known only at the end.
  void Rename(UndoName name) { name_ = name; }

  // True when the page had changed, and a step was taken or the one before went on.
  bool End();
  // Ends it without saying anything to the window's parent: for the window's own operations, which have more to say.
  bool EndQuietly();

 private:
  friend class RVEditTemplateWnd;
  PageEdit(RVEditTemplateWnd& window, UndoName name, JoinKey joins)
      : window_(&window), name_(name), joins_(std::move(joins)) {}

  RVEditTemplateWnd* window_;
  UndoName name_;
  JoinKey joins_;
};

}  // namespace xrpt
