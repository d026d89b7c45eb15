// The one way to a terminal: whatever a report, a file name or an argument holds, it shows and does nothing else.
#pragma once

#include <memory>
#include <streambuf>
#include <string>

namespace xrpt {

// As long as it lives, a terminal is safe from what is written to standard output in other ways than these, too.
class TerminalGuard {
 public:
  TerminalGuard();
  ~TerminalGuard();
  TerminalGuard(const TerminalGuard&) = delete;
  TerminalGuard& operator=(const TerminalGuard&) = delete;

 private:
  std::unique_ptr<std::streambuf> quiet_;  // nothing when it is no terminal
  std::streambuf* former_ = nullptr;
};

// Text of several lines on standard output.
void Print(const std::string& text);
// A document on standard output, byte for byte where that is a file or a pipe. False when it could not be written.
bool PrintDocument(const std::string& bytes);
// Text of several lines on standard error.
void PrintAside(const std::string& text);
// "xrpt: FILE: REASON" on standard error.
void PrintError(const std::string& file, const std::string& reason);

}  // namespace xrpt
