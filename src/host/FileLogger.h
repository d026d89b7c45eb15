// What happened, for people: warnings and errors on standard error, everything in a file of the state folder, and for
// whoever listens (the window shows failures in its status bar).
#pragma once

#include <cstdio>
#include <mutex>

#include "host/Listeners.h"
#include "platform/Host.h"

namespace xrpt {

class FileLogger final : public LoggerService {
 public:
  using List = Listeners<int, std::wstring_view>;
  static constexpr const char* kFileName = "xrpt.log";
  static constexpr long kMaxBytes = 1 << 20;  // then the file becomes xrpt.log.1 and a new one begins

  FileLogger(Path folder, bool toStderr) : folder_(std::move(folder)), toStderr_(toStderr) {}
  ~FileLogger() override;

  int Add(List::Function listener) { return listeners_.Add(std::move(listener)); }
  void Remove(int number) { listeners_.Remove(number); }
  // From any thread, as one line that no terminal takes for a command. A log that cannot be written is given up
  // silently: there is nowhere left to say so.
  void Log(int severity, std::wstring_view message) override;

 private:
  void WriteLine(int severity, const std::string& line);
  bool Open();
  void Rotate();

  Path folder_;
  bool toStderr_;
  bool failed_ = false;
  std::mutex mutex_;
  std::FILE* file_ = nullptr;
  List listeners_;
};

}  // namespace xrpt
