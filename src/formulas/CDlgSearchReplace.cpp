#include "formulas/CDlgSearchReplace.h"

namespace xrpt {

bool CDlgSearchReplace::Search() { return Send(SearchCommand::Search).found; }

std::size_t CDlgSearchReplace::Replace() { return IsReplaceEnabled() ? Send(SearchCommand::Replace).replaced : 0; }

std::size_t CDlgSearchReplace::ReplaceAll() { return Send(SearchCommand::ReplaceAll).replaced; }

bool CDlgSearchReplace::IsReplaceEnabled() const {
  return sent_.found && text == sent_.text && matchCase == sent_.matchCase;
}

tagSearchReplace CDlgSearchReplace::Send(SearchCommand command) {
  const bool changed = text != sent_.text || replacement != sent_.replacement || matchCase != sent_.matchCase;
  tagSearchReplace request{text, replacement, command == SearchCommand::Search && changed, matchCase, command};
  editor_.OnMessage({Message::SearchRequested, {}, 0, 0, &request});
  return sent_ = request;
}

}  // namespace xrpt
