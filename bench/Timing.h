// What the benches measure and say with.
#pragma once

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

namespace xrpt {

template <class Work>
double MillisecondsOf(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

template <class Work>
double BestOf(int runs, const Work& work) {
  double best = 1e9;
  for (int i = 0; i < runs; ++i) best = std::min(best, MillisecondsOf(work));
  return best;
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

}  // namespace xrpt
