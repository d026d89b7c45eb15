#include "editor/RecentReports.h"

#include <algorithm>

#include "platform/Host.h"

namespace xrpt {
namespace {

constexpr wchar_t kSection[] = L"Recent";

std::vector<Path> Stored() {
  std::vector<Path> files;
  for (std::size_t i = 0; i < kMostRecent; ++i) {
    const std::wstring file = CurrentHost().settings->ProfileText(kSection, std::to_wstring(i));
    if (!file.empty()) files.emplace_back(file);
  }
  return files;
}

bool IsThere(const Path& file) {
  std::error_code fault;
  return std::filesystem::is_regular_file(file, fault);
}

}  // namespace

std::vector<Path> RecentReports() {
  std::vector<Path> files = Stored();
  std::erase_if(files, [](const Path& file) { return !IsThere(file); });
  return files;
}

void RememberReport(const Path& file) {
  if (file.empty()) return;
  std::error_code fault;
  const Path whole = std::filesystem::absolute(file, fault);
  std::vector<Path> files = Stored();
  std::erase(files, whole);
  files.insert(files.begin(), fault ? file : whole);
  files.resize(std::min(files.size(), kMostRecent));
  for (std::size_t i = 0; i < files.size(); ++i) {
    CurrentHost().settings->SetProfileText(kSection, std::to_wstring(i), files[i].wstring());
  }
}

}  // namespace xrpt
