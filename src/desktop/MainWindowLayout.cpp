// What the main window is made of, and how it looked when it was closed last.
#include <QDockWidget>
#include <QMenu>
#include <QShortcut>
#include <QStackedWidget>

#include "desktop/MainWindow.h"
#include "desktop/ProblemsDesk.h"
#include "desktop/TextIds.h"
#include "desktop/WatchedLogger.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "desktop/page/PageFrame.h"
#include "desktop/page/PageMenu.h"
#include "desktop/page/PageView.h"
#include "desktop/panels/DockTitle.h"
#include "desktop/panels/HistoryPanel.h"
#include "desktop/panels/MessageBar.h"
#include "desktop/panels/Outline.h"
#include "desktop/panels/ProblemCounts.h"
#include "desktop/panels/ProblemsPanel.h"
#include "desktop/panels/PropertyPanel.h"
#include "desktop/panels/SideDocks.h"
#include "desktop/panels/StartPage.h"
#include "desktop/panels/StatusBar.h"
#include "desktop/ribbon/Actions.h"
#include "desktop/ribbon/CornerBar.h"
#include "desktop/ribbon/FontGroup.h"
#include "desktop/ribbon/Ribbon.h"
#include "desktop/ribbon/RibbonGroup.h"
#include "desktop/ribbon/RibbonPage.h"
#include "editor/CommandCatalogue.h"
#include "editor/CommandTexts.h"
#include "editor/Drops.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

namespace {
constexpr wchar_t kSection[] = L"Desktop";
constexpr int kLayoutVersion = 1;
constexpr int kNarrowestPanel = 40;
constexpr char kPropertiesPanel[] = "PropertiesPanel";
}  // namespace

void MainWindow::BuildCentre() {
  auto* centre = new QWidget(this);
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  messages_ = new MessageBar(centre);
  centre_ = new QStackedWidget(centre);
  pages_ = new PageFrame(centre_);
  centre_->addWidget(pages_);
  column->addWidget(messages_);
  column->addWidget(centre_, 1);
  setCentralWidget(centre);
}

void MainWindow::BuildStart() {
  start_ = new StartPage(*actions_, centre_);
  centre_->addWidget(start_);
  start_->openWanted = [this](const Path& file) { frame_->OpenInstead(file); };
  start_->copyWanted = [this](const Path& file) { frame_->NewFrom(file); };
  start_->newWanted = [this](bool isLandscape) {
    if (!frame_->IsUntouched() && !frame_->NewReport()) return;
    HideStart();
    if (!isLandscape) return;
    frame_->SetOrientation(0);
    frame_->SetModified(false);  // it is how the report begins
  };
}

void MainWindow::BuildRibbon() {
  ribbon_ = new Ribbon(*actions_, this);
  font_ = new FontGroup(*fields_, this);
  font_->edited = [this] { RefreshSoon(); };
  ribbon_->Page(0).AddGroup(Translated(text::kFontGroup)).AddWidget(font_, ThemedIcon(QStringLiteral("bold")));
  AddInsertGroup();
  corner_ = new CornerBar(*frame_, *actions_, this);
  ribbon_->SetCorner(corner_);
  setMenuWidget(ribbon_);
}

// What one begins with is on the first tab too.
void MainWindow::AddInsertGroup() {
  RibbonGroup& group = ribbon_->Page(0).AddGroup(Translated(text::kInsertTab));
  for (QAction* action : actions_->All()) {
    if (Actions::CommandOf(*action).tab == RibbonTab::Insert) group.AddAction(*action, false);
  }
}

QDockWidget* MainWindow::AddPanel(const char* command, int titleId, const char* name, QWidget* content,
                                  Qt::DockWidgetArea area) {
  auto* dock = new QDockWidget(Translated(titleId), this);
  dock->setObjectName(QLatin1String(name));
  dock->setWidget(content);
  GiveTitle(*dock);
  content->setMinimumWidth(kNarrowestPanel);
  addDockWidget(area, dock);
  docks_.emplace(command, dock);
  connect(dock, &QDockWidget::visibilityChanged, this, [this] { RefreshSoon(); });
  return dock;
}

void MainWindow::BuildDocks() {
  setDockNestingEnabled(true);
  setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
  setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
  outline_ = new Outline(*frame_, this);
  outline_->pageChosen = [this](std::size_t page) {
    Commit();
    frame_->ShowPage(page);
  };
  outline_->cardsChosen = [this](const std::vector<std::size_t>& cards) {
    Commit();
    frame_->CurrentPage().SelectPlaces(cards);
    pages_->View().RevealSelection();
    RefreshSoon();
  };
  outline_->pageDropped = [this](std::size_t page, std::size_t before) {
    Commit();
    frame_->EndEdits();
    frame_->MovePage(page, before);
  };
  outline_->cardsDropped = [this](const std::vector<std::size_t>& cards, std::size_t before) {
    Commit();
    frame_->EndEdits();
    frame_->CurrentPage().StackBefore(cards, before);
    RefreshSoon();
  };
  outline_->pageMenuWanted = [this](QPoint at) {
    QMenu menu(this);
    for (const char* name :
         {"AddPage", "DuplicatePage", "DeletePage", "MovePageUp", "MovePageDown", "PageProperties"}) {
      QAction* action = actions_->Find(name);
      if (action && action->isEnabled()) menu.addAction(action);
    }
    menu.exec(at);
  };
  outline_->cardMenuWanted = [this](QPoint at) { RunPageMenu(*frame_, at, *actions_, this); };
  properties_ = new PropertyPanel(*frame_, this);
  properties_->edited = [this] { RefreshSoon(); };
  problems_ = new ProblemsDesk(*frame_, pages_->View(), *this);
  problems_->beforeAct = [this] { Commit(); };
  problems_->acted = [this] {
    pages_->View().RevealSelection();
    RefreshSoon();
  };
  QDockWidget* left = AddPanel("OutlinePanel", text::kPagesAndCards, "outline", outline_, Qt::LeftDockWidgetArea);
  QDockWidget* right =
      AddPanel(kPropertiesPanel, text::kProperties, "properties", properties_, Qt::RightDockWidgetArea);
  QDockWidget* below =
      AddPanel("ProblemsPanel", text::kProblems, "problems", &problems_->Panel(), Qt::BottomDockWidgetArea);
  historyPanel_ = new HistoryPanel(*frame_, this);
  historyPanel_->beforeMove = [this] { Commit(); };
  historyPanel_->moved = [this] { RefreshSoon(); };
  QDockWidget* history = AddPanel("HistoryPanel", text::kHistory, "history", historyPanel_, Qt::LeftDockWidgetArea);
  sideDocks_ = std::make_unique<SideDocks>(*this, std::vector{left, right});
  frame_->Properties().LoadState(kBarStateSection);
  resizeDocks({left, right}, {200, frame_->Properties().sizes.horzCX}, Qt::Horizontal);
  resizeDocks({below}, {180}, Qt::Vertical);
  below->hide();
  history->hide();
  problems_->listWanted = [below] { below->show(); };
  problems_->listToggled = [this, below] { TogglePanel(*below); };
}

void MainWindow::BuildStatusBar() {
  status_ = new StatusBar(this);
  setStatusBar(status_);
  status_->AddFirst(problems_->Counts());
  status_->zoomChosen = [this](double zoom) {
    const QSize size = pages_->View().viewport()->size();
    pages_->View().ZoomAt(zoom, {size.width() / 2, size.height() / 2});
  };
  pages_->pointerMoved = [this](std::optional<PointD> position) { status_->SetPointer(position); };
  pages_->View().changed = [this] { RefreshSoon(); };
  pages_->View().textDropped = [this](const QString& words, QPoint at) {
    if (!words.isEmpty()) DropText(*frame_, words.toStdWString(), {at.x(), at.y()});
    RefreshSoon();
  };
  pages_->View().filesDropped = [this](const QStringList& files, QPoint at) { DropFiles(files, at); };
  pages_->View().dragBegun = [this] {
    if (smartGuides_) Announce(Translated(text::kDragHint));
  };
  pages_->View().contentWanted = [this] {
    docks_.at(kPropertiesPanel)->show();
    properties_->FocusContent();
  };
  pages_->View().resized = [this] { RefitZoom(); };
}

// Several beside each other would cover each other.
void MainWindow::DropFiles(const QStringList& files, QPoint at) {
  constexpr int kApart = 24;  // pixels
  QStringList refused;
  for (const QString& file : files) {
    const std::wstring problem = DropPicture(*frame_, file.toStdWString(), {at.x(), at.y()});
    if (!problem.empty()) refused << ToQString(problem);
    at += QPoint(kApart, kApart);
  }
  if (!refused.isEmpty()) messages_->Show(refused.join(QLatin1Char('\n')), true);
  RefreshSoon();
}

// F6 walks the areas of the window, F10 and the ribbon's own letters go to its tabs.
void MainWindow::BuildKeys() {
  const auto on = [this](const QKeySequence& key, auto run) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, run);
  };
  on(QKeySequence(Qt::Key_F6), [this] { FocusNextArea(true); });
  on(QKeySequence(Qt::SHIFT | Qt::Key_F6), [this] { FocusNextArea(false); });
  on(QKeySequence(Qt::Key_F10), [this] { ribbon_->FocusTabs(); });
}

void MainWindow::FocusNextArea(bool forward) {
  const std::vector<QWidget*> areas = {&pages_->View(), properties_, &problems_->Panel(), outline_, ribbon_};
  std::size_t at = 0;
  for (std::size_t i = 0; i < areas.size(); ++i) {
    if (areas[i]->isAncestorOf(focusWidget()) || areas[i] == focusWidget()) at = i;
  }
  for (std::size_t step = 1; step < areas.size(); ++step) {
    QWidget* area = areas[(at + (forward ? step : areas.size() - step)) % areas.size()];
    if (!area->isVisible()) continue;
    if (area == properties_) return properties_->FocusFirst();
    if (area == outline_) return outline_->FocusCards();
    if (area == ribbon_) return ribbon_->FocusTabs();
    return area->setFocus(Qt::ShortcutFocusReason);
  }
}

// The log may be written from other threads.
void MainWindow::WatchLog() {
  WatchedLogger::Install(CurrentHost(), [this](int severity, const std::wstring& message) {
    QMetaObject::invokeMethod(
        this, [this, severity, text = ToQString(message)] { OnLogged(severity, text); }, Qt::QueuedConnection);
  });
}

void MainWindow::StoreLayout() {
  sideDocks_->BringBack();
  SettingsService& settings = *CurrentHost().settings;
  const auto store = [&settings](const wchar_t* section, const wchar_t* name, const QByteArray& bytes) {
    settings.SetProfileText(section, name, QString::fromLatin1(bytes.toBase64()).toStdWString());
  };
  store(kSection, L"geometry", saveGeometry());
  store(kBarStateSection, L"docks", saveState(kLayoutVersion));
  StorePanelSize();
  settings.SetProfileInt(kSection, L"rulers", pages_->HasRulers() ? 1 : 0);
}

// As other hosts of the editor keep it.
void MainWindow::StorePanelSize() {
  CProperties& properties = frame_->Properties();
  const QDockWidget& dock = *docks_.at("PropertiesPanel");
  properties.LoadState(kBarStateSection);
  int PropertyBarSizes::*const width = dock.isFloating() ? &PropertyBarSizes::floatCX : &PropertyBarSizes::horzCX;
  int PropertyBarSizes::*const height = dock.isFloating() ? &PropertyBarSizes::floatCY : &PropertyBarSizes::horzCY;
  properties.sizes.*width = dock.width();
  properties.sizes.*height = dock.height();
  properties.SaveState(kBarStateSection);
}

void MainWindow::RestoreLayout() {
  const SettingsService& settings = *CurrentHost().settings;
  const auto stored = [&settings](const wchar_t* section, const wchar_t* name) {
    return QByteArray::fromBase64(ToQString(settings.ProfileText(section, name)).toLatin1());
  };
  if (!restoreGeometry(stored(kSection, L"geometry"))) resize(1400, 900);
  restoreState(stored(kBarStateSection, L"docks"), kLayoutVersion);
  pages_->ShowRulers(settings.ProfileInt(kSection, L"rulers", 1) != 0);
}

}  // namespace xrpt
