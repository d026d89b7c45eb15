// The dialogs over the report: searching beside the page, formulas, virtual devices.
#include "desktop/MainWindow.h"
#include "desktop/dialogs/formulas/FormulasDialog.h"
#include "desktop/dialogs/formulas/SourcesDialog.h"
#include "desktop/dialogs/search/SearchDialog.h"
#include "desktop/page/PageFrame.h"
#include "desktop/page/PageView.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

SearchDialog& MainWindow::Searching() {
  if (!search_) {
    search_ = new SearchDialog(*frame_, this);
    search_->matchShown = [this] {
      Refresh();
      pages_->View().RevealSelection();
      return pages_->View().SelectionOnScreen();
    };
    search_->formulaChosen = [this](const std::wstring& name) { EditFormulas(*frame_, search_, name); };
  }
  return *search_;
}

void MainWindow::OpenSearch() { Searching().Open(false); }

void MainWindow::OpenReplace() { Searching().Open(true); }

// Without anything to look for, what that is is asked first.
void MainWindow::SearchNext() { Searching().IsEmpty() ? OpenSearch() : Searching().FindNext(); }

void MainWindow::SearchPrevious() { Searching().IsEmpty() ? OpenSearch() : Searching().FindPrevious(); }

void MainWindow::OpenFormulas() { EditFormulas(*frame_, this); }

void MainWindow::OpenSources() { EditSources(*frame_, this); }

}  // namespace xrpt
