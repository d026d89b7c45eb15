// What a validation found, printed as it is found: for people, for programs, and for hosts.
#pragma once

#include <memory>
#include <string>

#include "formulas/checks/FolderCheck.h"

namespace xrpt {

class FindingsOutput {
 public:
  virtual ~FindingsOutput() = default;
  virtual void Begin() {}
  virtual void Print(const ReportFindings& report, const Finding& finding) = 0;
  virtual void End() {}
};

// Of "text", "json" or "xml", on standard output.
std::unique_ptr<FindingsOutput> MakeFindingsOutput(const std::string& format);

}  // namespace xrpt
