#include "desktop/dialogs/NameChooser.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/look/Texts.h"

namespace xrpt {

namespace {

bool HoldsAll(const QString& folded, const QStringList& words) {
  return std::all_of(words.begin(), words.end(), [&](const QString& word) { return folded.contains(word); });
}

}  // namespace

// --- The names ---

void NamesModel::Filter(const QString& text) {
  filter_ = text;
  const QStringList words = text.toCaseFolded().split(QLatin1Char(' '), Qt::SkipEmptyParts);
  beginResetModel();
  shown_.clear();
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (HoldsAll(rows_[row].folded, words)) shown_.push_back(row);
  }
  endResetModel();
}

int NamesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant NamesModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  return rows_[shown_[static_cast<std::size_t>(index.row())]].label;
}

int NamesModel::RowOf(const std::wstring& name) const {
  for (std::size_t row = 0; row < shown_.size(); ++row) {
    if (rows_[shown_[row]].name == name) return static_cast<int>(row);
  }
  return -1;
}

// --- The dialog ---

NameChooser::NameChooser(NamesModel& model, const Texts& texts, QWidget* parent)
    : QDialog(parent),
      model_(model),
      filter_(new QLineEdit(this)),
      list_(new QListView(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
  setWindowTitle(Translated(texts.title));
  filter_->setPlaceholderText(Translated(texts.filter));
  filter_->setAccessibleName(Translated(texts.filter));
  filter_->setClearButtonEnabled(true);
  filter_->installEventFilter(this);
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
    model_.Filter(text);
    if (model_.rowCount() > 0) list_->setCurrentIndex(model_.index(0));
    Refresh();
  });
  list_->setAccessibleName(Translated(texts.list));
  list_->setUniformItemSizes(true);
  list_->setFrameShape(QFrame::StyledPanel);
  list_->setModel(&model_);
  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { Refresh(); });
  connect(list_, &QListView::doubleClicked, this, &QDialog::accept);
  buttons_->button(QDialogButtonBox::Ok)->setDefault(true);
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->addWidget(filter_);
  column->addWidget(list_, 1);
  column->addWidget(buttons_);
  Refresh();
  filter_->setFocus();
}

void NameChooser::Choose(const std::wstring& name) {
  const int row = model_.RowOf(name);
  if (row >= 0) list_->setCurrentIndex(model_.index(row));
  Refresh();
}

void NameChooser::ClearFilter() { filter_->clear(); }

void NameChooser::Refresh() { buttons_->button(QDialogButtonBox::Ok)->setEnabled(list_->currentIndex().isValid()); }

std::wstring NameChooser::Chosen() const {
  const QModelIndex current = list_->currentIndex();
  return current.isValid() ? model_.NameAt(current.row()) : std::wstring();
}

// The arrows move through the list while the keyboard stays in the filter.
bool NameChooser::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
      return QApplication::sendEvent(list_, event);
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace xrpt
