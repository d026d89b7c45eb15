// What helps to find a command: other words for what it does, why it cannot run right now, and which commands belong to
// the menu of what was clicked.
#pragma once

#include <string>
#include <vector>

#include "editor/CommandCatalogue.h"

namespace xrpt {

// Words people may look for, separated by blanks, in the user's language; empty for most commands.
std::wstring OtherWordsFor(const Command& command);

// What is to be done first, as a sentence; empty for a command that can run or never says.
std::wstring WhyUnavailable(const Command& command, const RVEditControlWnd& frame);

// The commands that make sense for what is selected on the page, by name; null parts groups of them. Those that cannot
// run are left out.
std::vector<const Command*> PageMenuCommands(const RVEditControlWnd& frame);

}  // namespace xrpt
