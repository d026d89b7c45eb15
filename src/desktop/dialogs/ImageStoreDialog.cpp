#include "desktop/dialogs/ImageStoreDialog.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QLocale>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QUrl>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/dialogs/PictureChooser.h"
#include "desktop/dialogs/QuestionBox.h"
#include "desktop/look/Texts.h"
#include "editor/CommandTexts.h"
#include "editor/EditorTexts.h"
#include "platform/FileTexts.h"
#include "platform/ImageFiles.h"
#include "platform/PictureName.h"
#include "platform/Text.h"

namespace xrpt {

namespace {

constexpr int kPreviewSide = 200;  // pixels

PicturePtr Read(const std::wstring& name) {
  const PictureKey key = ParsePictureName(name);
  return ReadImageFile(CurrentHost(), key.id, key.path);
}

QString FolderLabel(const std::wstring& folder) {
  return folder.empty() ? Translated(text::kTopFolder) : ToQString(folder);
}

QString UseLabel(const PictureUse& use) {
  const std::wstring what = use.cardId.empty() ? HostText(text::kBackground) : use.caption;
  return ToQString(FillIn(HostText(text::kUseOnPage), {std::to_wstring(use.page + 1), what}));
}

std::string AsPng(const QImage& image) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return buffer.data().toStdString();
}

}  // namespace

ImageStoreDialog::ImageStoreDialog(const RVReport& report, QWidget* parent) : QDialog(parent), list_(*this, report) {
  setWindowTitle(Translated(text::kImageStore));
  setAcceptDrops(true);
  auto* column = new QVBoxLayout(this);
  filter_ = new QLineEdit(this);
  filter_->setPlaceholderText(Translated(text::kFilterPictures));
  filter_->setAccessibleName(Translated(text::kFilterPictures));
  filter_->setClearButtonEnabled(true);
  column->addWidget(filter_);
  auto* row = new QHBoxLayout();
  column->addLayout(row, 1);
  AddFolders(*row);
  AddPictures(*row);
  AddDetails(*row);
  AddButtons(*column);
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& typed) {
    model_->Filter(typed);
    Refresh();
  });
  FillFolders();
  FillPictures();
  KeepSize(*this, L"ImageStore", {940, 600});
  filter_->setFocus();
}

void ImageStoreDialog::AddFolders(QBoxLayout& row) {
  folders_ = new QListWidget(this);
  folders_->setAccessibleName(Translated(text::kPictureFolders));
  folders_->setFixedWidth(160);
  folders_->setFrameShape(QFrame::StyledPanel);
  connect(folders_, &QListWidget::currentRowChanged, this, [this](int folder) { TakeFolder(folder); });
  row.addWidget(folders_);
}

void ImageStoreDialog::AddPictures(QBoxLayout& row) {
  model_ = new PicturesModel(this);
  pictures_ = new QListView(this);
  pictures_->setAccessibleName(Translated(text::kPictures));
  pictures_->setFrameShape(QFrame::StyledPanel);
  ShowAsPictures(*pictures_);
  pictures_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  pictures_->setModel(model_);
  connect(pictures_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { Refresh(); });
  row.addWidget(pictures_, 1);
}

void ImageStoreDialog::AddDetails(QBoxLayout& row) {
  auto* column = new QVBoxLayout();
  preview_ = new QLabel(this);
  preview_->setFixedSize(kPreviewSide, kPreviewSide);
  preview_->setAlignment(Qt::AlignCenter);
  preview_->setAccessibleName(Translated(text::kPictureDetails));
  details_ = new QLabel(this);
  details_->setWordWrap(true);
  details_->setTextFormat(Qt::PlainText);
  details_->setFixedWidth(kPreviewSide);
  details_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  details_->setAccessibleName(Translated(text::kPictureDetails));
  uses_ = new QListWidget(this);
  uses_->setFixedWidth(kPreviewSide);
  uses_->setFrameShape(QFrame::StyledPanel);
  uses_->setAccessibleName(Translated(text::kUsedOn));
  connect(uses_, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem*) {
    const std::vector<std::wstring> names = Selected();
    const auto use = static_cast<std::size_t>(uses_->currentRow());
    if (names.size() == 1 && use < list_.UsesOf(names.front()).size() && useChosen)
      useChosen(list_.UsesOf(names.front())[use]);
  });
  column->addWidget(preview_);
  column->addWidget(details_);
  column->addWidget(uses_, 1);
  column->addStretch();
  row.addLayout(column);
}

void ImageStoreDialog::AddButtons(QBoxLayout& column) {
  auto* row = new QHBoxLayout();
  AddButton(*row, text::kAddPictures, "", &ImageStoreDialog::AddFiles);
  AddButton(*row, text::kPasteButton, "Ctrl+V", &ImageStoreDialog::Paste);
  AddButton(*row, text::kNewFolderButton, "", &ImageStoreDialog::NewFolder);
  replace_ = AddButton(*row, text::kReplaceButton, "", &ImageStoreDialog::Replace);
  delete_ = AddButton(*row, text::kDeleteButton, "Del", &ImageStoreDialog::Delete);
  AddButton(*row, text::kDeleteUnusedButton, "", &ImageStoreDialog::DeleteUnused);
  row->addStretch(1);
  auto* close = new QDialogButtonBox(QDialogButtonBox::Close, this);
  close->button(QDialogButtonBox::Close)->setDefault(true);
  connect(close, &QDialogButtonBox::rejected, this, &QDialog::reject);
  row->addWidget(close);
  column.addLayout(row);
}

// The key works in the pictures: in the filter it belongs to what is typed.
QPushButton* ImageStoreDialog::AddButton(QBoxLayout& row, int textId, const char* keys,
                                         void (ImageStoreDialog::*act)()) {
  auto* button = new QPushButton(Translated(textId), this);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, act);
  if (*keys) {
    auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), pictures_);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
  }
  row.addWidget(button);
  return button;
}

// --- What is done ---

void ImageStoreDialog::AddFiles() {
  const QStringList files =
      QFileDialog::getOpenFileNames(this, Translated(text::kAddPictures), {}, Translated(text::kPictureFiles));
  std::vector<Path> paths;
  for (const QString& file : files) paths.emplace_back(ToUtf8(file.toStdWString()));
  Conclude(list_.OnAdd(paths));
}

void ImageStoreDialog::Paste() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (!data || !TakeFrom(*data)) TellFailure(HostText(text::kNoPictureToPaste));
}

// Files, or a picture as such. False when it holds neither.
bool ImageStoreDialog::TakeFrom(const QMimeData& data) {
  std::vector<Path> files;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) files.emplace_back(ToUtf8(url.toLocalFile().toStdWString()));
  }
  if (!files.empty()) {
    Conclude(list_.OnAdd(files));
    return true;
  }
  const auto image = qvariant_cast<QImage>(data.imageData());
  if (image.isNull()) return false;
  Conclude(list_.OnAddBytes(AsPng(image), L"picture"));
  return true;
}

void ImageStoreDialog::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls() || event->mimeData()->hasImage()) event->acceptProposedAction();
}

void ImageStoreDialog::dropEvent(QDropEvent* event) {
  if (TakeFrom(*event->mimeData())) event->acceptProposedAction();
}

void ImageStoreDialog::Replace() {
  const std::vector<std::wstring> names = Selected();
  if (names.size() != 1) return;
  const QString file =
      QFileDialog::getOpenFileName(this, Translated(text::kChoosePictureFile), {}, Translated(text::kPictureFiles));
  if (!file.isEmpty()) Conclude(list_.OnReplace(names.front(), Path(ToUtf8(file.toStdWString()))));
}

void ImageStoreDialog::Delete() { Conclude(list_.OnDelete(Selected())); }

void ImageStoreDialog::DeleteUnused() { Conclude(list_.OnDeleteUnused()); }

// A folder is there once it holds a picture.
void ImageStoreDialog::NewFolder() {
  bool agreed = false;
  const QString name = QInputDialog::getText(this, Translated(text::kNewFolderButton), Translated(text::kNewFolderName),
                                             QLineEdit::Normal, {}, &agreed);
  const std::wstring folder = name.trimmed().toStdWString();
  if (!agreed || folder.empty()) return;
  if (!IsSafeSubPath(folder)) return TellFailure(FormatText(HostText(text::kNoPictureFolder), folder));
  list_.ShowFolder(folder);
  FillPictures();
  AddFiles();
  FillFolders();
}

void ImageStoreDialog::Conclude(bool hasChanged) {
  if (!hasChanged) return;
  const std::vector<std::wstring> added = list_.Added();
  filter_->clear();
  model_->Reload();
  FillFolders();
  FillPictures();
  Select(added);
  if (changed) changed();
}

// --- What is shown ---

void ImageStoreDialog::FillFolders() {
  const QSignalBlocker quiet(folders_);
  folders_->clear();
  folders_->addItem(Translated(text::kAllPictures));
  for (const std::wstring& folder : list_.Folders()) folders_->addItem(FolderLabel(folder));
  int current = 0;
  for (std::size_t i = 0; i < list_.Folders().size(); ++i) {
    if (list_.ShownFolder() == list_.Folders()[i]) current = static_cast<int>(i) + 1;
  }
  folders_->setCurrentRow(current);
}

void ImageStoreDialog::TakeFolder(int row) {
  if (row < 0) return;
  list_.ShowFolder(row == 0 ? std::nullopt : std::optional(list_.Folders()[static_cast<std::size_t>(row - 1)]));
  FillPictures();
}

void ImageStoreDialog::FillPictures() {
  model_->ShowNames(list_.Rows());
  Refresh();
}

std::vector<std::wstring> ImageStoreDialog::Selected() const {
  std::vector<std::wstring> names;
  for (const QModelIndex& index : pictures_->selectionModel()->selectedIndexes())
    names.push_back(model_->NameAt(index.row()));
  return names;
}

void ImageStoreDialog::Select(const std::vector<std::wstring>& names) {
  for (const std::wstring& name : names) {
    const int row = model_->RowOf(name);
    if (row < 0) continue;
    pictures_->selectionModel()->select(model_->index(row), QItemSelectionModel::Select);
    pictures_->scrollTo(model_->index(row));
  }
}

void ImageStoreDialog::Refresh() {
  const std::vector<std::wstring> names = Selected();
  replace_->setEnabled(names.size() == 1);
  delete_->setEnabled(!names.empty());
  ShowDetails(names.size() == 1 ? names.front() : std::wstring());
}

void ImageStoreDialog::ShowDetails(const std::wstring& name) {
  uses_->clear();
  preview_->clear();
  details_->clear();
  const std::vector<PictureUse>& uses = list_.UsesOf(name);
  uses_->setVisible(!uses.empty());
  if (name.empty()) return;
  QStringList lines = {ToQString(name)};
  if (const PicturePtr picture = Read(name)) {
    preview_->setPixmap(QPixmap::fromImage(FitPicture(picture, kPreviewSide)));
    lines.append(ToQString(
        FillIn(HostText(text::kPixelSize), {std::to_wstring(picture->width), std::to_wstring(picture->height)})));
  }
  lines.append(Translated(uses.empty() ? text::kNotUsedHere : text::kUsedOn));
  details_->setText(lines.join(QLatin1Char('\n')));
  for (const PictureUse& use : uses) uses_->addItem(UseLabel(use));
}

// --- What the list asks ---

std::size_t ImageStoreDialog::Decide(const Question& question) { return AskInBox(question, this); }

void ImageStoreDialog::TellFailure(const std::wstring& sentences) {
  QMessageBox::warning(this, windowTitle(), ToQString(sentences));
}

}  // namespace xrpt
