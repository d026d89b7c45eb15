// The commands of the catalogue that need a window: switches of the view, sheets, saving under a name.
#include <QApplication>
#include <QDockWidget>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/MainWindow.h"
#include "desktop/ProblemsDesk.h"
#include "desktop/TextIds.h"
#include "desktop/dialogs/CommandPalette.h"
#include "desktop/dialogs/ImageStoreDialog.h"
#include "desktop/dialogs/SaveDialog.h"
#include "desktop/dialogs/ShortcutSheet.h"
#include "desktop/dialogs/StylesDialog.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"
#include "desktop/page/PageFrame.h"
#include "desktop/page/PageView.h"
#include "desktop/panels/Outline.h"
#include "desktop/panels/PropertyPanel.h"
#include "desktop/panels/SideDocks.h"
#include "desktop/ribbon/Actions.h"
#include "editor/CommandTexts.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

MainWindow::Act MainWindow::ActOf(std::string_view command) {
  static constexpr std::pair<std::string_view, Act> kRows[] = {{"SmartGuides", &MainWindow::ToggleSmartGuides},
                                                               {"Animation", &MainWindow::ToggleAnimation},
                                                               {"Rulers", &MainWindow::ToggleRulers},
                                                               {"DarkTheme", &MainWindow::ToggleDarkTheme},
                                                               {"EditText", &MainWindow::EditText},
                                                               {"StartPage", &MainWindow::ShowStart},
                                                               {"CommandPalette", &MainWindow::OpenPalette},
                                                               {"ShortcutSheet", &MainWindow::OpenShortcutSheet},
                                                               {"SaveAs", &MainWindow::SaveAs},
                                                               {"ExportPdf", &MainWindow::ExportPdf},
                                                               {"ExportImages", &MainWindow::ExportImages},
                                                               {"Print", &MainWindow::Print},
                                                               {"PrintPreview", &MainWindow::PrintPreview},
                                                               {"ImageStore", &MainWindow::OpenImageStore},
                                                               {"Search", &MainWindow::OpenSearch},
                                                               {"Replace", &MainWindow::OpenReplace},
                                                               {"SearchNext", &MainWindow::SearchNext},
                                                               {"SearchPrevious", &MainWindow::SearchPrevious},
                                                               {"FormulesSetup", &MainWindow::OpenFormulas},
                                                               {"VirtualDevices", &MainWindow::OpenSources},
                                                               {"Styles", &MainWindow::OpenStyles}};
  for (const auto& [name, act] : kRows) {
    if (name == command) return act;
  }
  return nullptr;
}

bool MainWindow::Knows(std::string_view command) const {
  return ActOf(command) || ProblemsDesk::Knows(command) || docks_.contains(command);
}

bool MainWindow::RunCommand(const char* name) {
  if (const Act act = ActOf(name)) {
    (this->*act)();
    ShowSwitches();
    return true;
  }
  if (problems_->RunCommand(name)) return true;
  const auto dock = docks_.find(std::string_view(name));
  if (dock == docks_.end()) return false;
  TogglePanel(*dock->second);
  return true;
}

// The switches of the view, which the frame knows nothing of.
void MainWindow::ShowSwitches() {
  std::vector<std::pair<std::string_view, bool>> rows = {{"SmartGuides", smartGuides_},
                                                         {"Animation", pages_->View().IsAnimated()},
                                                         {"Rulers", pages_->HasRulers()},
                                                         {"DarkTheme", IsDarkTheme()}};
  for (const auto& [command, dock] : docks_) rows.emplace_back(command, !dock->isHidden());
  for (const auto& [name, on] : rows) {
    QAction* action = actions_->Find(name);
    action->setCheckable(true);
    action->setChecked(on);
  }
}

// --- Switches ---

void MainWindow::TogglePanel(QDockWidget& dock) {
  sideDocks_->Forget(dock);
  dock.isHidden() ? sideDocks_->Open(dock) : dock.hide();
  ShowSwitches();
}

void MainWindow::ToggleSmartGuides() {
  smartGuides_ = !smartGuides_;
  for (std::size_t page = 0; page < frame_->PageCount(); ++page) frame_->Page(page).SetSmartGuides(smartGuides_);
}

void MainWindow::ToggleAnimation() { pages_->View().SetAnimated(!pages_->View().IsAnimated()); }

void MainWindow::ToggleRulers() { pages_->ShowRulers(!pages_->HasRulers()); }

void MainWindow::ToggleDarkTheme() {
  const ThemeChoice choice = IsDarkTheme() ? ThemeChoice::Light : ThemeChoice::Dark;
  StoreThemeChoice(choice);
  ApplyTheme(*qApp, choice);
  ApplySurround();
}

// What lies round a page follows the theme.
void MainWindow::ApplySurround() {
  if (!frame_) return;
  const Color surround = CurrentHost().screen->ButtonFace();
  for (std::size_t page = 0; page < frame_->PageCount(); ++page) frame_->Page(page).SetSurround(surround);
  pages_->View().RepaintPage();
}

void MainWindow::EditText() {
  if (!outline_->RenameChosen()) pages_->View().EditContent();
}

// --- Sheets ---

void MainWindow::OpenPalette() { (new CommandPalette(*actions_, this))->show(); }

void MainWindow::OpenShortcutSheet() { (new ShortcutSheet(actions_->All(), this))->open(); }

void MainWindow::OpenStyles() {
  StylesDialog dialog(this);
  dialog.changed = [this](const std::vector<StyleRenaming>& renamings) {
    frame_->StylesModified(renamings);
    properties_->Reload();
  };
  dialog.exec();
}

void MainWindow::OpenImageStore() {
  ImageStoreDialog dialog(frame_->Report(), this);
  dialog.changed = [this] { frame_->ImagesModified(); };
  dialog.useChosen = [this](const PictureUse& use) {
    frame_->ShowPage(use.page);
    if (!use.cardId.empty() && frame_->CurrentPage().SelectControlById(use.cardId)) pages_->View().RevealSelection();
    RefreshSoon();
  };
  dialog.exec();
}

// --- Saving under a name ---

void MainWindow::SaveAs() {
  const std::optional<SaveTarget> target = SaveDialog::Choose(frame_->Report().name, this);
  if (!target) return;
  target->file.empty() ? frame_->SaveAs(target->name) : frame_->SaveAsFile(target->file);
}

}  // namespace xrpt
