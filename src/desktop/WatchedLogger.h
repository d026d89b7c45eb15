// Hands every message of the log on to whoever watches, and to the log that was there before.
#pragma once

#include <functional>
#include <memory>

#include "platform/Host.h"

namespace xrpt {

class WatchedLogger final : public LoggerService {
 public:
  using Watcher = std::function<void(int severity, const std::wstring& message)>;

  // Takes the place of the host's logger for as long as it watches.
  static WatchedLogger& Install(Host& host, Watcher watcher);
  // Puts the former logger back; the one watched is gone afterwards.
  static void Remove(Host& host);

  void Log(int severity, std::wstring_view message) override;

 private:
  std::unique_ptr<LoggerService> former_;
  Watcher watcher_;
};

}  // namespace xrpt
