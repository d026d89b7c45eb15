// What several file sources share of the system's calls: descriptors that close themselves, errors as values.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/Files.h"

namespace xrpt {

// What the system has no word for.
enum class FileFault { NotPlain = 1, Changed };
std::error_code make_error_code(FileFault fault);

inline std::error_code LastError() { return {errno, std::generic_category()}; }

class OpenFile {
 public:
  OpenFile() = default;
  OpenFile(const Path& file, int flags, mode_t mode = 0) : descriptor_(::open(file.c_str(), flags | O_CLOEXEC, mode)) {}
  ~OpenFile() { Close(); }
  OpenFile(OpenFile&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  OpenFile& operator=(OpenFile&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }

  explicit operator bool() const { return descriptor_ >= 0; }
  int Descriptor() const { return descriptor_; }
  void Close() {
    if (const int descriptor = std::exchange(descriptor_, -1); descriptor >= 0) ::close(descriptor);
  }

 private:
  int descriptor_ = -1;
};

FileStamp StampOf(const struct stat& found);
std::error_code WriteAll(int descriptor, std::string_view bytes);
// To disk. Some file systems cannot; what they can do has then been done.
std::error_code Flush(int descriptor);
// So that a name that came or went in a folder outlives a power cut.
void FlushFolder(const Path& folder);
// Random, as hexadecimal digits that no other process or machine has. Empty, with errno set, without a random source.
std::string RandomToken();

}  // namespace xrpt

template <>
struct std::is_error_code_enum<xrpt::FileFault> : std::true_type {};
