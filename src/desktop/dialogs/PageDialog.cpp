#include "desktop/dialogs/PageDialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/dialogs/PagePicture.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/FieldEditors.h"
#include "desktop/panels/FieldForm.h"
#include "editor/CommandTexts.h"
#include "model/FieldTexts.h"
#include "model/RVCardImage.h"
#include "model/RVReportPage.h"
#include "platform/Numbers.h"

namespace xrpt {

namespace {

constexpr int kMargin = 4;        // pixels round the sample's page
constexpr int kClosestLines = 3;  // pixels; a finer grid would be a grey page

QString NameOf(const PaperFormat& format) {
  return format.textId ? Translated(format.textId) : QString::fromLatin1(format.name);
}

}  // namespace

// --- The sample ---

PageSample::PageSample(QWidget* parent) : QWidget(parent) {
  setMinimumSize(200, 240);
  setAccessibleName(Translated(text::kPageSample));
}

void PageSample::Show(const CDlgGlobalProperties& page) {
  page_ = &page;
  Render();
}

void PageSample::resizeEvent(QResizeEvent*) { Render(); }

void PageSample::Render() {
  if (!page_) return;
  RVReportPage sample;
  sample.properties = page_->properties;
  const double dense = devicePixelRatioF();
  picture_ = PictureOf(sample, (size() - QSize(2 * kMargin, 2 * kMargin)) * dense);
  picture_.setDevicePixelRatio(dense);
  update();
}

void PageSample::paintEvent(QPaintEvent*) {
  if (picture_.isNull()) return;
  QPainter painter(this);
  const QSize shown = picture_.deviceIndependentSize().toSize();
  const QRect paper(QPoint((width() - shown.width()) / 2, (height() - shown.height()) / 2), shown);
  painter.drawImage(paper, picture_);
  if (page_->IsGridShown()) PaintGrid(painter, paper);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(paper.adjusted(-1, -1, 0, 0));
}

void PageSample::PaintGrid(QPainter& painter, const QRect& paper) const {
  const double across = page_->GridX() * paper.width() / page_->properties.width;
  const double down = page_->GridY() * paper.height() / page_->properties.height;
  if (across < kClosestLines || down < kClosestLines) return;
  painter.setPen(QColor(0, 0, 0, 110));
  for (double x = paper.left() + across; x < paper.right(); x += across) {
    for (double y = paper.top() + down; y < paper.bottom(); y += down) painter.drawPoint(QPointF(x, y));
  }
}

// --- The dialog ---

PageDialog::PageDialog(CDlgGlobalProperties& page, bool hasOthers, QWidget* parent)
    : QDialog(parent), page_(page), sample_(new PageSample(this)) {
  setWindowTitle(Translated(text::kConfig));
  auto* column = new QVBoxLayout(this);
  auto* row = new QHBoxLayout();
  column->addLayout(row, 1);
  auto* form = new QFormLayout();
  row->addLayout(form, 3);
  row->addWidget(sample_, 2);
  AddPageField(*form, "name");
  AddPaper(*form);
  AddGrid(*form);
  if (hasOthers) {
    auto* all = new QCheckBox(Translated(text::kSamePaperForAll), this);
    connect(all, &QCheckBox::toggled, this, [this](bool on) { page_.samePaperForAll = on; });
    form->addRow(all);
  }
  AddBackground(*form);
  AddButtons(*column);
  Refresh();
  KeepSize(*this, L"Page", {640, 560});
  format_->setFocus();
}

PageDialog::~PageDialog() = default;

void PageDialog::AddPaper(QFormLayout& form) {
  form.addRow(MakeSectionTitle(text::kPaper, this));
  format_ = new QComboBox(this);
  format_->setAccessibleName(Translated(text::kPaperFormat));
  for (const PaperFormat& format : CDlgGlobalProperties::Formats()) format_->addItem(NameOf(format));
  format_->addItem(Translated(text::kOwnPaper));
  connect(format_, &QComboBox::activated, this, [this](int format) {
    page_.SetFormat(static_cast<std::size_t>(format));
    Refresh();
  });
  form.addRow(Translated(text::kPaperFormat), format_);
  AddOrientation(form);
  for (const char* name : {"width", "height", "rounded"}) AddPageField(form, name);
}

void PageDialog::AddOrientation(QFormLayout& form) {
  auto* row = new QHBoxLayout();
  auto* group = new QButtonGroup(this);
  portrait_ = new QRadioButton(Translated(text::kPortrait), this);
  landscape_ = new QRadioButton(Translated(text::kLandscape), this);
  for (QAbstractButton* button : {portrait_, landscape_}) {
    group->addButton(button);
    row->addWidget(button);
  }
  row->addStretch(1);
  connect(group, &QButtonGroup::buttonClicked, this, [this](QAbstractButton* button) {
    page_.SetLandscape(button == landscape_);
    Refresh();
  });
  form.addRow(Translated(text::kOrientationGroup), row);
}

void PageDialog::AddGrid(QFormLayout& form) {
  form.addRow(MakeSectionTitle(text::kGridGroupTitle, this));
  grid_ = new QCheckBox(Translated(text::kGridIsShown), this);
  connect(grid_, &QCheckBox::toggled, this, [this](bool on) {
    page_.ShowGrid(on);
    Refresh();
  });
  form.addRow(grid_);
  const auto step = [](double value) { return FromUtf8(FormatFixed(value, 2)); };
  AddField(
      form, *FindField(RVGlobalProperties::Table(), "xgrid"), [this, step] { return step(page_.GridX()); },
      [this](const std::string& text) { page_.SetGrid(ParseDecimal(text), page_.GridY()); });
  AddField(
      form, *FindField(RVGlobalProperties::Table(), "ygrid"), [this, step] { return step(page_.GridY()); },
      [this](const std::string& text) { page_.SetGrid(page_.GridX(), ParseDecimal(text)); });
}

void PageDialog::AddBackground(QFormLayout& form) {
  form.addRow(MakeSectionTitle(text::kBackground, this));
  ForEachField(RVCardImage::Class().table, [&](const CardRow& row) {
    if (row.panel.editor != FieldEditor::Picture) return;
    AddField(
        form, row, [this] { return page_.Picture(); }, [this](const std::string& text) { page_.SetPicture(text); });
  });
  cover_ = new QPushButton(Translated(text::kCoverPage), this);
  cover_->setAutoDefault(false);
  connect(cover_, &QPushButton::clicked, this, [this] {
    page_.CoverPage();
    Refresh();
  });
  form.addRow(QString(), cover_);
  AddBackgroundField(form, "maintainAspectRatio");
  AddBackgroundField(form, "backcolor");
}

void PageDialog::AddPageField(QFormLayout& form, const char* name) {
  const PageRow& row = *FindField(RVGlobalProperties::Table(), name);
  AddField(
      form, row, [this, &row] { return row.text(page_.properties); },
      [this, &row](const std::string& text) { row.assign(page_.properties, text); });
}

void PageDialog::AddBackgroundField(QFormLayout& form, const char* name) {
  const CardRow* row = FindField(RVCardImage::Class().table, name);
  if (!row) return;
  ofPicture_.push_back(AddField(
      form, *row, [this, row] { return row->text(page_.properties.Background()); },
      [this, row](const std::string& text) { row->assign(page_.properties.Background(), text); }));
}

QWidget* PageDialog::AddField(QFormLayout& form, const FieldRow& row, Text text, Assign assign) {
  auto editor = MakeFieldEditor(
      row,
      [this, assign](const std::string& typed) {
        assign(typed);
        Refresh();
      },
      [] { return ExpressionSources(); }, this);
  QWidget* widget = editor->Widget();
  widget->setAccessibleName(Translated(row.panel.textId));
  widget->setObjectName(QString::fromStdString(row.FullName()));
  form.addRow(LabelOf(row), widget);
  lines_.push_back({std::move(editor), std::move(text)});
  return widget;
}

void PageDialog::AddButtons(QBoxLayout& column) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setDefault(true);
  devices_ = buttons->addButton(Translated(text::kDevicesButton), QDialogButtonBox::ActionRole);
  devices_->setAutoDefault(false);
  devices_->hide();
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column.addWidget(buttons);
}

void PageDialog::OfferDevices(std::function<void()> open) {
  devices_->show();
  connect(devices_, &QPushButton::clicked, this, std::move(open));
}

// A field that is being typed in is left alone by its editor.
void PageDialog::Refresh() {
  const std::size_t format = page_.Format();
  const QSignalBlocker quiet(grid_);
  format_->setCurrentIndex(format == CDlgGlobalProperties::kOwnFormat ? format_->count() - 1
                                                                      : static_cast<int>(format));
  (page_.IsLandscape() ? landscape_ : portrait_)->setChecked(true);
  grid_->setChecked(page_.IsGridShown());
  cover_->setEnabled(page_.HasPicture() && !page_.CoversPage());
  for (QWidget* widget : ofPicture_) widget->setEnabled(page_.HasPicture());
  for (const Line& line : lines_) line.editor->Show(line.text());
  sample_->Show(page_);
}

void PageDialog::accept() {
  for (const Line& line : lines_) line.editor->Finish();
  QDialog::accept();
}

}  // namespace xrpt
