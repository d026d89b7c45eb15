#include "host/AtomicWrite.h"

#include <algorithm>

#include "host/FileAttributes.h"
#include "host/TemporaryFile.h"

namespace xrpt {
namespace {

std::error_code ErrorOf(std::errc code) { return std::make_error_code(code); }

// What is already there under the name; the link count is 0 where nothing is.
struct Target {
  Path file;
  WriteRules rules;
  struct stat was {};

  bool Exists() const { return was.st_nlink > 0; }
};

bool IsStillExpected(const Target& target) {
  struct stat now {};
  if (!target.rules.expected || !target.rules.expected->exists) return true;
  return ::stat(target.file.c_str(), &now) == 0 && StampOf(now) == *target.rules.expected;
}

bool MayReplace(const Target& target) { return !target.rules.expected || target.rules.expected->exists; }

std::error_code Fill(int descriptor, std::string_view bytes) {
  const std::error_code error = WriteAll(descriptor, bytes);
  return error ? error : Flush(descriptor);
}

// Whether the successor of the file cannot have what the file has, so that the file itself must stay.
bool MustStay(std::error_code error) {
  return error == std::errc::operation_not_permitted || error == std::errc::permission_denied ||
         error == std::errc::operation_not_supported;
}

enum class Way { Renamed, MustStay };

std::error_code Replace(const Target& target, std::string_view bytes, Way& way) {
  TemporaryFile temporary;
  std::error_code error = temporary.Create(target.file, target.Exists() ? 0600 : target.rules.mode);
  if (error) return error;
  if (target.Exists()) error = TakeAttributes(temporary.Descriptor(), target.file, target.was);
  if (MustStay(error)) {
    way = Way::MustStay;
    return {};
  }
  if (!error) error = Fill(temporary.Descriptor(), bytes);
  if (!error && !IsStillExpected(target)) error = FileFault::Changed;
  if (!error) error = temporary.RenameTo(target.file, MayReplace(target));
  if (!error) FlushFolder(target.file.parent_path());
  return error;
}

std::error_code Overwrite(int descriptor, std::string_view bytes) {
  if (::lseek(descriptor, 0, SEEK_SET) != 0) return LastError();
  std::error_code error = WriteAll(descriptor, bytes);
  if (!error && ::ftruncate(descriptor, static_cast<off_t>(bytes.size())) != 0) error = LastError();
  return error ? error : Flush(descriptor);
}

// Room is taken before a byte is changed; what goes wrong all the same is undone as far as that goes.
std::error_code OverwriteOrRestore(const Target& target, std::string_view bytes) {
  std::string former;
  std::error_code error = ReadWhole(target.file, static_cast<std::size_t>(target.was.st_size), former);
  const OpenFile out(target.file, O_WRONLY | O_NOFOLLOW | O_NONBLOCK);
  if (!error && !out) error = LastError();
  if (error) return error;
  if (::posix_fallocate(out.Descriptor(), 0, static_cast<off_t>(std::max<std::size_t>(bytes.size(), 1))) == ENOSPC) {
    error = ErrorOf(std::errc::no_space_on_device);
  } else {
    error = Overwrite(out.Descriptor(), bytes);
  }
  if (error) Overwrite(out.Descriptor(), former);
  return error;
}

std::error_code WriteInPlace(const Target& target, std::string_view bytes) {
  const Target beside{CopyBeside(target.file), {nullptr, target.was.st_mode & 0777}, {}};
  Way way = Way::Renamed;
  if (const std::error_code error = Replace(beside, bytes, way)) return error;
  if (!IsStillExpected(target)) {
    ::unlink(beside.file.c_str());
    return FileFault::Changed;
  }
  const std::error_code error = OverwriteOrRestore(target, bytes);
  if (!error) ::unlink(beside.file.c_str());
  return error;
}

// A temporary file that somebody took away, where files cannot be locked, is written once more.
std::error_code Put(const Target& target, std::string_view bytes) {
  if (target.was.st_nlink > 1) return WriteInPlace(target, bytes);
  Way way = Way::Renamed;
  std::error_code error = Replace(target, bytes, way);
  if (error == std::errc::no_such_file_or_directory) error = Replace(target, bytes, way);
  return way == Way::MustStay ? WriteInPlace(target, bytes) : error;
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

std::error_code CheckPlain(const struct stat& found) {
  if (S_ISDIR(found.st_mode)) return ErrorOf(std::errc::is_a_directory);
  return S_ISREG(found.st_mode) ? std::error_code() : FileFault::NotPlain;
}

}  // namespace

Path CopyBeside(const Path& file) {
  Path beside = file;
  beside += kBesideEnding;
  return beside;
}

std::error_code WriteAtomically(const Path& given, std::string_view bytes, const WriteRules& rules) {
  Target target{Resolved(given), rules, {}};
  if (::stat(target.file.c_str(), &target.was) != 0) {
    return errno == ENOENT ? Put({target.file, rules, {}}, bytes) : LastError();
  }
  if (const std::error_code error = CheckPlain(target.was)) return error;
  if (::faccessat(AT_FDCWD, target.file.c_str(), W_OK, AT_EACCESS) != 0) return LastError();
  return Put(target, bytes);
}

// Looked at before it is opened, for opening a device may do something; and again after, for it may have been changed.
std::error_code ReadWhole(const Path& file, std::size_t limit, std::string& bytes) {
  struct stat found {};
  if (::stat(file.c_str(), &found) != 0) return LastError();
  if (const std::error_code error = CheckPlain(found)) return error;
  const OpenFile in(file, O_RDONLY | O_NONBLOCK | O_NOCTTY);
  if (!in || ::fstat(in.Descriptor(), &found) != 0) return LastError();
  if (const std::error_code error = CheckPlain(found)) return error;
  const auto size = static_cast<std::size_t>(found.st_size);
  if (size > limit) return ErrorOf(std::errc::file_too_large);
  bytes.resize(size + 1);  // one more, so that the read that ends the file needs no larger buffer
  return ReadAll(in.Descriptor(), limit, bytes);
}

}  // namespace xrpt
