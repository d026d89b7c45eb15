#include "host/FileLogger.h"

#include <array>
#include <chrono>
#include <ctime>

#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr int kWarning = 3;

const char* WordFor(int severity) {
  constexpr std::array words = {"note", "info", "warning", "error"};
  return words[static_cast<std::size_t>(std::clamp(severity, 1, 4) - 1)];
}

std::string Now() {
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm utc{};
  gmtime_r(&now, &utc);
  std::array<char, 32> text{};
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &utc)};
}

}  // namespace

FileLogger::~FileLogger() {
  if (file_) std::fclose(file_);
}

void FileLogger::Log(int severity, std::wstring_view message) {
  const std::string line = ForTerminal(ToUtf8(message));
  if (toStderr_ && severity >= kWarning) std::fprintf(stderr, "%s: %s\n", WordFor(severity), line.c_str());
  {
    const std::lock_guard lock(mutex_);
    WriteLine(severity, line);
  }
  listeners_.Call(severity, message);
}

void FileLogger::WriteLine(int severity, const std::string& line) {
  if (!file_ && !Open()) return;
  std::fprintf(file_, "%s %s %s\n", Now().c_str(), WordFor(severity), line.c_str());
  std::fflush(file_);
  if (std::ftell(file_) > kMaxBytes) Rotate();
}

bool FileLogger::Open() {
  if (failed_) return false;
  std::error_code ignored;
  std::filesystem::create_directories(folder_, ignored);
  file_ = std::fopen((folder_ / kFileName).c_str(), "ae");
  failed_ = file_ == nullptr;
  if (file_) std::fseek(file_, 0, SEEK_END);
  return file_ != nullptr;
}

void FileLogger::Rotate() {
  std::fclose(file_);
  file_ = nullptr;
  std::error_code ignored;
  std::filesystem::rename(folder_ / kFileName, folder_ / (std::string(kFileName) + ".1"), ignored);
}

}  // namespace xrpt
