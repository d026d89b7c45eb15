#include "desktop/dialogs/ExportDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/FieldForm.h"
#include "platform/Host.h"

namespace xrpt {

namespace {

constexpr wchar_t kSection[] = L"Export";
constexpr wchar_t kDpi[] = L"dpi";
constexpr std::pair<ExportFormat, const char*> kFormats[] = {
    {ExportFormat::Pdf, "PDF"}, {ExportFormat::Png, "PNG"}, {ExportFormat::Svg, "SVG"}};

}  // namespace

ExportDialog::ExportDialog(ExportFormat format, std::size_t pages, std::size_t current, QWidget* parent)
    : QDialog(parent), count_(pages), current_(current) {
  setWindowTitle(Translated(text::kExportTitle));
  auto* column = new QVBoxLayout(this);
  AddFormat(*column, format);
  AddPages(*column);
  column->addStretch(1);
  AddButtons(*column);
  Refresh();
  KeepSize(*this, L"Export", {400, 300});
  format_->setFocus();
}

void ExportDialog::AddFormat(QBoxLayout& column, ExportFormat format) {
  auto* form = new QFormLayout();
  format_ = new QComboBox(this);
  format_->setAccessibleName(Translated(text::kExportFormat));
  for (const auto& [value, name] : kFormats) format_->addItem(QLatin1String(name), static_cast<int>(value));
  format_->setCurrentIndex(format_->findData(static_cast<int>(format)));
  connect(format_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
  dpi_ = new QSpinBox(this);
  dpi_->setAccessibleName(Translated(text::kResolution));
  dpi_->setRange(ExportChoice::kLeastDpi, ExportChoice::kMostDpi);
  dpi_->setSuffix(QStringLiteral(" dpi"));
  dpi_->setSingleStep(50);
  dpi_->setValue(CurrentHost().settings->ProfileInt(kSection, kDpi, choice_.dpi));
  connect(dpi_, &QSpinBox::valueChanged, this, [this] { Refresh(); });
  form->addRow(Translated(text::kExportFormat), format_);
  form->addRow(Translated(text::kResolution), dpi_);
  column.addLayout(form);
}

void ExportDialog::AddPages(QBoxLayout& column) {
  column.addWidget(MakeSectionTitle(text::kPages, this));
  all_ = new QRadioButton(Translated(text::kExportAllPages), this);
  shown_ = new QRadioButton(Translated(text::kExportShownPage, QString::number(current_ + 1)), this);
  these_ = new QRadioButton(Translated(text::kExportThesePages), this);
  range_ = new QLineEdit(this);
  range_->setAccessibleName(Translated(text::kExportThesePages));
  range_->setPlaceholderText(QStringLiteral("1-3, 5"));
  problem_ = new QLabel(this);
  problem_->setWordWrap(true);
  problem_->setMinimumHeight(fontMetrics().lineSpacing());
  all_->setChecked(true);
  for (QRadioButton* button : {all_, shown_, these_}) {
    connect(button, &QRadioButton::toggled, this, [this] { Refresh(); });
  }
  connect(range_, &QLineEdit::textEdited, this, [this] {
    these_->setChecked(true);
    Refresh();
  });
  auto* row = new QHBoxLayout();
  row->addWidget(these_);
  row->addWidget(range_, 1);
  column.addWidget(all_);
  column.addWidget(shown_);
  column.addLayout(row);
  column.addWidget(problem_);
}

void ExportDialog::AddButtons(QBoxLayout& column) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
  export_ = buttons->addButton(Translated(text::kExportButton), QDialogButtonBox::AcceptRole);
  export_->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column.addWidget(buttons);
}

void ExportDialog::Refresh() {
  choice_.format = static_cast<ExportFormat>(format_->currentData().toInt());
  choice_.dpi = dpi_->value();
  dpi_->setEnabled(choice_.HasPixels());
  std::optional<PageNumbers> pages = AllPages(count_);
  if (shown_->isChecked()) pages = PageNumbers{current_};
  if (these_->isChecked()) pages = PagesFrom(range_->text().toStdWString(), count_);
  choice_.pages = pages.value_or(PageNumbers());
  const bool isWrong = !pages && !range_->text().isEmpty();
  problem_->setText(isWrong ? Translated(text::kNoSuchPages, QString::number(count_)) : QString());
  if (export_) export_->setEnabled(pages.has_value());
}

std::optional<ExportChoice> ExportDialog::Choose(ExportFormat format, std::size_t pages, std::size_t current,
                                                 QWidget* parent) {
  ExportDialog dialog(format, pages, current, parent);
  if (dialog.exec() != Accepted) return std::nullopt;
  CurrentHost().settings->SetProfileInt(kSection, kDpi, dialog.choice_.dpi);
  return dialog.choice_;
}

}  // namespace xrpt
