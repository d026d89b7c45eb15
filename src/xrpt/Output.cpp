#include "xrpt/Output.h"

#include <unistd.h>

#include <iostream>

#include "platform/Text.h"

namespace xrpt {

void Print(const std::string& text) { std::cout << ForTerminal(text, true) << std::flush; }

bool PrintDocument(const std::string& bytes) {
  const bool isTerminal = ::isatty(STDOUT_FILENO) != 0;
  return static_cast<bool>(std::cout << (isTerminal ? ForTerminal(bytes, true) : bytes) << std::flush);
}

void PrintAside(const std::string& text) { std::cerr << ForTerminal(text, true); }

void PrintError(const std::string& file, const std::string& reason) {
  PrintAside("xrpt: " + ForTerminal(file) + ": " + ForTerminal(reason) + "\n");
}

}  // namespace xrpt
