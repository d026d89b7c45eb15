#include "desktop/WatchedLogger.h"

namespace xrpt {

WatchedLogger& WatchedLogger::Install(Host& host, Watcher watcher) {
  auto watched = std::make_unique<WatchedLogger>();
  watched->watcher_ = std::move(watcher);
  watched->former_ = std::move(host.logger);
  WatchedLogger& installed = *watched;
  host.logger = std::move(watched);
  return installed;
}

void WatchedLogger::Remove(Host& host) {
  if (auto* watched = dynamic_cast<WatchedLogger*>(host.logger.get())) {
    std::unique_ptr<LoggerService> former = std::move(watched->former_);
    host.logger = std::move(former);
  }
}

void WatchedLogger::Log(int severity, std::wstring_view message) {
  former_->Log(severity, message);
  watcher_(severity, std::wstring(message));
}

}  // namespace xrpt
