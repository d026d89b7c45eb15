// The one way to a terminal: whatever a report, a file name or an argument holds, it shows and does nothing else.
#pragma once

#include <string>

namespace xrpt {

// Text of several lines on standard output.
void Print(const std::string& text);
// A document on standard output, byte for byte where that is a file or a pipe. False when it could not be written.
bool PrintDocument(const std::string& bytes);
// Text of several lines on standard error.
void PrintAside(const std::string& text);
// "xrpt: FILE: REASON" on standard error.
void PrintError(const std::string& file, const std::string& reason);

}  // namespace xrpt
