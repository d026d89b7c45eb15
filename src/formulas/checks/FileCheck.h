// Checks one report file after another, the whole of it: reading, parsing, and all the checks that are wanted.
#pragma once

#include "formulas/checks/CheckChoice.h"
#include "formulas/checks/ReportWalk.h"

namespace xrpt {

// What became of one file.
struct ReportFindings {
  Path file;
  std::wstring name;  // of the report, as stored in it
  std::wstring id;
  std::vector<Finding> findings;
  std::string unreadable;  // why it could not be read; empty when it was
  bool isComplete = true;  // false when it was left in the middle
};

class FileCheck final : private WalkWatcher {
 public:
  // `stopAsked` is asked before each card; null: nobody stops it. The choice must outlive the check.
  FileCheck(const CheckChoice& choice, std::function<bool()> stopAsked);
  // Nothing throws out of it: what goes wrong inside is a reason why the file could not be read.
  ReportFindings Check(const Path& file);

 private:
  void Read(ReportFindings& out);
  void CheckRoot(const XmlNode& root, ReportFindings& out);
  bool StopAsked() const override { return stopAsked_ && stopAsked_(); }

  const CheckChoice& choice_;
  std::function<bool()> stopAsked_;
  std::vector<Finding>* findings_ = nullptr;  // of the file that is being checked
  Inspector inspector_;
  const bool wantsHost_;
  const bool wantsEditor_;
};

}  // namespace xrpt
