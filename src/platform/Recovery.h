// Work that is not saved yet, kept where a crash cannot take it, and what earlier sessions left of theirs.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Files.h"

namespace xrpt {

// Unsaved work that a session left which ended without deciding about it.
struct Recovered {
  Path text;               // the report as it was kept, to be opened like any other
  Path file;               // where it came from; empty for a report that was never saved
  std::wstring name;       // the report's
  std::int64_t since = 0;  // when it was kept; seconds since 1970, UTC
};

class RecoveryService {
 public:
  virtual ~RecoveryService() = default;
  // Keeps a report's text from now on, instead of what was kept under the number before. Returns at once: the text is
  // written in a thread of its own, the latest one only. `origin` says where the report came from and what it is
  // called; its other fields are not looked at.
  virtual void Keep(int number, const Recovered& origin, std::string text) = 0;
  // Saved, or decided against: nothing is kept under the number any more.
  virtual void Drop(int number) = 0;
  // Waits until everything is written. What became of the last text that could not be, if any.
  virtual SaveResult Wait() = 0;
  // What sessions that are gone left, the latest first. Nobody else is offered it while this session lives.
  virtual std::vector<Recovered> Left() = 0;
  // Opened, saved or decided against.
  virtual void Discard(const Recovered& recovered) = 0;
};

}  // namespace xrpt
