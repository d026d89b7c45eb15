// What the frame asks before something is lost or written over.
#pragma once

#include "editor/Question.h"
#include "platform/Files.h"
#include "platform/Locks.h"

namespace xrpt {

// Answers: save, don't save, cancel.
Question AskToSave(const std::wstring& report);
// The file that a save would hit is not what it was, or not the report's. Answers: replace, save as, show what differs
// (only where there is something to compare with), cancel.
Question AskToReplace(const SaveResult& refused);
// Answers: save as, take over, cancel.
Question AskToSaveLocked(const std::wstring& report, const LockHolder& holder);
// Answers: open to read, take over, cancel.
Question AskToOpenLocked(const std::wstring& report, const LockHolder& holder);
// Answers: save anyway, cancel.
Question AskToLoseStyles(const std::wstring& report, int count);

// "ana has it open on plant-7 since 12/03/2026 08:15"
std::wstring HolderText(const LockHolder& holder);

}  // namespace xrpt
