// The commands of the catalogue that need a window: switches of the view, sheets, saving under a name.
#include <QApplication>
#include <QDockWidget>

#include "canvas/RVEditTemplateWnd.h"
#include "desktop/MainWindow.h"
#include "desktop/ProblemsDesk.h"
#include "desktop/TextIds.h"
#include "desktop/dialogs/CommandPalette.h"
#include "desktop/dialogs/SaveDialog.h"
#include "desktop/dialogs/ShortcutSheet.h"
#include "desktop/dialogs/StylesDialog.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"
#include "desktop/page/PageFrame.h"
#include "desktop/page/PageView.h"
#include "desktop/panels/PropertyPanel.h"
#include "desktop/panels/SideDocks.h"
#include "desktop/ribbon/Actions.h"
#include "editor/CommandTexts.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

bool MainWindow::RunCommand(const char* name) {
  static constexpr std::pair<const char*, void (MainWindow::*)()> kRows[] = {
      {"SmartGuides", &MainWindow::ToggleSmartGuides},
      {"Animation", &MainWindow::ToggleAnimation},
      {"Rulers", &MainWindow::ToggleRulers},
      {"DarkTheme", &MainWindow::ToggleDarkTheme},
      {"CommandPalette", &MainWindow::OpenPalette},
      {"ShortcutSheet", &MainWindow::OpenShortcutSheet},
      {"SaveAs", &MainWindow::SaveAs},
      {"ExportPdf", &MainWindow::ExportPdf},
      {"ExportImages", &MainWindow::ExportImages},
      {"Print", &MainWindow::Print},
      {"Search", &MainWindow::OpenSearch},
      {"Replace", &MainWindow::OpenReplace},
      {"SearchNext", &MainWindow::SearchNext},
      {"SearchPrevious", &MainWindow::SearchPrevious},
      {"FormulesSetup", &MainWindow::OpenFormulas},
      {"VirtualDevices", &MainWindow::OpenSources},
      {"Styles", &MainWindow::OpenStyles}};
  for (const auto& [known, run] : kRows) {
    if (std::string_view(known) != name) continue;
    (this->*run)();
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

// --- Sheets ---

void MainWindow::OpenPalette() { (new CommandPalette(actions_->All(), this))->show(); }

void MainWindow::OpenShortcutSheet() { (new ShortcutSheet(actions_->All(), this))->open(); }

void MainWindow::OpenStyles() {
  StylesDialog dialog(this);
  dialog.changed = [this](const std::vector<StyleRenaming>& renamings) {
    frame_->StylesModified(renamings);
    properties_->Reload();
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
