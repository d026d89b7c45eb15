#include "desktop/dialogs/PictureChooser.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QListView>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>

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
  const QImage fitted = FitPicture(ReadImageFile(CurrentHost(), key.id, key.path), PicturesModel::kPreview);
  return fitted.isNull() ? fitted : OnSquare(fitted);
}

// Until a preview is there.
QPixmap Placeholder() {
  const QPixmap icon = ThemedIcon(QStringLiteral("image")).pixmap(PicturesModel::kPreview / 2);
  return QPixmap::fromImage(OnSquare(icon.toImage()));
}

}  // namespace

QImage FitPicture(PicturePtr picture, int side) {
  const QSize room(side, side);
  if (picture && picture->source) {
    const QSize shown = QSize(picture->width, picture->height).scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
    picture = WithPixels(picture, shown.width(), shown.height());
  }
  if (!picture) return {};
  const QImage whole = ToImage(*picture);
  const bool fits = whole.width() <= side && whole.height() <= side;
  return fits ? whole : whole.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

PicturesModel::PicturesModel(QObject* parent) : NamesModel(parent) {
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
  previews_.clear();
  ShowNames(ListPictures());
}

void PicturesModel::ShowNames(const std::vector<std::wstring>& names) {
  Clear();
  for (const std::wstring& name : names) Add(name, ToQString(name));
  FilterAgain();
}

QVariant PicturesModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DecorationRole) return NamesModel::data(index, role);
  const std::wstring& name = NameAt(index.row());
  const auto known = previews_.find(name);
  if (known == previews_.end()) Ask(name);
  return known == previews_.end() || known->second.isNull() ? Placeholder() : known->second;
}

// What comes back finds its row by name: the list may be another one by then.
void PicturesModel::Ask(const std::wstring& name) const {
  previews_[name];
  auto* self = const_cast<PicturesModel*>(this);
  workers_.start([self, name] {
    const QImage preview = PreviewOf(name);
    QMetaObject::invokeMethod(
        self, [self, name, preview] { self->Take(name, preview); }, Qt::QueuedConnection);
  });
}

void PicturesModel::Take(const std::wstring& name, const QImage& preview) {
  previews_[name] = QPixmap::fromImage(preview);
  const int row = RowOf(name);
  if (row >= 0) emit dataChanged(index(row), index(row), {Qt::DecorationRole});
}

PictureChooser::PictureChooser(const std::wstring& current, QWidget* parent)
    : NameChooser(*new PicturesModel(nullptr), {text::kChoosePicture, text::kFilterPictures, text::kPictures}, parent),
      model_(static_cast<PicturesModel*>(List().model())) {
  model_->setParent(this);
  ShowAsPictures(List());
  AddButtons();
  NameChooser::Choose(current);
  KeepSize(*this, L"Pictures", {640, 520});
}

void ShowAsPictures(QListView& list) {
  list.setViewMode(QListView::IconMode);
  list.setResizeMode(QListView::Adjust);
  list.setMovement(QListView::Static);
  list.setIconSize({PicturesModel::kPreview, PicturesModel::kPreview});
  list.setGridSize({PicturesModel::kPreview + 32, PicturesModel::kPreview + 36});
  list.setLayoutMode(QListView::Batched);
  list.setTextElideMode(Qt::ElideMiddle);
}

void PictureChooser::AddButtons() {
  QPushButton* add = Buttons().addButton(Translated(text::kAddPictures), QDialogButtonBox::ActionRole);
  QPushButton* none = Buttons().addButton(Translated(text::kNoPicture), QDialogButtonBox::ResetRole);
  for (QPushButton* button : {add, none}) button->setAutoDefault(false);
  connect(add, &QPushButton::clicked, this, [this] { AddFiles(); });
  connect(none, &QPushButton::clicked, this, [this] {
    none_ = true;
    accept();
  });
}

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
  ClearFilter();
  model_->Reload();
  NameChooser::Choose(last);
}

std::optional<std::wstring> PictureChooser::Choose(const std::wstring& current, QWidget* parent) {
  PictureChooser dialog(current, parent);
  if (dialog.exec() != Accepted) return std::nullopt;
  return dialog.none_ ? std::wstring() : dialog.Chosen();
}

}  // namespace xrpt
