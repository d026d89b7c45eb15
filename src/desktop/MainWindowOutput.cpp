// The commands that take a report out of the editor: PDF, pictures, paper.
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "desktop/MainWindow.h"
#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/dialogs/Export.h"
#include "desktop/dialogs/ExportDialog.h"
#include "desktop/dialogs/ExportNames.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/MessageBar.h"
#include "editor/CommandTexts.h"
#include "editor/RVEditControlWnd.h"
#include "host/AtomicWrite.h"

namespace xrpt {

namespace {

constexpr char kPdf[] = ".pdf";
constexpr char kPng[] = ".png";
constexpr char kSvg[] = ".svg";

QStringList EndingsOf(ExportFormat format) {
  if (format == ExportFormat::Pdf) return {QLatin1String(kPdf)};
  QStringList pictures = {QLatin1String(kPng), QLatin1String(kSvg)};
  if (format == ExportFormat::Svg) pictures.swapItemsAt(0, 1);
  return pictures;
}

bool IsDrawing(const Path& file) {
  return ToQString(file.extension().wstring()).compare(QLatin1String(kSvg), Qt::CaseInsensitive) == 0;
}

QString EndingsAsFilter(const QStringList& endings) { return QStringLiteral("*") + endings.join(QLatin1String(" *")); }

// A path the user chose, with an ending when it was left out; empty when cancelled.
Path AskForFile(QWidget* parent, int titleId, const std::wstring& name, const QStringList& endings) {
  const QString file = QFileDialog::getSaveFileName(parent, Translated(titleId), ToQString(name) + endings.front(),
                                                    EndingsAsFilter(endings));
  return file.isEmpty() ? Path() : Path(WithEnding(file, endings).toStdWString());
}

// The dialog asks about the name that was typed, not about what is made of it.
bool MayReplace(QWidget* parent, const std::vector<Path>& files) {
  const auto there =
      std::count_if(files.begin(), files.end(), [](const Path& file) { return std::filesystem::exists(file); });
  if (there == 0 || files.size() == 1) return true;
  const QString question = Translated(text::kReplaceFiles, QString::number(there));
  return QMessageBox::question(parent, Translated(text::kProgramName), question) == QMessageBox::Yes;
}

}  // namespace

void MainWindow::ExportPdf() { Export(ExportFormat::Pdf); }

void MainWindow::ExportImages() { Export(ExportFormat::Png); }

// What was chosen in the first dialog is the ending that the second one offers; one that is typed counts.
void MainWindow::Export(ExportFormat format) {
  const auto choice = ExportDialog::Choose(format, frame_->PageCount(), frame_->CurrentPageIndex(), this);
  if (!choice) return;
  const Path file = AskForFile(this, text::kExportTitle, frame_->Caption(), EndingsOf(choice->format));
  if (file.empty()) return;
  if (choice->format == ExportFormat::Pdf)
    return WriteExport({file}, {PdfOf(frame_->Report(), choice->pages)}, &MainWindow::ExportPdf);
  const std::vector<Path> files = PageFiles(file, choice->pages);
  if (!MayReplace(this, files)) return;
  WriteExport(
      files,
      IsDrawing(file) ? SvgsOf(frame_->Report(), choice->pages) : PngsOf(frame_->Report(), choice->pages, choice->dpi),
      &MainWindow::ExportImages);
}

// Nothing of the user's is at stake when an export fails, so what is left to say is which file and why.
void MainWindow::WriteExport(const std::vector<Path>& files, const std::vector<std::string>& contents,
                             void (MainWindow::*again)()) {
  for (std::size_t i = 0; i < files.size(); ++i) {
    const std::error_code fault = contents[i].empty() ? std::error_code() : WriteAtomically(files[i], contents[i]);
    if (!fault && !contents[i].empty()) continue;
    const QString reason = fault ? QString::fromLocal8Bit(fault.message()) : Translated(text::kPageTooLarge);
    const QString message = Translated(text::kCannotWrite, ToQString(files[i].wstring()));
    return messages_->Show(QStringLiteral("%1 %2").arg(message, reason), true,
                           {{Translated(text::kTryAgain), [this, again] { (this->*again)(); }}});
  }
  messages_->Dismiss();
  Announce(Translated(text::kExported, ToQString(files.front().wstring())));
}

void MainWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(ToQString(frame_->Caption()));
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() != QDialog::Accepted) return;
  if (!PrintReport(frame_->Report(), printer)) Announce(Translated(text::kCannotPrint));
}

// The preview's own button prints what it shows.
void MainWindow::PrintPreview() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(ToQString(frame_->Caption()));
  QPrintPreviewDialog dialog(&printer, this);
  dialog.setWindowTitle(Translated(text::kPrintPreview));
  connect(&dialog, &QPrintPreviewDialog::paintRequested, this,
          [this](QPrinter* onto) { PrintReport(frame_->Report(), *onto); });
  KeepSize(dialog, L"PrintPreview", {900, 700});
  dialog.exec();
}

}  // namespace xrpt
