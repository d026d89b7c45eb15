#include "xrpt/Output.h"

#include <unistd.h>

#include <iostream>

#include "platform/Text.h"

namespace xrpt {
namespace {

// Passes lines on without what a terminal would obey.
class QuietBuffer final : public std::streambuf {
 public:
  explicit QuietBuffer(std::streambuf& behind) : behind_(behind) {}

 protected:
  int_type overflow(int_type c) override {
    if (c == traits_type::eof()) return traits_type::not_eof(c);
    line_ += traits_type::to_char_type(c);
    return c != '\n' || Send() ? c : traits_type::eof();
  }
  int sync() override { return Send() ? behind_.pubsync() : -1; }

 private:
  bool Send() {
    const std::string safe = ForTerminal(line_, true);
    line_.clear();
    const auto size = static_cast<std::streamsize>(safe.size());
    return behind_.sputn(safe.data(), size) == size;
  }

  std::streambuf& behind_;
  std::string line_;
};

}  // namespace

TerminalGuard::TerminalGuard() {
  if (::isatty(STDOUT_FILENO) == 0) return;
  quiet_ = std::make_unique<QuietBuffer>(*std::cout.rdbuf());
  former_ = std::cout.rdbuf(quiet_.get());
}

TerminalGuard::~TerminalGuard() {
  if (!quiet_) return;
  std::cout.flush();
  std::cout.rdbuf(former_);
}

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
