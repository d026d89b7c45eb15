#include "host/FileLocks.h"

#include <pwd.h>

#include <array>

#include "host/AtomicWrite.h"
#include "host/IniSettings.h"
#include "host/TemporaryFile.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr std::size_t kLimit = 1u << 16;
constexpr std::size_t kMaxNamePart = 200;
constexpr int kAttempts = 4;
constexpr std::wstring_view kSection = L"lock";
constexpr std::string_view kEnding = ".lock";

std::string ReadText(const Path& file) {
  std::string bytes;
  return ReadWhole(file, kLimit, bytes) ? std::string() : bytes;
}

std::wstring FirstLine(const Path& file) {
  const std::string text = ReadText(file);
  return FromUtf8(std::string_view(text).substr(0, text.find('\n')));
}

// The same for everything that runs on one kernel, and another after each start.
std::wstring BootId() { return FirstLine("/proc/sys/kernel/random/boot_id"); }

std::wstring UserName() {
  const struct passwd* user = ::getpwuid(::geteuid());
  return user ? FromUtf8(user->pw_name) : std::to_wstring(::geteuid());
}

std::wstring MachineName() {
  std::array<char, 256> name{};
  ::gethostname(name.data(), name.size() - 1);
  return FromUtf8(name.data());
}

std::string LockText(const std::string& token) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  IniSections sections;
  IniSection& lock = sections[std::wstring(kSection)];
  lock[L"token"] = FromUtf8(token);
  lock[L"user"] = UserName();
  lock[L"machine"] = MachineName();
  lock[L"process"] = std::to_wstring(::getpid());
  lock[L"boot"] = BootId();
  lock[L"since"] = std::to_wstring(std::chrono::duration_cast<std::chrono::seconds>(now).count());
  return WriteIni(sections);
}

IniSection ReadLock(const Path& lock) {
  IniSections sections = ParseIni(ReadText(lock));
  return sections[std::wstring(kSection)];
}

std::string TokenIn(const Path& lock) { return ToUtf8(ReadLock(lock)[L"token"]); }

LockHolder HolderIn(IniSection lock) {
  return {lock[L"user"], lock[L"machine"], std::atoll(ToUtf8(lock[L"since"]).c_str())};
}

bool IsSilent(const Path& lock, std::int64_t now) {
  struct stat found {};
  if (::stat(lock.c_str(), &found) != 0) return false;
  const std::int64_t silence = std::chrono::nanoseconds(FileLocks::kSilence).count();
  const std::int64_t since = now - StampOf(found).modified;
  return since > silence || since < -silence;
}

// Out of the way first, so that of several who find it abandoned only one goes on; and back, when it is another by
// then.
void Break(const Path& lock, const std::string& token) {
  Path aside = lock.parent_path() / (".xrpt-" + RandomToken() + ".tmp");
  if (::rename(lock.c_str(), aside.c_str()) != 0) return;
  if (TokenIn(aside) == token || RenameToFreeName(aside.c_str(), lock.c_str()) != 0) ::unlink(aside.c_str());
}

}  // namespace

Path LockFileOf(const Path& file) {
  std::error_code ignored;
  Path target = std::filesystem::weakly_canonical(file, ignored);
  if (target.empty()) target = file;
  std::string name = target.filename().string();
  if (name.size() > kMaxNamePart) {
    name = name.substr(0, kMaxNamePart) + std::to_string(std::hash<std::string>()(name));
  }
  return target.parent_path() / ("." + name + std::string(kEnding));
}

bool IsLockName(std::string_view name) { return name.starts_with('.') && name.ends_with(kEnding); }

bool IsOurLock(const Path& lock) { return !TokenIn(lock).empty(); }

bool IsLockAbandoned(const Path& lock, std::int64_t now) {
  IniSection text = ReadLock(lock);
  if (text[L"token"].empty()) return IsSilent(lock, now);
  OpenFile open(lock, O_RDWR | O_NOFOLLOW | O_NONBLOCK);
  if (!open) open = OpenFile(lock, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);  // another user's
  const FileLock state = open ? TryLock(open.Descriptor()) : FileLock::NotToBeHad;
  if (state == FileLock::Others) return false;
  if (state == FileLock::Mine && text[L"boot"] == BootId()) return true;
  return IsSilent(lock, now);
}

FileLocks::~FileLocks() {
  while (!held_.empty()) Release(Path(held_.begin()->first));
}

// Leaves the file system's time in `now`. `FileFault::Changed` when there is a lock already.
std::error_code FileLocks::Make(const Path& file, const Path& lock, std::int64_t& now) {
  const std::string token = RandomToken();
  TemporaryFile made;
  std::error_code error = made.Create(lock, 0644);
  if (!error) error = WriteAll(made.Descriptor(), LockText(token));
  struct stat found {};
  if (!error && ::fstat(made.Descriptor(), &found) != 0) error = LastError();
  now = StampOf(found).modified;
  if (!error) error = made.RenameTo(lock, false);
  if (!error) held_[file] = {lock, token, made.Take()};
  return error;
}

LockState FileLocks::Take(const Path& file) {
  const Path lock = LockFileOf(file);
  for (int i = 0; i < kAttempts; ++i) {
    std::int64_t now = 0;
    const std::error_code error = Make(file, lock, now);
    if (!error) return {};
    if (error != FileFault::Changed) return {LockOutcome::NotToBeHad, {}, error.message()};
    const IniSection holder = ReadLock(lock);
    const std::string token = TokenIn(lock);
    if (held_.contains(file) && held_[file].token == token) return {};
    if (!IsLockAbandoned(lock, now)) return {LockOutcome::Others, HolderIn(holder), {}};
    Break(lock, token);
  }
  return {LockOutcome::Others, HolderIn(ReadLock(lock)), {}};
}

LockState FileLocks::TakeOver(const Path& file) {
  const Path lock = LockFileOf(file);
  if (held_.contains(file) && TokenIn(lock) == held_[file].token) return {};
  Break(lock, TokenIn(lock));
  return Take(file);
}

void FileLocks::Release(const Path& file) {
  const auto held = held_.find(file);
  if (held == held_.end()) return;
  if (TokenIn(held->second.lock) == held->second.token) ::unlink(held->second.lock.c_str());
  held_.erase(held);
}

std::vector<Path> FileLocks::Beat() {
  std::vector<Path> lost;
  for (auto at = held_.begin(); at != held_.end();) {
    const bool isMine = TokenIn(at->second.lock) == at->second.token;
    if (isMine) ::futimens(at->second.open.Descriptor(), nullptr);
    if (!isMine) lost.push_back(at->first);
    at = isMine ? std::next(at) : held_.erase(at);
  }
  return lost;
}

}  // namespace xrpt
