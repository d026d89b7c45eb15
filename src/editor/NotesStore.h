// Where the editor keeps what it remembers of a report (canvas/CardNotes.h): a small file a report in the user's state
// folder, named by the report's id.
#pragma once

#include "canvas/CardNotes.h"
#include "platform/Files.h"

namespace xrpt {

// The file of a report's notes; empty for an id that no file can be named by, and without a folder.
Path NotesFile(const Path& folder, std::wstring_view reportId);

// Empty where there is no file, or one that is none of ours: a report is edited as well without.
CardNotes ReadNotes(const Path& file);
// Notes without content take the file away.
void WriteNotes(const Path& file, const CardNotes& notes);

}  // namespace xrpt
