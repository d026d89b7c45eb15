#include "host/Posix.h"

#include <sys/random.h>

#include <array>

namespace xrpt {
namespace {

class FaultWords final : public std::error_category {
 public:
  const char* name() const noexcept override { return "file"; }
  std::string message(int fault) const override {
    if (fault == static_cast<int>(FileFault::NotPlain)) return "Not a plain file";
    return "The file was changed meanwhile";
  }
};

std::int64_t Nanoseconds(const timespec& time) { return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec; }

}  // namespace

std::error_code make_error_code(FileFault fault) {
  static const FaultWords words;
  return {static_cast<int>(fault), words};
}

FileStamp StampOf(const struct stat& found) {
  return {
      Nanoseconds(found.st_mtim), static_cast<std::uintmax_t>(found.st_size), true,
      Nanoseconds(found.st_ctim), static_cast<std::uint64_t>(found.st_dev),   static_cast<std::uint64_t>(found.st_ino)};
}

std::error_code WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) return LastError();
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

std::error_code Flush(int descriptor) {
  if (::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP) return {};
  return LastError();
}

void FlushFolder(const Path& folder) {
  const OpenFile opened(folder.empty() ? Path(".") : folder, O_RDONLY | O_DIRECTORY);
  if (opened) Flush(opened.Descriptor());
}

std::string RandomToken() {
  std::array<unsigned char, 16> bytes{};
  if (::getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) return {};
  std::string token;
  for (const unsigned char byte : bytes) {
    token += "0123456789abcdef"[byte >> 4];
    token += "0123456789abcdef"[byte & 0xF];
  }
  return token;
}

}  // namespace xrpt
