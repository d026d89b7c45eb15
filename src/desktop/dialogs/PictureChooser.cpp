#include "desktop/dialogs/PictureChooser.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"
#include "editor/ImageStore.h"
#include "host/qt/QtPictures.h"
#include "platform/ImageFiles.h"
#include "platform/PictureName.h"

namespace xrpt {

namespace {

// In the middle of a square, so that all previews are of one size.
QImage OnSquare(const QImage& picture) {
  QImage square(PicturesModel::kPreview, PicturesModel::kPreview, QImage::Format_ARGB32_Premultiplied);
  square.fill(Qt::transparent);
  QPainter(&square).drawImage((square.width() - picture.width()) / 2, (square.height() - picture.height()) / 2,
                              picture);
  return square;
}

QImage PreviewOf(const std::wstring& name) {
  const PictureKey key = ParsePictureName(name);
  const QSize room(PicturesModel::kPreview, PicturesModel::kPreview);
  PicturePtr picture = ReadImageFile(CurrentHost(), key.id, key.path);
  if (picture && picture->source) {
    const QSize shown = QSize(picture->width, picture->height).scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
    picture = WithPixels(picture, shown.width(), shown.height());
  }
  if (!picture) return {};
  const QImage whole = ToImage(*picture);
  const bool fits = whole.width() <= room.width() && whole.height() <= room.height();
  return OnSquare(fits ? whole : whole.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

// Until a preview is there.
QPixmap Placeholder() {
  const QPixmap icon = ThemedIcon(QStringLiteral("image")).pixmap(PicturesModel::kPreview / 2);
  return QPixmap::fromImage(OnSquare(icon.toImage()));
}

}  // namespace

PicturesModel::PicturesModel(QObject* parent) : QAbstractListModel(parent) {
  workers_.setMaxThreadCount(2);
  Reload();
}

PicturesModel::~PicturesModel() {
  workers_.clear();
  workers_.waitForDone();
}

void PicturesModel::Reload() {
  workers_.clear();
  workers_.waitForDone();
  rows_.clear();
  for (std::wstring& name : ListPictures()) rows_.push_back({std::move(name), false, {}});
  Filter(filter_);
}

void PicturesModel::Filter(const QString& text) {
  filter_ = text;
  beginResetModel();
  shown_.clear();
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (ToQString(rows_[row].name).contains(text, Qt::CaseInsensitive)) shown_.push_back(row);
  }
  endResetModel();
}

int PicturesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant PicturesModel::data(const QModelIndex& index, int role) const {
  const std::size_t row = shown_[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return ToQString(rows_[row].name);
  if (role != Qt::DecorationRole) return {};
  if (rows_[row].preview.isNull()) {
    Ask(row);
    return Placeholder();
  }
  return rows_[row].preview;
}

// What comes back finds its row by name: the list may be another one by then.
void PicturesModel::Ask(std::size_t row) const {
  if (std::exchange(rows_[row].isAsked, true)) return;
  auto* self = const_cast<PicturesModel*>(this);
  workers_.start([self, name = rows_[row].name] {
    const QImage preview = PreviewOf(name);
    QMetaObject::invokeMethod(
        self, [self, name, preview] { self->Take(name, preview); }, Qt::QueuedConnection);
  });
}

void PicturesModel::Take(const std::wstring& name, const QImage& preview) {
  const int shown = RowOf(name);
  const auto row =
      std::find_if(rows_.begin(), rows_.end(), [&name](const Row& candidate) { return candidate.name == name; });
  if (row == rows_.end() || preview.isNull()) return;
  row->preview = QPixmap::fromImage(preview);
  if (shown >= 0) emit dataChanged(index(shown), index(shown), {Qt::DecorationRole});
}

int PicturesModel::RowOf(const std::wstring& name) const {
  for (std::size_t row = 0; row < shown_.size(); ++row) {
    if (rows_[shown_[row]].name == name) return static_cast<int>(row);
  }
  return -1;
}

PictureChooser::PictureChooser(const std::wstring& current, QWidget* parent)
    : QDialog(parent), filter_(new QLineEdit(this)), list_(new QListView(this)), model_(new PicturesModel(this)) {
  setWindowTitle(Translated(text::kChoosePicture));
  auto* column = new QVBoxLayout(this);
  filter_->setPlaceholderText(Translated(text::kFilterPictures));
  filter_->setAccessibleName(Translated(text::kFilterPictures));
  filter_->setClearButtonEnabled(true);
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
    model_->Filter(text);
    if (model_->rowCount() > 0) list_->setCurrentIndex(model_->index(0));
    Refresh();
  });
  column->addWidget(filter_);
  list_->setAccessibleName(Translated(text::kPictures));
  list_->setViewMode(QListView::IconMode);
  list_->setResizeMode(QListView::Adjust);
  list_->setMovement(QListView::Static);
  list_->setIconSize({PicturesModel::kPreview, PicturesModel::kPreview});
  list_->setGridSize({PicturesModel::kPreview + 32, PicturesModel::kPreview + 36});
  list_->setUniformItemSizes(true);
  list_->setLayoutMode(QListView::Batched);
  list_->setTextElideMode(Qt::ElideMiddle);
  list_->setFrameShape(QFrame::StyledPanel);
  list_->setModel(model_);
  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { Refresh(); });
  connect(list_, &QListView::doubleClicked, this, &QDialog::accept);
  column->addWidget(list_, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  choose_ = buttons->button(QDialogButtonBox::Ok);
  choose_->setDefault(true);
  QPushButton* add = buttons->addButton(Translated(text::kAddPictures), QDialogButtonBox::ActionRole);
  QPushButton* none = buttons->addButton(Translated(text::kNoPicture), QDialogButtonBox::ResetRole);
  for (QPushButton* button : {add, none}) button->setAutoDefault(false);
  connect(add, &QPushButton::clicked, this, [this] { AddFiles(); });
  connect(none, &QPushButton::clicked, this, [this] { ChooseNone(); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  const int row = model_->RowOf(current);
  if (row >= 0) list_->setCurrentIndex(model_->index(row));
  Refresh();
  KeepSize(*this, L"Pictures", {640, 520});
  list_->setFocus();
}

void PictureChooser::Refresh() { choose_->setEnabled(list_->currentIndex().isValid()); }

void PictureChooser::AddFiles() {
  const QStringList files =
      QFileDialog::getOpenFileNames(this, Translated(text::kAddPictures), {}, Translated(text::kPictureFiles));
  std::wstring last;
  QStringList refused;
  for (const QString& file : files) {
    const AddedPicture added = AddPicture(file.toStdWString());
    if (added.name.empty()) {
      refused.append(ToQString(added.problem));
    } else {
      last = added.name;
    }
  }
  if (!refused.isEmpty()) QMessageBox::warning(this, windowTitle(), refused.join(QLatin1Char('\n')));
  if (last.empty()) return;
  filter_->clear();
  model_->Reload();
  list_->setCurrentIndex(model_->index(model_->RowOf(last)));
}

void PictureChooser::ChooseNone() {
  none_ = true;
  accept();
}

std::wstring PictureChooser::Chosen() const {
  const QModelIndex current = list_->currentIndex();
  return none_ || !current.isValid() ? std::wstring() : model_->NameAt(current.row());
}

std::optional<std::wstring> PictureChooser::Choose(const std::wstring& current, QWidget* parent) {
  PictureChooser dialog(current, parent);
  if (dialog.exec() != Accepted) return std::nullopt;
  return dialog.Chosen();
}

}  // namespace xrpt
