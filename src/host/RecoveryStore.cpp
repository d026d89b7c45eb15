#include "host/RecoveryStore.h"

#include <algorithm>

#include "host/AtomicWrite.h"
#include "host/IniSettings.h"
#include "host/Leftovers.h"
#include "host/TemporaryFile.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

namespace fs = std::filesystem;

constexpr const char* kText = ".xrpt";
constexpr const char* kNote = ".ini";
constexpr const char* kSessionFile = "session";
constexpr std::size_t kMaxNote = 1u << 16;
constexpr std::wstring_view kSection = L"report";

bool MakePrivateFolder(const Path& folder) {
  std::error_code error;
  fs::create_directories(folder.parent_path(), error);
  return ::mkdir(folder.c_str(), 0700) == 0 || fs::is_directory(folder, error);
}

std::string NoteOf(const Recovered& origin) {
  IniSections sections;
  sections[std::wstring(kSection)][L"name"] = origin.name;
  sections[std::wstring(kSection)][L"file"] = FromUtf8(origin.file.string());
  return WriteIni(sections);
}

std::int64_t SecondsOf(const Path& file) {
  struct stat found {};
  return ::stat(file.c_str(), &found) == 0 ? found.st_mtim.tv_sec : 0;
}

Recovered ReadLeft(const Path& text) {
  std::string bytes;
  if (ReadWhole(Path(text).replace_extension(kNote), kMaxNote, bytes)) bytes.clear();
  IniSections sections = ParseIni(bytes);
  IniSection& note = sections[std::wstring(kSection)];
  return {text, ToUtf8(note[L"file"]), note[L"name"], SecondsOf(text)};
}

void RemoveBoth(const Path& text) {
  ::unlink(text.c_str());
  ::unlink(Path(text).replace_extension(kNote).c_str());
}

bool HoldsWork(const Path& session) {
  std::error_code error;
  for (fs::directory_iterator at(session, error); !error && at != fs::directory_iterator(); at.increment(error)) {
    if (at->path().extension() == kText) return true;
  }
  return false;
}

// A note without its text is left of a session that was killed between the two.
void RemoveSession(const Path& session) {
  std::error_code error;
  for (fs::directory_iterator at(session, error); !error && at != fs::directory_iterator(); at.increment(error)) {
    if (at->path().extension() == kNote) ::unlink(at->path().c_str());
  }
  ::unlink((session / kSessionFile).c_str());
  ::rmdir(session.c_str());
}

}  // namespace

RecoveryStore::~RecoveryStore() {
  {
    const std::lock_guard guard(mutex_);
    ends_ = true;
  }
  changed_.notify_all();
  if (thread_.joinable()) thread_.join();
  if (!session_.empty() && !HoldsWork(session_)) RemoveSession(session_);
}

void RecoveryStore::Keep(int number, const Recovered& origin, std::string text) {
  Put(number, {origin, std::move(text)});
}

void RecoveryStore::Drop(int number) { Put(number, {}); }

void RecoveryStore::Put(int number, Task task) {
  const std::lock_guard guard(mutex_);
  if (!thread_.joinable()) {
    if (!task.text) return;
    thread_ = std::thread([this] { Work(); });
  }
  waiting_[number] = std::move(task);
  changed_.notify_all();
}

SaveResult RecoveryStore::Wait() {
  std::unique_lock guard(mutex_);
  changed_.wait(guard, [this] { return waiting_.empty() && !isBusy_; });
  return failure_;
}

void RecoveryStore::Work() {
  std::unique_lock guard(mutex_);
  for (;;) {
    changed_.wait(guard, [this] { return ends_ || !waiting_.empty(); });
    if (waiting_.empty()) return;
    const auto task = waiting_.extract(waiting_.begin());
    isBusy_ = true;
    guard.unlock();
    SaveResult result = Carry(task.key(), task.mapped());
    guard.lock();
    failure_ = std::move(result);
    isBusy_ = false;
    changed_.notify_all();
  }
}

// A failure is told once, not every few seconds.
SaveResult RecoveryStore::Carry(int number, const Task& task) {
  if (!task.text) {
    RemoveBoth(FileOf(number, kText));
    return {};
  }
  SaveResult result = Write(number, task);
  if (!result) result = Write(number, task);  // somebody took the folder for one that was left
  if (!result && failure_) {
    host_.logger->Log(3, FromUtf8("RecoveryStore::Keep(): " + result.file.string() + ": " + result.reason));
  }
  return result;
}

SaveResult RecoveryStore::Write(int number, const Task& task) {
  const WriteRules privately{nullptr, 0600};
  if (!OpenSession()) return {SaveOutcome::Failed, folder_, LastError().message(), {}};
  std::error_code error = WriteAtomically(FileOf(number, kNote), NoteOf(task.origin), privately);
  if (!error) error = WriteAtomically(FileOf(number, kText), *task.text, privately);
  return {error ? SaveOutcome::Failed : SaveOutcome::Saved, FileOf(number, kText), error ? error.message() : "", {}};
}

bool RecoveryStore::OpenSession() {
  std::error_code error;
  if (alive_ && fs::exists(session_, error)) return true;
  if (!MakePrivateFolder(folder_)) return false;
  session_ = folder_ / RandomToken();
  if (!MakePrivateFolder(session_)) return false;
  alive_ = OpenFile(session_ / kSessionFile, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, 0600);
  if (alive_) TryLock(alive_.Descriptor());
  return static_cast<bool>(alive_);
}

Path RecoveryStore::FileOf(int number, const char* ending) const {
  return session_ / (std::to_string(number) + ending);
}

std::vector<Recovered> RecoveryStore::Left() {
  for (const Path& old : FindOldRecoveries(folder_.parent_path())) ::unlink(old.c_str());
  std::vector<Recovered> left;
  std::error_code error;
  for (fs::directory_iterator at(folder_, error); !error && at != fs::directory_iterator(); at.increment(error)) {
    std::error_code ignored;
    if (at->is_directory(ignored)) AddLeft(at->path(), left);
  }
  std::sort(left.begin(), left.end(), [](const Recovered& a, const Recovered& b) { return a.since > b.since; });
  return left;
}

void RecoveryStore::AddLeft(const Path& session, std::vector<Recovered>& left) {
  if (!adopted_.contains(session)) {
    OpenFile alive(session / kSessionFile, O_RDWR | O_NOFOLLOW | O_NONBLOCK);
    if (alive && TryLock(alive.Descriptor()) == FileLock::Others) return;
    adopted_[session] = std::move(alive);
  }
  for (const Path& file : FindLeftovers(session)) ::unlink(file.c_str());
  if (!HoldsWork(session)) return RemoveSession(session);
  std::error_code error;
  for (fs::directory_iterator at(session, error); !error && at != fs::directory_iterator(); at.increment(error)) {
    if (at->path().extension() == kText) left.push_back(ReadLeft(at->path()));
  }
}

void RecoveryStore::Discard(const Recovered& recovered) {
  const Path session = recovered.text.parent_path();
  if (session.parent_path() != folder_) return;
  RemoveBoth(recovered.text);
  if (!HoldsWork(session)) RemoveSession(session);
}

}  // namespace xrpt
