#include "desktop/FileKeeper.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLocale>
#include <QSessionManager>
#include <QWidget>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DifferencesDialog.h"
#include "desktop/dialogs/RecoveryDialog.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/MessageBar.h"
#include "editor/FileQuestions.h"
#include "editor/RVEditControlWnd.h"
#include "platform/FileTexts.h"

namespace xrpt {
namespace {

constexpr int kKeepAfter = 3000;   // milliseconds
constexpr int kKeepingShare = 20;  // a large report is kept so rarely that it takes a twentieth of the time
constexpr std::chrono::milliseconds kLookEvery{700};

QString FileName(const Path& file) { return ToQString(file.filename().wstring()); }

bool IsSameVersion(const FileVersion& a, const FileVersion& b) { return a.stamp == b.stamp && a.hash == b.hash; }

}  // namespace

FileKeeper::FileKeeper(RVEditControlWnd& frame, MessageBar& messages, QWidget& window)
    : frame_(frame), messages_(messages), window_(window) {
  keeping_.setSingleShot(true);
  keeping_.setInterval(kKeepAfter);
  connect(&keeping_, &QTimer::timeout, this, [this] { KeepUnsaved(); });
  connect(&beating_, &QTimer::timeout, this, [this] { Beat(); });
  beating_.start(LockService::kBeatSeconds * 1000);
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& manager) { OnSessionEnd(manager); },
      Qt::DirectConnection);
  watcher_ = std::make_unique<FileWatcher>(*CurrentHost().files, kLookEvery, [this](const std::vector<Path>& changed) {
    QMetaObject::invokeMethod(
        this, [this, changed] { OnChanged(changed); }, Qt::QueuedConnection);
  });
  watcher_->Do([cfg = CurrentHost().setup->CfgPath(), images = CurrentHost().setup->ImagesPath()](FileWatch& watch) {
    watch.AddFolder(cfg, {L".XSTY", L".xdct", L"devices.xml"});
    watch.AddFolder(images, {L".img"});
    CurrentHost().files->ClearLeftovers(cfg);
  });
}

void FileKeeper::Refresh() {
  WatchReport();
  if (!frame_.IsModified()) return frame_.KeepUnsaved();
  if (!keeping_.isActive()) keeping_.start();
}

// --- Unsaved work ---

void FileKeeper::KeepUnsaved() {
  QElapsedTimer taken;
  taken.start();
  frame_.KeepUnsaved();
  keeping_.setInterval(std::max(kKeepAfter, kKeepingShare * static_cast<int>(taken.elapsed())));
}

void FileKeeper::OfferRecovered() {
  RecoveryService* recovery = CurrentHost().recovery.get();
  const std::vector<Recovered> left = recovery ? recovery->Left() : std::vector<Recovered>();
  if (left.empty()) return;
  const std::optional<Recovered> chosen = RecoveryDialog::Choose(left, &window_);
  if (!chosen) return;
  const LoadResult result = frame_.OpenRecovered(*chosen);
  if (!result.loaded || result.cancelled) return;
  std::vector<MessageChoice> choices;
  if (!recovery->Left().empty()) choices.push_back({Translated(text::kShowRecovered), [this] { OfferRecovered(); }});
  const QDateTime kept = QDateTime::fromSecsSinceEpoch(chosen->since);
  messages_.Show(Translated(text::kRecoveredOpened, QLocale().toString(kept, QLocale::ShortFormat)), false, choices);
}

// Without a way to ask, what is not saved waits for the next session.
void FileKeeper::OnSessionEnd(QSessionManager& manager) {
  if (!manager.allowsInteraction()) return frame_.KeepUnsaved();
  if (!window_.close()) manager.cancel();
}

// --- What others change ---

void FileKeeper::WatchReport() {
  const RVReport& report = frame_.Report();
  if (report.File() == watched_ && IsSameVersion(report.OnDisk(), known_)) return;
  watcher_->Do([former = watched_, file = report.File(), known = report.OnDisk()](FileWatch& watch) {
    if (!former.empty()) watch.Remove(former);
    if (!file.empty()) watch.Add(file, known);
  });
  watched_ = report.File();
  known_ = report.OnDisk();
}

void FileKeeper::OnChanged(const std::vector<Path>& changed) {
  Host& host = CurrentHost();
  for (const Path& path : changed) {
    if (path == host.setup->CfgPath()) {
      host.identifiers->invalidateGuid(GuidKind::Styles, true);
      frame_.StylesModified();
    }
    if (path == host.setup->ImagesPath()) frame_.ImagesModified();
    if (path == frame_.Report().File()) OfferReload();
  }
}

// The watcher may have seen our own save before it was told.
void FileKeeper::OfferReload() {
  const RVReport& report = frame_.Report();
  if (!report.HasChangedOnDisk()) return;
  if (!CurrentHost().files->Stamp(report.File()).exists) {
    frame_.SetModified(true);
    return messages_.Show(Translated(text::kGoneMeanwhile, FileName(report.File())), true);
  }
  const int reload = frame_.IsModified() ? text::kReloadAndLose : text::kReload;
  messages_.Show(Translated(text::kChangedMeanwhile, FileName(report.File())), true,
                 {{Translated(reload), [this] { Reload(); }},
                  {Translated(text::kShowDifferences), [this] { ShowDifferences(); }}});
}

void FileKeeper::Reload() {
  const std::size_t page = frame_.CurrentPageIndex();
  frame_.Reload();
  frame_.ShowPage(std::min(page, frame_.PageCount() - 1));
}

// Afterwards there is still something to decide.
void FileKeeper::ShowDifferences() {
  DifferencesDialog(frame_.Report().File(), frame_.Report(), &window_).exec();
  OfferReload();
}

void FileKeeper::ReportOpened(const LoadResult& result) {
  if (frame_.IsReadOnly())
    return messages_.Show(Translated(text::kReadOnlyBecause, ToQString(HolderText(frame_.Holder()))), false);
  if (result.lostStyles > 0) messages_.Show(Translated(text::kStylesLost, QString::number(result.lostStyles)), true);
}

void FileKeeper::Beat() {
  if (frame_.Beat()) messages_.Show(Translated(text::kTakenOver, FileName(frame_.Report().File())), true);
}

}  // namespace xrpt
