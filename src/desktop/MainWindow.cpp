#include "desktop/MainWindow.h"

#include <QAbstractEventDispatcher>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QStackedWidget>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/FileKeeper.h"
#include "desktop/ProblemsDesk.h"
#include "desktop/TextIds.h"
#include "desktop/WatchedLogger.h"
#include "desktop/dialogs/DifferencesDialog.h"
#include "desktop/dialogs/PageDialog.h"
#include "desktop/dialogs/QuestionBox.h"
#include "desktop/dialogs/ReportListDialog.h"
#include "desktop/dialogs/SaveDialog.h"
#include "desktop/dialogs/formulas/SourcesDialog.h"
#include "desktop/dialogs/search/SearchDialog.h"
#include "desktop/look/Texts.h"
#include "desktop/look/ThemedScreen.h"
#include "desktop/page/ClipboardPictures.h"
#include "desktop/page/PageFrame.h"
#include "desktop/page/PagePort.h"
#include "desktop/page/PageView.h"
#include "desktop/panels/HistoryPanel.h"
#include "desktop/panels/MessageBar.h"
#include "desktop/panels/Outline.h"
#include "desktop/panels/PropertyPanel.h"
#include "desktop/panels/SideDocks.h"
#include "desktop/panels/StartPage.h"
#include "desktop/panels/StatusBar.h"
#include "desktop/ribbon/Actions.h"
#include "desktop/ribbon/CornerBar.h"
#include "desktop/ribbon/FontGroup.h"
#include "editor/CommandTexts.h"
#include "editor/EditorTexts.h"
#include "editor/RVEditControlWnd.h"
#include "editor/RecentReports.h"
#include "platform/FileTexts.h"
#include "platform/NamedFiles.h"

namespace xrpt {

namespace {
constexpr char kPropertiesPanel[] = "PropertiesPanel";

// The log names the function a message comes from, "Class::Function(): ", which says nothing to users.
QString WithoutOrigin(QString message) {
  static const QRegularExpression kOrigin(QStringLiteral("^[\\w:~]+\\(\\): "));
  return message.remove(kOrigin);
}
}  // namespace

MainWindow::MainWindow() {
  setObjectName(QStringLiteral("editor"));
  ThemedScreen::Install(CurrentHost());
  BuildCentre();
  frame_ = std::make_unique<RVEditControlWnd>(static_cast<EditorPort&>(*this), EditingOptions::Comfort());
  fields_ = std::make_unique<SelectedFields>(*frame_);
  actions_ = std::make_unique<Actions>(*frame_, *this, pages_->View());
  actions_->beforeRun = [this] { Commit(); };
  actions_->afterRun = [this] { RefreshSoon(); };
  pages_->Connect(*frame_);
  pages_->View().Connect(*frame_, *actions_);
  BuildStart();
  BuildDocks();
  BuildRibbon();
  BuildStatusBar();
  BuildKeys();
  WatchLog();
  files_ = std::make_unique<FileKeeper>(*frame_, *messages_, *this);
  RestoreLayout();
  ApplySurround();
  // What pages have posted is delivered before the program falls asleep.
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
          [this] { frame_->Queue().Drain(); });
  pagesAreDue_ = true;
  Refresh();
  pages_->View().setFocus();
}

// A field that the keyboard leaves now still tells what was typed.
MainWindow::~MainWindow() {
  if (QWidget* field = focusWidget()) field->clearFocus();
  files_.reset();
  problems_->Stop();
  WatchedLogger::Remove(CurrentHost());
  ThemedScreen::Remove(CurrentHost());
  frame_.reset();
}

// --- Opening ---

void MainWindow::Open(const std::wstring& nameOrPath) {
  Commit();
  frame_->Setup(nameOrPath);
}

// --- Nothing open ---

void MainWindow::ShowStart() {
  // Asked for twice, it gives way to the report it hid.
  if (IsStartShown() && !frame_->IsUntouched()) return HideStart();
  start_->Refresh();
  startedAt_ = frame_->History().Serial();
  centre_->setCurrentWidget(start_);
  start_->FocusFirst();
}

void MainWindow::HideStart() {
  if (!IsStartShown()) return;
  centre_->setCurrentWidget(pages_);
  pages_->View().setFocus();
  RefitZoom();
}

bool MainWindow::IsStartShown() const { return centre_->currentWidget() == start_; }

void MainWindow::SetSamples(const Path& folder) { start_->SetSamples(folder); }

void MainWindow::ReportOpened(const LoadResult& result) {
  messages_->Dismiss();
  if (result.loaded) {
    HideStart();
    RememberReport(result.file);
    if (!frame_->Report().name.empty())
      CurrentHost().settings->SetRegistryText(kLastReportValue, frame_->Report().name);
    return files_->ReportOpened(result);
  }
  const QString message = ToQString(TextOf(result));
  messages_->Show(message, true);
  problems_->AddNotice(Severity::Error, message);
}

void MainWindow::SaveFailed(const SaveResult& result) {
  messages_->Show(ToQString(TextOf(result)), true, {{Translated(text::kSaveAs), [this] { SaveAs(); }}});
}

std::optional<std::wstring> MainWindow::ChooseReport(const std::wstring& current) {
  return ReportListDialog::Choose(current, frame_->Report().File(), this);
}

bool MainWindow::EditPageProperties(CDlgGlobalProperties& page) {
  PageDialog dialog(page, frame_->PageCount() > 1, this);
  dialog.OfferDevices([this, &dialog] { EditSources(*frame_, &dialog); });
  return dialog.exec() == QDialog::Accepted;
}

// --- Pages ---

std::unique_ptr<WindowPort> MainWindow::NewPageWindow() { return std::make_unique<PagePort>(pages_->View()); }

void MainWindow::PageWindowReady(WindowPort& port, RVEditTemplateWnd& window) {
  static_cast<PagePort&>(port).Attach(&window);
  window.SetSmartGuides(smartGuides_);
  window.SetPictureMaker(AddPictures);
  window.SetToolbarEntry({text::kProperties, [this] { return docks_.at(kPropertiesPanel)->isVisible(); },
                          [this](int) { TogglePanel(*docks_.at(kPropertiesPanel)); }});
}

void MainWindow::PageWindowGone(WindowPort& port) {
  auto& page = static_cast<PagePort&>(port);
  page.StopTimers();
  pages_->View().Forget(page);
  page.Attach(nullptr);
}

void MainWindow::PagesChanged() {
  pagesAreDue_ = true;
  HideStart();
  if (frame_ && frame_->PageCount() > 0)
    pages_->View().ShowPage(static_cast<PagePort&>(frame_->PagePort(frame_->CurrentPageIndex())));
  RefreshSoon();
}

// --- Showing what changed ---

void MainWindow::StateChanged() { RefreshSoon(); }

// However many things change at once, they are shown once.
void MainWindow::RefreshSoon() {
  if (std::exchange(refreshIsDue_, true)) return;
  QTimer::singleShot(0, this, [this] { Refresh(); });
}

void MainWindow::Refresh() {
  refreshIsDue_ = false;
  if (!frame_ || frame_->PageCount() == 0) return;
  // Work that has begun wants to be seen.
  const bool begun = frame_->History().Serial() != startedAt_ || frame_->Tool() != tool::kPointer;
  if (IsStartShown() && begun) HideStart();
  if (std::exchange(pagesAreDue_, false)) {
    ApplySurround();
    pages_->View().ShowPage(static_cast<PagePort&>(frame_->PagePort(frame_->CurrentPageIndex())));
    outline_->RefreshPages();
    corner_->Refresh();
  }
  actions_->Refresh();
  ShowSwitches();
  properties_->Refresh();
  font_->Refresh();
  outline_->RefreshCards();
  historyPanel_->Refresh();
  corner_->Refresh();
  status_->SetZoom(std::abs(frame_->CurrentPage().Zoom()));
  ShowSelectionGeometry();
  ShowCaption();
  pages_->Refresh();
  if (search_) search_->ReportChanged();
  files_->Refresh();
  problems_->Refresh();
}

void MainWindow::ShowCaption() {
  const QString state = frame_->IsReadOnly() ? QStringLiteral(" (%1)").arg(Translated(text::kReadOnly)) : QString();
  setWindowTitle(ToQString(frame_->Caption()) + state + QStringLiteral("[*] — ") + Translated(text::kProgramName));
  setWindowModified(frame_->IsModified());
}

void MainWindow::ShowSelectionGeometry() {
  const RVEditTemplateWnd& page = frame_->CurrentPage();
  RectD area;
  int count = 0;
  for (const std::size_t index : SelectedIndexes(page)) {
    const RVCardControl& card = page.Page().cards[index];
    const RectD own(card.x, card.y, card.x + card.width, card.y + card.height);
    area = count++ == 0 ? own
                        : RectD(std::min(area.left, own.left), std::min(area.top, own.top),
                                std::max(area.right, own.right), std::max(area.bottom, own.bottom));
  }
  status_->SetSelection(count, area);
}

// A fitted zoom follows the window.
void MainWindow::RefitZoom() {
  if (frame_ && frame_->PageCount() > 0 && frame_->CurrentPage().Zoom() < 0.0)
    frame_->SetZoomEntry(frame_->ZoomEntry());
}

// --- Questions and messages ---

Answer MainWindow::Ask(int textId) {
  QMessageBox box(QMessageBox::Question, Translated(text::kProgramName), Translated(textId),
                  QMessageBox::Yes | QMessageBox::No, this);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

void MainWindow::Tell(int textId) { Announce(Translated(textId)); }

void MainWindow::Commit() {
  pages_->View().KeepText();
  properties_->Commit();
}

void MainWindow::Announce(const QString& message) { status_->showMessage(message, 8000); }

std::size_t MainWindow::Decide(const Question& question) { return AskInBox(question, this); }

std::optional<std::wstring> MainWindow::AskForName(const std::wstring& proposed) {
  return SaveDialog::ChooseName(proposed, this);
}

void MainWindow::ShowDifferences(const Path& file, const RVReport& report) {
  DifferencesDialog(file, report, this).exec();
}

// What is shown above the page already says more.
void MainWindow::OnLogged(int severity, const QString& logged) {
  constexpr int kWarning = 3;
  constexpr int kError = 4;
  if (severity < kWarning) return;
  const QString message = WithoutOrigin(logged);
  problems_->AddNotice(severity >= kError ? Severity::Error : Severity::Warning, message);
  if (severity >= kError && messages_->Message().isEmpty()) messages_->Show(message, true);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  Commit();
  if (!frame_->MayClose()) return event->ignore();
  StoreLayout();
  event->accept();
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && ribbon_) ApplySurround();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  sideDocks_->Fit();
}

}  // namespace xrpt
