// Unsaved work in the state folder: recovery/SESSION/NUMBER.xrpt with NUMBER.ini beside it, for the owner's eyes alone.
// A session holds its folder's file `session` locked as long as it lives, so that what lies in the folder of one that
// is gone is work left behind.
#pragma once

#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

#include "host/Leftovers.h"
#include "host/Posix.h"
#include "platform/Host.h"

namespace xrpt {

class RecoveryStore final : public RecoveryService {
 public:
  RecoveryStore(Host& host, const Path& stateFolder) : host_(host), folder_(stateFolder / kSessionsFolder) {}
  // Writes what is still waiting.
  ~RecoveryStore() override;

  void Keep(int number, const Recovered& origin, std::string text) override;
  void Drop(int number) override;
  SaveResult Wait() override;
  std::vector<Recovered> Left() override;
  void Discard(const Recovered& recovered) override;

 private:
  // What is to be done about a number; without a text it is dropped.
  struct Task {
    Recovered origin;
    std::optional<std::string> text;
  };
  void Put(int number, Task task);
  void Work();
  bool OpenSession();
  SaveResult Carry(int number, const Task& task);
  SaveResult Write(int number, const Task& task);
  void AddLeft(const Path& session, std::vector<Recovered>& left);
  Path FileOf(int number, const char* ending) const;

  Host& host_;
  Path folder_;
  std::map<Path, OpenFile> adopted_;  // sessions that are gone, ours to clear up

  std::mutex mutex_;
  std::condition_variable changed_;
  std::map<int, Task> waiting_;
  bool isBusy_ = false;
  bool ends_ = false;
  SaveResult failure_;
  std::thread thread_;  // runs from the first task on

  // The thread's own.
  Path session_;
  OpenFile alive_;
};

}  // namespace xrpt
