// The commands that take a report out of the editor: PDF, pictures, paper.
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>

#include "desktop/MainWindow.h"
#include "desktop/TextIds.h"
#include "desktop/dialogs/Export.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/PropertyPanel.h"
#include "editor/CommandTexts.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

namespace {

constexpr int kPictureDpi = 150;

// A path the user chose, with the ending when it was left out; empty when cancelled.
Path AskForFile(QWidget* parent, int titleId, const std::wstring& name, const QString& ending) {
  const QString file =
      QFileDialog::getSaveFileName(parent, Translated(titleId), ToQString(name) + ending, QStringLiteral("*") + ending);
  if (file.isEmpty()) return {};
  return (file.endsWith(ending, Qt::CaseInsensitive) ? file : file + ending).toStdWString();
}

// page.png of one page is page.png; of several page-1.png, page-2.png.
Path NumberedPath(const Path& file, std::size_t page, std::size_t count) {
  if (count == 1) return file;
  Path numbered = file;
  numbered.replace_filename(file.stem().wstring() + L"-" + std::to_wstring(page + 1) + file.extension().wstring());
  return numbered;
}

}  // namespace

void MainWindow::ExportPdf() {
  const Path file = AskForFile(this, text::kExportPdf, frame_->Caption(), QStringLiteral(".pdf"));
  if (file.empty()) return;
  if (CurrentHost().files->Write(file, PdfOf(frame_->Report())))
    Announce(Translated(text::kExported, ToQString(file.wstring())));
}

void MainWindow::ExportImages() {
  const Path file = AskForFile(this, text::kExportImages, frame_->Caption(), QStringLiteral(".png"));
  if (file.empty()) return;
  const std::vector<std::string> pictures = PngsOf(frame_->Report(), kPictureDpi);
  bool written = true;
  for (std::size_t page = 0; page < pictures.size(); ++page)
    written = CurrentHost().files->Write(NumberedPath(file, page, pictures.size()), pictures[page]) && written;
  if (written) Announce(Translated(text::kExported, ToQString(file.wstring())));
}

void MainWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(ToQString(frame_->Caption()));
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() != QDialog::Accepted) return;
  if (!PrintReport(frame_->Report(), printer)) Announce(Translated(text::kCannotPrint));
}

}  // namespace xrpt
