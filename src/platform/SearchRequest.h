// What the search dialog asks of the editor, and what it hears before the message returns.
#pragma once

#include <string>

namespace xrpt {

enum class SearchCommand { Search, Replace, ReplaceAll };

struct tagSearchReplace {
  std::wstring text;
  std::wstring replacement;
  bool newSearch = false;  // from the first card on; else the search goes on where it was
  bool matchCase = false;
  SearchCommand command = SearchCommand::Search;

  bool found = false;        // filled in by the editor
  std::size_t replaced = 0;  // how many matches, as well
};

}  // namespace xrpt
