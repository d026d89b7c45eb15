// The flows of the frame that open, save and let go of a report. With guarded files nothing is lost or written over
// unasked; without, they do what hosts know.
#include "editor/EditorTexts.h"
#include "editor/FileQuestions.h"
#include "editor/RVEditControlWnd.h"
#include "platform/FileTexts.h"
#include "platform/NamedFiles.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr SaveRules kGuarded{true, true};

SaveResult Cancelled() { return {SaveOutcome::Cancelled, {}, {}, {}}; }

bool IsForTheUser(const SaveResult& result) {
  return result.outcome == SaveOutcome::Changed || result.outcome == SaveOutcome::Taken ||
         result.outcome == SaveOutcome::Locked;
}

}  // namespace

// --- Opening ---

template <class Load>
LoadResult RVEditControlWnd::LoadWith(const Load& load) {
  RVReport report;
  LoadResult result = load(report);
  const std::optional<LockState> lock = Enter(result);
  result.cancelled = !lock && result.loaded;
  if (!lock) return result;
  Show(std::move(report), *lock);
  lostStyles_ = result.lostStyles;
  port_.ReportOpened(result);
  return result;
}

// What cannot be opened leaves the open report alone.
std::optional<LockState> RVEditControlWnd::Enter(const LoadResult& result) {
  if (!options_.guardsFiles) return LockState();
  if (result.loaded) return LockOf(result.file);
  port_.ReportOpened(result);
  return std::nullopt;
}

// Whoever has it open already is named, and the user says what shall be. Nothing when the user lets it be.
std::optional<LockState> RVEditControlWnd::LockOf(const Path& file) {
  if (file.empty()) return LockState();
  if (guard_.IsReadOnly() && file == guard_.File()) return guard_.Lock();
  const LockState lock = guard_.Take(file, false);
  if (lock.outcome != LockOutcome::Others) return lock;
  const Question question = AskToOpenLocked(NameOfFile(file, kReportEnding), lock.holder);
  switch (question.answers[port_.Decide(question)]) {
    case text::kOpenReadOnly:
      return lock;
    case text::kTakeOver:
      return guard_.Take(file, true);
    default:
      return std::nullopt;
  }
}

void RVEditControlWnd::Show(RVReport report, const LockState& lock) {
  DropPages();
  report_ = std::move(report);
  ReadNotes();
  guard_.Drop();
  guard_.Enter(report_.File(), lock);
  lostStyles_ = 0;
  StartAnew();
}

LoadResult RVEditControlWnd::Setup(const std::wstring& nameOrPath) {
  return LoadWith([&](RVReport& report) { return report.Load(nameOrPath); });
}

LoadResult RVEditControlWnd::OpenFile(const Path& file, const std::wstring* askedName) {
  return LoadWith([&](RVReport& report) { return report.LoadFile(file, askedName); });
}

LoadResult RVEditControlWnd::Reload() {
  const Path file = report_.File();
  const std::wstring name = report_.name;
  return OpenFile(file, &name);
}

// What was kept goes on being kept, under a number of ours, until it is saved or decided against.
LoadResult RVEditControlWnd::OpenRecovered(const Recovered& work) {
  if (!LetGoOfChanges()) {
    LoadResult cancelled;
    cancelled.cancelled = true;
    return cancelled;
  }
  const LoadResult result = LoadWith([&](RVReport& report) {
    LoadResult loaded = report.LoadFile(work.text);
    if (!loaded.loaded) return loaded;
    report.BelongTo(work.file);
    loaded.file = work.file;
    return loaded;
  });
  if (!result.loaded || result.cancelled) return result;
  SetModified(true);
  KeepUnsaved();
  RecoveryService& recovery = *CurrentHost().recovery;
  if (recovery.Wait()) recovery.Discard(work);
  return result;
}

bool RVEditControlWnd::OpenFromList() {
  if (!LetGoOfChanges()) return false;
  const std::optional<std::wstring> chosen = port_.ChooseReport(report_.name);
  if (!chosen || *chosen == report_.name) return false;
  const LoadResult result = OpenByName(*chosen);
  if (options_.guardsFiles && (!result.loaded || result.cancelled)) return false;
  CurrentHost().settings->SetRegistryText(kLastReportValue, report_.name);
  return true;
}

// A report of the list may be stored under its bare name, without an identifier before it.
LoadResult RVEditControlWnd::OpenByName(const std::wstring& name) {
  const Path folder = CurrentHost().setup->CfgPath();
  if (FindNamedFile(folder, name, kReportEnding)) return Setup(name);
  return Setup(FromUtf8((folder / ToUtf8(name + std::wstring(kReportEnding))).string()));
}

bool RVEditControlWnd::NewReport() {
  if (!LetGoOfChanges()) return false;
  Show(RVReport(), {});
  return true;
}

bool RVEditControlWnd::OpenInstead(const Path& file) {
  if (!LetGoOfChanges()) return false;
  const LoadResult result = OpenFile(file, nullptr);
  return result.loaded && !result.cancelled;
}

LoadResult RVEditControlWnd::NewFrom(const Path& sample) {
  if (!LetGoOfChanges()) {
    LoadResult cancelled;
    cancelled.cancelled = true;
    return cancelled;
  }
  return LoadWith([&](RVReport& report) {
    LoadResult loaded = report.LoadFile(sample);
    if (!loaded.loaded) return loaded;
    report.BelongTo({});
    report.name.clear();
    report.id = RVReport().id;
    report.modified = false;
    loaded.file.clear();
    return loaded;
  });
}

// --- Letting go ---

bool RVEditControlWnd::LetGoOfChanges() {
  if (!report_.modified) return true;
  if (!options_.guardsFiles) return port_.Ask(text::kSaveChanges) == Answer::No || Save();
  const Question question = AskToSave(Caption());
  switch (question.answers[port_.Decide(question)]) {
    case text::kSaveAnswer:
      return Save();
    case text::kDontSave:
      return true;
    default:
      return false;
  }
}

bool RVEditControlWnd::MayClose() {
  if (!LetGoOfChanges()) return false;
  guard_.Drop();
  return true;
}

// --- Saving ---

bool RVEditControlWnd::Save() {
  EndEdits();
  return Conclude(options_.guardsFiles ? SaveGuarded() : report_.Save());
}

bool RVEditControlWnd::Conclude(SaveResult result) {
  lastSave_ = std::move(result);
  if (lastSave_) {
    MarkSaved();
    lostStyles_ = 0;
    guard_.Drop();
    if (options_.guardsFiles && report_.File() != guard_.File())
      guard_.Enter(report_.File(), guard_.Take(report_.File(), false));
    if (!notes_.IsEmpty()) KeepNotes();
    ReportListChanged();
  } else if (lastSave_.outcome != SaveOutcome::Cancelled) {
    port_.SaveFailed(lastSave_);
  }
  port_.StateChanged();
  return static_cast<bool>(lastSave_);
}

SaveResult RVEditControlWnd::SaveGuarded() {
  if (!MayLoseStyles() || !HasName()) return Cancelled();
  SaveResult result = Attempt();
  while (IsForTheUser(result)) result = AfterRefusal(result);
  return result;
}

SaveResult RVEditControlWnd::Attempt() {
  if (!guard_.IsReadOnly() || report_.FilePath(kGuarded) != report_.File()) return report_.Save(kGuarded);
  return {SaveOutcome::Locked, report_.File(), {}, {}};
}

SaveResult RVEditControlWnd::AfterRefusal(const SaveResult& refused) {
  const bool isLocked = refused.outcome == SaveOutcome::Locked;
  const Question question = isLocked ? AskToSaveLocked(Caption(), guard_.Holder()) : AskToReplace(refused);
  switch (question.answers[port_.Decide(question)]) {
    case text::kShowDifferences:
      port_.ShowDifferences(refused.file, report_);
      return refused;
    case text::kTakeOver:
      guard_.Enter(report_.File(), guard_.Take(report_.File(), true));
      return Attempt();
    case text::kOverwrite:
    case text::kSaveAnswer:
      return report_.SaveTo(refused.file);
    case text::kSaveAsAnswer:
      lastSave_ = Cancelled();
      port_.RunCommand("SaveAs");
      return lastSave_;
    default:
      return Cancelled();
  }
}

bool RVEditControlWnd::MayLoseStyles() {
  if (lostStyles_ == 0) return true;
  const Question question = AskToLoseStyles(Caption(), lostStyles_);
  return question.answers[port_.Decide(question)] == text::kSaveAnyway;
}

bool RVEditControlWnd::HasName() {
  if (!report_.name.empty()) return true;
  const std::optional<std::wstring> name = port_.AskForName(report_.FreeName());
  if (!name) return false;
  report_.name = *name;
  return true;
}

bool RVEditControlWnd::SaveAs(const std::wstring& name) {
  return SaveAsAnother(name, [this] { return Save(); });
}

bool RVEditControlWnd::SaveAsFile(const Path& file) {
  return SaveAsAnother(NameOfFile(file, kReportEnding), [this, &file] {
    EndEdits();
    return Conclude(MayLoseStyles() ? report_.SaveTo(file) : Cancelled());
  });
}

// A guarded report that could not be saved under its new name goes on under the old one.
template <class SaveIt>
bool RVEditControlWnd::SaveAsAnother(const std::wstring& name, const SaveIt& save) {
  const std::wstring formerName = std::exchange(report_.name, name);
  const std::wstring formerId = std::exchange(report_.id, CurrentHost().guids->NewGuidText());
  const bool wasModified = std::exchange(report_.modified, true);
  if (save()) return true;
  if (!options_.guardsFiles) return false;
  report_.name = formerName;
  report_.id = formerId;
  report_.modified = wasModified;
  port_.StateChanged();
  return false;
}

bool RVEditControlWnd::SaveUnderGeneratedName() {
  const std::wstring former = std::exchange(report_.name, std::wstring());
  const bool saved = Save();
  if (!saved) report_.name = former;
  return saved;
}

void RVEditControlWnd::ReportListChanged() { CurrentHost().identifiers->invalidateGuid(GuidKind::Reports, true); }

// --- What a crash must not take ---

void RVEditControlWnd::KeepUnsaved() {
  if (!options_.guardsFiles) return;
  report_.modified ? guard_.Keep(report_, changes_) : guard_.Drop();
}

}  // namespace xrpt
