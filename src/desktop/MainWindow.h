// The editor's window: ribbon, page view, docks and status bar round one frame. It answers what the frame asks of an
// application and shows what the frame says has changed.
#pragma once

#include <QMainWindow>
#include <map>

#include "editor/EditorPort.h"
#include "editor/ExportChoice.h"
#include "editor/SelectedFields.h"
#include "model/RVReport.h"

class QDockWidget;
class QStackedWidget;

namespace xrpt {

class Actions;
class CornerBar;
class FileKeeper;
class FontGroup;
class HistoryPanel;
class MessageBar;
class Outline;
class PageFrame;
class PagePort;
class ProblemsDesk;
class PropertyPanel;
class Ribbon;
class RVEditControlWnd;
class SearchDialog;
class SideDocks;
class StartPage;
class StatusBar;

class MainWindow final : public QMainWindow, private EditorPort {
 public:
  // A host must be installed.
  MainWindow();
  ~MainWindow() override;

  RVEditControlWnd& Frame() { return *frame_; }
  const Actions& AllActions() const { return *actions_; }
  PageFrame& Pages() { return *pages_; }
  PropertyPanel& Properties() { return *properties_; }
  MessageBar& Messages() { return *messages_; }
  ProblemsDesk& Problems() { return *problems_; }
  FileKeeper& Files() { return *files_; }
  Ribbon& Tabs() { return *ribbon_; }

  // Whether a command of the catalogue is one that needs this window.
  bool Knows(std::string_view command) const;

  // Opens by name or path. What cannot be opened says why, above the page.
  void Open(const std::wstring& nameOrPath);
  // Where pages are, until something is opened or begun: recent reports and samples.
  void ShowStart();
  bool IsStartShown() const;
  void SetSamples(const Path& folder);
  StartPage& Start() { return *start_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // EditorPort
  std::unique_ptr<WindowPort> NewPageWindow() override;
  void PageWindowReady(WindowPort& port, RVEditTemplateWnd& window) override;
  void PageWindowGone(WindowPort& port) override;
  void ReportOpened(const LoadResult& result) override;
  void SaveFailed(const SaveResult& result) override;
  void PagesChanged() override;
  void StateChanged() override;
  bool RunCommand(const char* name) override;
  Answer Ask(int textId) override;
  void Tell(int textId) override;
  std::size_t Decide(const Question& question) override;
  std::optional<std::wstring> AskForName(const std::wstring& proposed) override;
  void ShowDifferences(const Path& file, const RVReport& report) override;
  std::optional<std::wstring> ChooseReport(const std::wstring& current) override;
  bool EditPageProperties(CDlgGlobalProperties& page) override;

  // Construction
  void BuildCentre();
  void BuildStart();
  void HideStart();
  void BuildRibbon();
  void AddInsertGroup();
  void BuildDocks();
  QDockWidget* AddPanel(const char* command, int titleId, const char* name, QWidget* content, Qt::DockWidgetArea area);
  void BuildStatusBar();
  void BuildKeys();
  void WatchLog();
  void RestoreLayout();
  void StoreLayout();
  void StorePanelSize();

  // Showing what changed
  void RefreshSoon();
  void Refresh();
  void ShowCaption();
  void ShowSelectionGeometry();
  void RefitZoom();
  void OnLogged(int severity, const QString& message);
  void Announce(const QString& message);

  // Commands that need a window
  using Act = void (MainWindow::*)();
  // Null for a command that is somebody else's.
  static Act ActOf(std::string_view command);
  void SaveAs();
  void ToggleSmartGuides();
  void ToggleAnimation();
  void ToggleRulers();
  void ToggleDarkTheme();
  void ApplySurround();
  // What is half typed, on the page or in a panel, is taken over.
  void Commit();
  void EditText();
  void DropFiles(const QStringList& files, QPoint at);
  void OpenPalette();
  void OpenShortcutSheet();
  // Dialogs over the report, see MainWindowDialogs.cpp
  SearchDialog& Searching();
  void OpenSearch();
  void OpenReplace();
  void SearchNext();
  void SearchPrevious();
  void OpenFormulas();
  void OpenSources();
  void OpenStyles();
  void OpenImageStore();
  void ExportPdf();
  void ExportImages();
  void Export(ExportFormat format);
  void WriteExport(const std::vector<Path>& files, const std::vector<std::string>& contents,
                   void (MainWindow::*again)());
  void Print();
  void PrintPreview();
  void ShowSwitches();
  void TogglePanel(QDockWidget& dock);
  void FocusNextArea(bool forward);

  QStackedWidget* centre_ = nullptr;
  PageFrame* pages_ = nullptr;
  StartPage* start_ = nullptr;
  HistoryPanel* historyPanel_ = nullptr;
  MessageBar* messages_ = nullptr;
  std::unique_ptr<RVEditControlWnd> frame_;
  std::unique_ptr<SelectedFields> fields_;
  std::unique_ptr<Actions> actions_;
  Ribbon* ribbon_ = nullptr;
  CornerBar* corner_ = nullptr;
  FontGroup* font_ = nullptr;
  Outline* outline_ = nullptr;
  PropertyPanel* properties_ = nullptr;
  ProblemsDesk* problems_ = nullptr;
  StatusBar* status_ = nullptr;
  SearchDialog* search_ = nullptr;                          // once it was asked for
  std::map<std::string, QDockWidget*, std::less<>> docks_;  // by the command that shows and hides them
  std::unique_ptr<SideDocks> sideDocks_;
  std::unique_ptr<FileKeeper> files_;
  bool refreshIsDue_ = false;
  bool pagesAreDue_ = false;
  std::uint64_t startedAt_ = 0;  // where the history stood when the start page came
  bool smartGuides_ = true;
};

}  // namespace xrpt
