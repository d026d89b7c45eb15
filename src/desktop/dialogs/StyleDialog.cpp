#include "desktop/dialogs/StyleDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/look/Swatch.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/FieldEditors.h"
#include "desktop/panels/FieldForm.h"
#include "model/FieldTexts.h"

namespace xrpt {

QFont ToolkitFont(const tagStyleCfg& style, double points) {
  QFont font(ToQString(style.font.face));
  font.setPointSizeF(std::clamp(points, 1.0, 500.0));
  const int bits = static_cast<int>(style.font.style);
  font.setBold((bits & static_cast<int>(FontStyle::Bold)) != 0);
  font.setItalic((bits & static_cast<int>(FontStyle::Italic)) != 0);
  return font;
}

// --- The sample ---

StyleSample::StyleSample(QWidget* parent) : QWidget(parent) {
  setMinimumSize(220, 120);
  setAccessibleName(Translated(text::kStyleSample));
}

void StyleSample::Show(const tagStyleCfg& style) {
  style_ = style;
  update();
}

void StyleSample::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setClipRect(rect().adjusted(1, 1, -1, -1));
  painter.setPen(ToolkitColor(style_.color));
  painter.setFont(ToolkitFont(style_, style_.font.size));
  painter.translate(QRectF(rect()).center());
  painter.rotate(-style_.orientation);
  painter.drawText(QRectF(-2000, -2000, 4000, 4000), Qt::AlignCenter, Translated(text::kStyleSampleText));
}

// --- The dialog ---

StyleDialog::StyleDialog(CDlgNewModifyStyle& style, QWidget* parent)
    : QDialog(parent), dialog_(style), name_(new QLineEdit(this)), sample_(new StyleSample(this)) {
  setWindowTitle(Translated(style.OpenedName().empty() ? text::kNewStyle : text::kModifyStyle));
  auto* column = new QVBoxLayout(this);
  auto* form = new QFormLayout();
  name_->setText(ToQString(dialog_.style.name));
  name_->setAccessibleName(Translated(text::kStyleName));
  name_->selectAll();
  connect(name_, &QLineEdit::textEdited, this,
          [this](const QString& typed) { dialog_.style.name = typed.trimmed().toStdWString(); });
  form->addRow(Translated(text::kStyleName), name_);
  AddFields(*form);
  column->addLayout(form);
  column->addWidget(sample_, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  sample_->Show(dialog_.style);
  KeepSize(*this, L"Style", {380, 420});
}

StyleDialog::~StyleDialog() = default;

void StyleDialog::AddFields(QFormLayout& form) {
  ForEachField(tagStyleCfg::Table(), [&](const FieldOf<tagStyleCfg>& row) {
    auto editor = MakeFieldEditor(
        row,
        [this, &row](const std::string& text) {
          row.assign(dialog_.style, text);
          sample_->Show(dialog_.style);
        },
        [] { return ExpressionSources(); }, this);
    editor->Offer(row.words);
    editor->Show(row.text(dialog_.style));
    editor->Widget()->setAccessibleName(Translated(row.panel.textId));
    editor->Widget()->setObjectName(QString::fromStdString(row.FullName()));
    if (row.panel.textId == text::kFontSize) size_ = editor->Widget();
    form.addRow(LabelOf(row), editor->Widget());
    editors_.push_back(std::move(editor));
  });
}

void StyleDialog::GoTo(CDlgNewModifyStyle::Field field) {
  if (field == CDlgNewModifyStyle::Field::None) return;
  if (field == CDlgNewModifyStyle::Field::Size) return size_->setFocus(Qt::OtherFocusReason);
  name_->setFocus(Qt::OtherFocusReason);
  name_->selectAll();
}

void StyleDialog::accept() {
  for (const auto& editor : editors_) editor->Finish();
  switch (dialog_.OnOK()) {
    case CDlgNewModifyStyle::Outcome::StaysOpen:
      return GoTo(dialog_.FieldToMend());
    case CDlgNewModifyStyle::Outcome::Cancelled:
      return QDialog::reject();
    case CDlgNewModifyStyle::Outcome::Saved:
      return QDialog::accept();
  }
}

}  // namespace xrpt
