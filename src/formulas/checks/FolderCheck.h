// Checks the reports of a folder, on as many threads as wanted, and gives out what is found in the order of the files.
#pragma once

#include <atomic>

#include "formulas/checks/FileCheck.h"

namespace xrpt {

struct FolderCheck {
  Path folder;  // its own files, not those of folders in it
  CheckChoice choice = CheckChoice::AllHost();
  int jobs = 1;
  const std::atomic<bool>* stop = nullptr;  // looked at before each file and each card
  // Called for every file, in order, one call at a time, from any of the threads, with how many of how many files are
  // through; once more at the end for each report that shares its name. Must not throw.
  std::function<void(const ReportFindings& report, std::size_t through, std::size_t of)> done = {};
};

struct FolderOutcome {
  std::size_t files = 0;  // reports of the folder
  std::size_t done = 0;   // those checked to their end
  bool stopped = false;   // before all were
};

FolderOutcome CheckFolder(const FolderCheck& check);

}  // namespace xrpt
