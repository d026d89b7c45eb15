// What checking a folder of reports costs beside reading and parsing the same files and doing nothing with them: on one
// thread, on two, and in memory.
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "formulas/RVReportDebugger.h"
#include "formulas/checks/FolderCheck.h"
#include "host/DefaultHost.h"
#include "model/RVReport.h"
#include "support/SampleReports.h"

namespace xrpt {
namespace {

using Clock = std::chrono::steady_clock;

template <class Work>
double Seconds(const Work& work) {
  const Clock::time_point start = Clock::now();
  work();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

long PeakKilobytes() {
  struct rusage usage {};
  ::getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

}  // namespace
}  // namespace xrpt
