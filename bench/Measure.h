// What the benches measure and say with. Cold work runs in processes of its own, so that its memory is its own and
// nothing is warm that it did not warm itself. The rows of a comparison take turns, so that a busy moment of the
// machine hits all alike; the best of each counts.
#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace xrpt::bench {

struct Figures {
  double wall = 0.0;  // seconds, of the whole process
  double processor = 0.0;
  double megabytes = 0.0;  // at most
  double own = 0.0;        // what the work itself says, in whatever unit
};

// Bytes of this process that are in memory now.
inline double ResidentBytes() {
  long pages = 0;
  if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
    if (std::fscanf(file, "%*d %ld", &pages) != 1) pages = 0;
    std::fclose(file);
  }
  return static_cast<double>(pages) * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

class Stopwatch {
 public:
  double Milliseconds() const {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start_).count();
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

// Milliseconds of the best of several runs, for other programs disturb.
template <class Work>
double BestOf(int runs, const Work& work) {
  double best = std::numeric_limits<double>::max();
  for (int i = 0; i < runs; ++i) {
    const Stopwatch watch;
    work();
    best = std::min(best, watch.Milliseconds());
  }
  return best;
}

inline double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// What the work gives comes back as `own`.
inline Figures Measure(const std::function<double()>& work) {
  int ends[2] = {};
  if (::pipe(ends) != 0) std::perror("pipe");
  const Stopwatch watch;
  const pid_t child = ::fork();
  if (child == 0) {
    const double own = work();
    std::fflush(stdout);
    if (::write(ends[1], &own, sizeof own) != static_cast<ssize_t>(sizeof own)) std::perror("write");
    ::_exit(0);
  }
  int status = 0;
  struct rusage usage {};
  ::wait4(child, &status, 0, &usage);
  Figures figures{watch.Milliseconds() / 1000.0, Seconds(usage.ru_utime) + Seconds(usage.ru_stime),
                  static_cast<double>(usage.ru_maxrss) / 1024.0};
  if (status != 0 || ::read(ends[0], &figures.own, sizeof figures.own) != static_cast<ssize_t>(sizeof figures.own)) {
    std::printf("  a measured process failed\n");
  }
  ::close(ends[0]);
  ::close(ends[1]);
  return figures;
}

inline double MedianOf(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

// Of all threads of this process, so far.
inline double ProcessorMilliseconds() {
  timespec time{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// The most memory this process ever had.
inline double PeakMebibytes() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

struct Row {
  std::string name;
  std::function<double()> work;
  std::vector<Figures> runs = {};

  double Best(double Figures::*part) const {
    double best = runs.front().*part;
    for (const Figures& run : runs) best = std::min(best, run.*part);
    return best;
  }
};

inline void RunInTurns(std::vector<Row>& rows, int repetitions) {
  for (int i = 0; i < repetitions; ++i) {
    for (Row& row : rows) row.runs.push_back(Measure(row.work));
  }
}

// What a program prints: its first number, -1 without one.
inline double NumberOf(const std::string& command) {
  double number = -1.0;
  if (std::FILE* pipe = ::popen(command.c_str(), "r")) {
    if (std::fscanf(pipe, "%lf", &number) != 1) number = -1.0;
    ::pclose(pipe);
  }
  return number;
}

// A line of the table: a figure over its floor.
inline bool ReportRatio(const char* what, double ours, double least, double limit) {
  const bool holds = ours / least <= limit;
  std::printf("%-58s %9.3f ms / %9.3f ms = %5.2f (at most %.1f)%s\n", what, ours, least, ours / least, limit,
              holds ? "" : "  MISSED");
  return holds;
}

// A line of the table: a figure alone.
inline bool ReportAtMost(const char* what, double ours, const char* unit, double limit) {
  const bool holds = ours <= limit;
  std::printf("%-58s %9.3f %s (at most %.0f)%s\n", what, ours, unit, limit, holds ? "" : "  MISSED");
  return holds;
}

}  // namespace xrpt::bench
