// Files as the library asks for them: reading within a limit, writing that says what became of it, and knowing a file
// that somebody else changed meanwhile.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace xrpt {

using Path = std::filesystem::path;

struct FileError {
  std::string reason;  // the system's own word, for people
};

// Which file it was, when it was written last and how large, at the moment it was looked at. Two equal stamps mean
// nobody wrote in between, as far as clocks can tell; `FileVersion` looks at the content too.
struct FileStamp {
  std::int64_t modified = 0;  // nanoseconds, the file system's clock
  std::uintmax_t size = 0;
  bool exists = false;
  std::int64_t changed = 0;  // nanoseconds; content, owner or name; no program sets it back
  std::uint64_t device = 0;
  std::uint64_t file = 0;  // its number on the device
  bool operator==(const FileStamp&) const = default;
};

// What a file held when it was read, or that there was none.
struct FileVersion {
  FileStamp stamp;
  std::size_t hash = 0;

  FileVersion() = default;
  // `before` is the stamp taken before the bytes were read, so that whatever came after it is noticed.
  FileVersion(const FileStamp& before, std::string_view bytes);
};

enum class SaveOutcome {
  Saved,
  Failed,     // `reason` says why
  Changed,    // the file on disk is another than the one that was read: nothing was written
  Taken,      // there is a file already, which is not the one that was opened: nothing was written
  BadName,    // the name cannot be a file's, or there is none
  Locked,     // somebody else has the report open: nothing was written
  Cancelled,  // the user let it be
};

// What became of a save. The old file is whole whenever it did not succeed.
struct SaveResult {
  SaveOutcome outcome = SaveOutcome::Saved;
  Path file;           // where it was to go
  std::string reason;  // the system's own word, for people
  Path kept;           // where the bytes that could not be written wait; empty when nowhere

  explicit operator bool() const { return outcome == SaveOutcome::Saved; }
};

// One sentence for the user: what could not be saved and why. Empty for a save that succeeded.
std::wstring TextOf(const SaveResult& result);

class FileService {
 public:
  virtual ~FileService() = default;
  // The whole file. Nothing, and a reason, for a missing file, a folder, a pipe or device, one without permission, one
  // above the limit.
  virtual std::optional<std::string> Read(const Path& file, std::size_t limit, FileError* error = nullptr) = 0;
  // All or nothing: the old file stays until the new one is safe on disk. With an expected version nothing is written
  // over a file that is another by now (`Changed`). A failure is logged at severity 4 with the path and the system's
  // reason, and the bytes are kept as a recovery file.
  virtual SaveResult Write(const Path& file, std::string_view bytes, const FileVersion* expected = nullptr) = 0;
  // Files of a folder whose name ends with the ending (".xrpt"), by name. A missing folder has none.
  virtual std::vector<Path> List(const Path& folder, std::wstring_view ending) = 0;
  virtual bool CreateFolder(const Path& folder) = 0;
  virtual bool Rename(const Path& from, const Path& to) = 0;
  virtual bool Remove(const Path& file) = 0;
  virtual FileStamp Stamp(const Path& file) = 0;
  // Clears away what interrupted saves left in a folder, and what was kept of failed ones when it is of age. Gives what
  // was removed.
  virtual std::vector<Path> ClearLeftovers(const Path&) { return {}; }
};

// Whether the file holds something else than when it was read, or came or went since. A file that was written anew with
// the same content has not changed; one that can no longer be read has.
bool HasChanged(FileService& files, const Path& file, const FileVersion& since);

}  // namespace xrpt
