// Looks after the files of the window's report while it is open: keeps unsaved work a few seconds after a change,
// offers to reload what others changed, takes new styles and pictures over, and says that we are still there.
#pragma once

#include <QTimer>
#include <memory>

#include "desktop/FileWatcher.h"
#include "model/RVReport.h"

class QSessionManager;
class QWidget;

namespace xrpt {

class MessageBar;
class RVEditControlWnd;

class FileKeeper final : public QObject {
 public:
  FileKeeper(RVEditControlWnd& frame, MessageBar& messages, QWidget& window);

  // Something of the report changed, or another is open.
  void Refresh();
  // What there is to say about a report that was opened.
  void ReportOpened(const LoadResult& result);
  // Shows what earlier sessions left unsaved, when there is any.
  void OfferRecovered();

 private:
  void KeepUnsaved();
  void WatchReport();
  void OnChanged(const std::vector<Path>& changed);
  void OfferReload();
  void Reload();
  void ShowDifferences();
  void Beat();
  void OnSessionEnd(QSessionManager& manager);

  RVEditControlWnd& frame_;
  MessageBar& messages_;
  QWidget& window_;
  QTimer keeping_;
  QTimer beating_;
  Path watched_;
  FileVersion known_;
  std::unique_ptr<FileWatcher> watcher_;
};

}  // namespace xrpt
