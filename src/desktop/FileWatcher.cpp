#include "desktop/FileWatcher.h"

#include <utility>

namespace xrpt {

FileWatcher::FileWatcher(FileService& files, std::chrono::milliseconds pause, Told told)
    : watch_(files), pause_(pause), told_(std::move(told)), thread_([this] { Work(); }) {}

FileWatcher::~FileWatcher() {
  {
    const std::lock_guard guard(mutex_);
    ends_ = true;
  }
  woken_.notify_all();
  thread_.join();
}

void FileWatcher::Do(Order order) {
  const std::lock_guard guard(mutex_);
  orders_.push_back(std::move(order));
}

void FileWatcher::Work() {
  std::unique_lock guard(mutex_);
  while (!woken_.wait_for(guard, pause_, [this] { return ends_; })) {
    const std::vector<Order> orders = std::exchange(orders_, {});
    guard.unlock();
    for (const Order& order : orders) order(watch_);
    const std::vector<Path> changed = watch_.Changed();
    if (!changed.empty()) told_(changed);
    guard.lock();
  }
}

}  // namespace xrpt
