#include "platform/RVResourceDebugger.h"

#include <exception>
#include <system_error>

#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {

RVResourceDebugger::~RVResourceDebugger() { finish(); }

bool RVResourceDebugger::start() {
  if (!stopped()) return false;
  wait();
  state_ = kStarting;
  percentDone_ = 0.0;
  try {
    thread_ = std::thread([this] { run(); });
  } catch (const std::system_error& fault) {
    state_ = kFinished;
    host_.logger->Log(4, FromUtf8(std::string("RVResourceDebugger::start(): ") + fault.what()));
  }
  return thread_.joinable();
}

void RVResourceDebugger::run() {
  try {
    work();
  } catch (const std::exception& fault) {
    host_.logger->Log(4, FromUtf8(std::string("RVResourceDebugger::run(): ") + fault.what()));
  }
  setFinished();
}

void RVResourceDebugger::stop() {
  State running = state_;
  while ((running == kStarting || running == kRunning) && !state_.compare_exchange_weak(running, kStopRequested)) {
  }
}

bool RVResourceDebugger::stopped() const {
  const State state = state_;
  return state == kIdle || state == kFinished;
}

void RVResourceDebugger::wait() {
  if (thread_.joinable()) thread_.join();
}

void RVResourceDebugger::finish() {
  stop();
  wait();
}

void RVResourceDebugger::setRunning() {
  State before = state_;
  while (before != kStopRequested && !state_.compare_exchange_weak(before, kRunning)) {
  }
}

std::wstring RVResourceDebugger::getDescription() const {
  const std::lock_guard lock(descriptionLock_);
  return description_;
}

void RVResourceDebugger::setDescription(std::wstring description) {
  const std::lock_guard lock(descriptionLock_);
  description_ = std::move(description);
}

void RVResourceDebugger::addWarning(const XmlNode& warning) { host_.debugInfo->addWarning(warning); }

}  // namespace xrpt
