// The search dialog without its looks: what is typed in it, and what its buttons send to the editor.
#pragma once

#include "platform/Messages.h"
#include "platform/SearchRequest.h"

namespace xrpt {

class CDlgSearchReplace {
 public:
  // The editor must outlive the dialog.
  explicit CDlgSearchReplace(MessageTarget& editor) : editor_(editor) {}

  // True when there is a next match. What was typed since the last request makes it a new search.
  bool Search();
  // One match, or all of them on all pages; how many were replaced.
  std::size_t Replace();
  std::size_t ReplaceAll();
  // A match was found last, and what is searched for is still the same.
  bool IsReplaceEnabled() const;

  std::wstring text;
  std::wstring replacement;
  bool matchCase = false;

 private:
  tagSearchReplace Send(SearchCommand command);

  MessageTarget& editor_;
  tagSearchReplace sent_;  // the last request
};

}  // namespace xrpt
