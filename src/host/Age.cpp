#include "host/Age.h"

namespace xrpt {

bool IsOfAge(const Path& file, std::chrono::seconds age) {
  std::error_code error;
  const auto written = std::filesystem::last_write_time(file, error);
  if (error) return false;
  const auto since = std::filesystem::file_time_type::clock::now() - written;
  return since > age || since < -age;
}

}  // namespace xrpt
