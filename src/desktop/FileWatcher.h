// A thread that looks at files every second or so, so that a slow network folder never holds up the window.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "platform/FileWatch.h"

namespace xrpt {

class FileWatcher {
 public:
  // Called in the watcher's thread.
  using Told = std::function<void(const std::vector<Path>& changed)>;
  // What is watched, in the watcher's thread.
  using Order = std::function<void(FileWatch& watch)>;

  FileWatcher(FileService& files, std::chrono::milliseconds pause, Told told);
  ~FileWatcher();
  FileWatcher(const FileWatcher&) = delete;
  FileWatcher& operator=(const FileWatcher&) = delete;

  void Do(Order order);

 private:
  void Work();

  FileWatch watch_;
  std::chrono::milliseconds pause_;
  Told told_;
  std::mutex mutex_;
  std::condition_variable woken_;
  std::vector<Order> orders_;
  bool ends_ = false;
  std::thread thread_;
};

}  // namespace xrpt
