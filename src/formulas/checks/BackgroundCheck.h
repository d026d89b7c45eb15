// Checks the report that is being edited on a thread of its own. Whoever edits hands in how the report stands, takes
// what was found when told that there is something to take, and never waits for the check: a newer report takes the
// place of the one that is being checked.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "formulas/checks/CheckChoice.h"
#include "formulas/checks/Problem.h"

namespace xrpt {

class OpenReportCheck;
class RVReport;
struct Host;
struct ReportSnapshot;

// All calls from one thread, the one that edits.
class BackgroundCheck {
 public:
  // `found` is called on the check's thread whenever there are other problems than before.
  BackgroundCheck(const Host& host, CheckChoice choice, std::function<void()> found);
  // Waits for the card that is being looked at.
  ~BackgroundCheck();
  BackgroundCheck(const BackgroundCheck&) = delete;
  BackgroundCheck& operator=(const BackgroundCheck&) = delete;

  // The report as it stands now, saved or not. Nothing is done when it is as it was.
  void Check(const RVReport& report);
  // The same when what lies outside the report may have changed: styles, pictures, fonts, the plant.
  void CheckAfresh(const RVReport& report);
  // What was found last; nothing when that was taken already.
  std::optional<std::vector<Problem>> Take();
  // Whether all is checked that was handed in.
  bool IsDone() const;
  // How often a card was looked at so far.
  std::size_t CardsChecked() const;

 private:
  // Snapshots are numbered from 1, and kept until the check has looked at a later one.
  struct Kept {
    std::uint64_t number;
    std::unique_ptr<const ReportSnapshot> report;
  };
  struct Task {
    std::uint64_t number = 0;  // 0: nothing to do
    const ReportSnapshot* report = nullptr;
    bool isAfresh = false;
  };

  void HandIn(const RVReport& report, bool isAfresh);
  void DropOld();
  // On the check's thread.
  void Run();
  bool WaitForTask(Task& task);
  void Do(const Task& task);
  bool HasNewer() const;
  void Tell(std::vector<Problem> problems, std::uint64_t number);

  std::deque<Kept> kept_;
  std::uint64_t handedIn_ = 0;

  mutable std::mutex lock_;  // held for as long as it takes to hand something over
  std::condition_variable wake_;
  Task next_;
  bool stop_ = false;
  std::uint64_t lookedAt_ = 0;
  std::uint64_t done_ = 0;
  std::size_t cardsChecked_ = 0;
  std::optional<std::vector<Problem>> found_;

  std::function<void()> tell_;
  std::unique_ptr<OpenReportCheck> check_;  // of the check's thread, as the next
  std::vector<Problem> toldLast_;
  std::thread thread_;
};

}  // namespace xrpt
