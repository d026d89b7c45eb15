// The base of checks that run over the host's resources in the background: a run on a thread of its own, with a state,
// a progress and a description that the host reads from another thread, and a stop that is asked for and not forced.
//
// A class that derives from this one calls `finish` in its own destructor, so that its `work` never outlives it.
#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <thread>

#include "platform/Xml.h"

namespace xrpt {

struct Host;

class RVResourceDebugger {
 public:
  enum State { kIdle = 0, kStarting = 1, kRunning = 2, kStopRequested = 3, kFinished = 4 };

  // The host's services, which outlive the debugger.
  explicit RVResourceDebugger(Host& host) : host_(host) {}
  virtual ~RVResourceDebugger();
  RVResourceDebugger(const RVResourceDebugger&) = delete;
  RVResourceDebugger& operator=(const RVResourceDebugger&) = delete;

  // Runs `work` on a thread of its own. False while a run is under way, or when there is no thread to be had.
  bool start();
  // Asks the run to end; it does where it can. Nothing is asked of a debugger that does not run.
  void stop();
  // Whether no run is under way.
  bool stopped() const;
  // Returns once the run has ended.
  void wait();

  State getState() const { return state_; }
  double getPercentDone() const { return percentDone_; }  // 0 to 100
  std::wstring getDescription() const;

  // The whole run. Usually called by `start`; a host with threads of its own may call it there.
  virtual void work() = 0;

 protected:
  // A stop that was asked for before the run got to its work still holds.
  void setRunning();
  void setFinished() { state_ = kFinished; }
  bool stopRequested() const { return state_ == kStopRequested; }
  void setPercentDone(double percent) { percentDone_ = percent; }
  void setDescription(std::wstring description);
  // Hands a warning record to the host's diagnostics collector.
  void addWarning(const XmlNode& warning);
  // Stops the run and waits for its end.
  void finish();

  Host& host_;

 private:
  void run();

  std::atomic<State> state_ = kIdle;
  std::atomic<double> percentDone_ = 0.0;
  mutable std::mutex descriptionLock_;
  std::wstring description_;
  std::thread thread_;
};

}  // namespace xrpt
