#include "host/AtomicWrite.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>

namespace xrpt {
namespace {

std::error_code LastError() { return {errno, std::generic_category()}; }
std::error_code ErrorOf(std::errc code) { return std::make_error_code(code); }

class OpenFile {
 public:
  OpenFile(const Path& file, int flags, mode_t mode = 0) : descriptor_(::open(file.c_str(), flags | O_CLOEXEC, mode)) {}
  ~OpenFile() { Close(); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  explicit operator bool() const { return descriptor_ >= 0; }
  int Descriptor() const { return descriptor_; }
  bool Close() {
    const int descriptor = std::exchange(descriptor_, -1);
    return descriptor < 0 || ::close(descriptor) == 0;
  }

 private:
  int descriptor_;
};

std::error_code WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) return LastError();
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

// Some file systems cannot flush; what they can do has then been done.
std::error_code Flush(int descriptor) {
  if (::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP) return {};
  return LastError();
}

std::error_code WriteNew(const Path& file, std::string_view bytes, const struct stat* former) {
  OpenFile out(file, O_WRONLY | O_CREAT | O_EXCL, 0666);
  if (!out) return LastError();
  if (former && ::fchmod(out.Descriptor(), former->st_mode & 0777) != 0) return LastError();
  std::error_code error = WriteAll(out.Descriptor(), bytes);
  if (!error) error = Flush(out.Descriptor());
  if (!out.Close() && !error) error = LastError();
  return error;
}

std::error_code WriteDevice(const Path& file, std::string_view bytes) {
  OpenFile out(file, O_WRONLY);
  return out ? WriteAll(out.Descriptor(), bytes) : LastError();
}

void FlushFolder(const Path& folder) {
  const OpenFile opened(folder, O_RDONLY | O_DIRECTORY);
  if (opened) Flush(opened.Descriptor());
}

// Short, so that it fits wherever the target's name does.
Path TemporaryFor(const Path& file) {
  static std::atomic<unsigned> count = 0;
  const std::string name = ".xrpt-" + std::to_string(::getpid()) + "-" + std::to_string(++count) + ".tmp";
  return file.parent_path() / name;
}

std::error_code Replace(const Path& file, std::string_view bytes, const struct stat* former) {
  const Path temporary = TemporaryFor(file);
  ::unlink(temporary.c_str());
  std::error_code error = WriteNew(temporary, bytes, former);
  if (!error && ::rename(temporary.c_str(), file.c_str()) != 0) error = LastError();
  if (error) {
    ::unlink(temporary.c_str());
  } else {
    FlushFolder(file.has_parent_path() ? file.parent_path() : Path("."));
  }
  return error;
}

// A file that does not exist yet keeps its name; a link leads to what it names, even when that does not exist yet.
Path Resolved(const Path& file) {
  std::error_code ignored;
  if (!std::filesystem::is_symlink(file, ignored)) return file;
  const Path target = std::filesystem::weakly_canonical(file, ignored);
  return target.empty() ? file : target;
}

std::error_code ReadAll(int descriptor, std::size_t limit, std::string& bytes) {
  std::size_t used = 0;
  for (;;) {
    if (used == bytes.size()) bytes.resize(std::min(limit + 1, used * 2 + 4096));
    const ssize_t got = ::read(descriptor, bytes.data() + used, bytes.size() - used);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return LastError();
    used += static_cast<std::size_t>(got);
    if (used > limit) return ErrorOf(std::errc::file_too_large);
    if (got == 0) break;
  }
  bytes.resize(used);
  return {};
}

}  // namespace

std::error_code WriteAtomically(const Path& given, std::string_view bytes) {
  const Path file = Resolved(given);
  struct stat former {};
  if (::stat(file.c_str(), &former) != 0) {
    return errno == ENOENT ? Replace(file, bytes, nullptr) : LastError();
  }
  if (S_ISDIR(former.st_mode)) return ErrorOf(std::errc::is_a_directory);
  if (::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) return LastError();
  if (!S_ISREG(former.st_mode)) return WriteDevice(file, bytes);
  return Replace(file, bytes, &former);
}

std::error_code ReadWhole(const Path& file, std::size_t limit, std::string& bytes) {
  const OpenFile in(file, O_RDONLY | O_NONBLOCK);
  struct stat found {};
  if (!in || ::fstat(in.Descriptor(), &found) != 0) return LastError();
  if (S_ISDIR(found.st_mode)) return ErrorOf(std::errc::is_a_directory);
  if (!S_ISREG(found.st_mode)) return ErrorOf(std::errc::invalid_argument);
  const auto size = static_cast<std::size_t>(found.st_size);
  if (size > limit) return ErrorOf(std::errc::file_too_large);
  bytes.resize(size + 1);  // one more, so that the read that ends the file needs no larger buffer
  return ReadAll(in.Descriptor(), limit, bytes);
}

}  // namespace xrpt
