// The reports of the configuration folder as files: which there are, and giving one another name, a copy or its leave.
#pragma once

#include <string>
#include <vector>

#include "platform/Files.h"

namespace xrpt {

struct ListedReport {
  Path file;
  std::wstring name;
  std::wstring id;  // what stands before the name in the file's; empty for a file that has the name alone
  FileStamp stamp;
  bool sharesName = false;  // others of the folder are called the same
  bool isFound = false;     // of those, the one that the name finds
};

// In no order that means anything.
std::vector<ListedReport> ListReports();

// Text id of what keeps a name from being a new report's, 0 when nothing does.
int ProblemWithReportName(const std::wstring& name);

// Each gives one sentence for people when it could not be done, and is empty when it was. Nothing is written over, a
// report that somebody has open is left alone, and a failure leaves everything as it was.
//
// The report keeps its identifier, so that it stays the same one.
std::wstring RenameReport(const ListedReport& report, const std::wstring& name);
// A report of its own, with a new identifier.
std::wstring DuplicateReport(const ListedReport& report, const std::wstring& name);
std::wstring RemoveReport(const ListedReport& report);

}  // namespace xrpt
