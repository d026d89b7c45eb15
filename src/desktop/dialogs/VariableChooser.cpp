#include "desktop/dialogs/VariableChooser.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/dialogs/DialogSize.h"
#include "desktop/look/Texts.h"

namespace xrpt {

namespace {

QString LabelOf(const std::wstring& name, const Device& device, const DeviceVariable& variable) {
  QStringList words;
  for (const std::wstring& word : {device.name, variable.name}) {
    if (!word.empty()) words.append(ToQString(word));
  }
  const QString id = ToQString(name);
  return words.isEmpty() ? id : QStringLiteral("%1   %2").arg(id, words.join(QStringLiteral(" · ")));
}

bool HoldsAll(const QString& folded, const QStringList& words) {
  return std::all_of(words.begin(), words.end(), [&](const QString& word) { return folded.contains(word); });
}

}  // namespace

VariablesModel::VariablesModel(QObject* parent) : QAbstractListModel(parent) {
  for (const Device& device : CurrentHost().devices->Devices()) {
    for (const DeviceVariable& variable : device.variables) {
      Row row{CurrentHost().variables->JoinDriverVariable({device.id, variable.id, {}, {}}), {}, {}};
      row.label = LabelOf(row.name, device, variable);
      row.folded = row.label.toCaseFolded();
      rows_.push_back(std::move(row));
    }
  }
  Filter({});
}

void VariablesModel::Filter(const QString& text) {
  const QStringList words = text.toCaseFolded().split(QLatin1Char(' '), Qt::SkipEmptyParts);
  beginResetModel();
  shown_.clear();
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (HoldsAll(rows_[row].folded, words)) shown_.push_back(row);
  }
  endResetModel();
}

int VariablesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant VariablesModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole) return {};
  return rows_[shown_[static_cast<std::size_t>(index.row())]].label;
}

int VariablesModel::RowOf(const std::wstring& name) const {
  for (std::size_t row = 0; row < shown_.size(); ++row) {
    if (rows_[shown_[row]].name == name) return static_cast<int>(row);
  }
  return -1;
}

VariableChooser::VariableChooser(const std::wstring& current, QWidget* parent)
    : QDialog(parent), filter_(new QLineEdit(this)), list_(new QListView(this)), model_(new VariablesModel(this)) {
  setWindowTitle(Translated(text::kChooseVariable));
  auto* column = new QVBoxLayout(this);
  filter_->setPlaceholderText(Translated(text::kFilterVariables));
  filter_->setAccessibleName(Translated(text::kFilterVariables));
  filter_->setClearButtonEnabled(true);
  filter_->installEventFilter(this);
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
    model_->Filter(text);
    if (model_->rowCount() > 0) list_->setCurrentIndex(model_->index(0));
    Refresh();
  });
  column->addWidget(filter_);
  list_->setAccessibleName(Translated(text::kVariables));
  list_->setUniformItemSizes(true);
  list_->setFrameShape(QFrame::StyledPanel);
  list_->setModel(model_);
  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { Refresh(); });
  connect(list_, &QListView::doubleClicked, this, &QDialog::accept);
  column->addWidget(list_, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  choose_ = buttons->button(QDialogButtonBox::Ok);
  choose_->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  const int row = model_->RowOf(current);
  if (row >= 0) list_->setCurrentIndex(model_->index(row));
  Refresh();
  KeepSize(*this, L"Variables", {520, 480});
  filter_->setFocus();
}

// The arrows move through the list while the keyboard stays in the filter.
bool VariableChooser::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
      return QApplication::sendEvent(list_, event);
  }
  return QDialog::eventFilter(watched, event);
}

void VariableChooser::Refresh() { choose_->setEnabled(list_->currentIndex().isValid()); }

std::wstring VariableChooser::Chosen() const {
  const QModelIndex current = list_->currentIndex();
  return current.isValid() ? model_->NameAt(current.row()) : std::wstring();
}

std::optional<std::wstring> VariableChooser::Choose(const std::wstring& current, QWidget* parent) {
  VariableChooser dialog(current, parent);
  if (dialog.exec() != Accepted || dialog.Chosen().empty()) return std::nullopt;
  return dialog.Chosen();
}

}  // namespace xrpt
