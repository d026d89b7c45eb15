#include "desktop/panels/ItemsEditor.h"

#include <QListWidget>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/look/Swatch.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/FieldForm.h"
#include "desktop/panels/ListButtons.h"

namespace xrpt {

ItemsEditor::ItemsEditor(const char* prefix, SelectedItems items, const FieldServices& services,
                         std::function<void()> changed, QWidget* parent)
    : QWidget(parent), items_(std::move(items)), changed_(std::move(changed)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(6);
  column->addWidget(MakeSectionTitle(GroupTextId(FieldGroup::Series), this));
  list_ = new QListWidget(this);
  list_->setAccessibleName(Translated(GroupTextId(FieldGroup::Series)));
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  connect(list_, &QListWidget::itemSelectionChanged, this, [this] { ShowChosen(); });
  column->addWidget(list_);
  buttons_ = new ListButtons(this);
  connect(&buttons_->Add(), &QToolButton::clicked, this, [this] { Add(); });
  buttons_->removed = [this] { Remove(); };
  buttons_->moved = [this](int by) { Move(by); };
  column->addWidget(buttons_);
  form_ = new FieldForm(
      prefix, services,
      [this](const FieldRow& row, const std::string& text) {
        items_.Assign(Chosen(), row, text);
        changed_();
      },
      this);
  column->addWidget(form_);
}

void ItemsEditor::Refresh() {
  setVisible(items_.HasList());
  if (!items_.HasList()) return;
  FillList();
  ShowChosen();
}

// The chosen lines stay chosen; the first is, when none was.
void ItemsEditor::FillList() {
  const QSignalBlocker quiet(list_);
  const int count = static_cast<int>(items_.Size());
  while (list_->count() > count) delete list_->takeItem(list_->count() - 1);
  while (list_->count() < count) list_->addItem(new QListWidgetItem());
  for (int line = 0; line < count; ++line) {
    const auto item = static_cast<std::size_t>(line);
    const QString caption = ToQString(items_.Caption(item));
    list_->item(line)->setText(caption.isEmpty() ? Translated(text::kNoVariable) : caption);
    if (const auto color = items_.ColorOf(item)) list_->item(line)->setIcon(Swatch(*color));
  }
  if (list_->selectedItems().isEmpty() && count > 0) list_->setCurrentRow(0);
  FitHeight(*list_);
}

ItemNumbers ItemsEditor::Chosen() const {
  ItemNumbers chosen;
  for (int line = 0; line < list_->count(); ++line) {
    if (list_->item(line)->isSelected()) chosen.push_back(static_cast<std::size_t>(line));
  }
  return chosen;
}

void ItemsEditor::Choose(std::size_t item) {
  list_->setCurrentRow(static_cast<int>(item), QItemSelectionModel::ClearAndSelect);
}

void ItemsEditor::ShowChosen() {
  const ItemNumbers chosen = Chosen();
  form_->setVisible(!chosen.empty());
  form_->Show(items_.Fields(chosen));
  buttons_->Refresh(chosen.size(), chosen.empty() ? 0 : chosen.front(), items_.Size());
}

void ItemsEditor::Add() {
  Finish();
  items_.Add();
  FillList();
  Choose(items_.Size() - 1);
  changed_();
  form_->FocusFirst();
}

void ItemsEditor::Remove() {
  Finish();
  items_.Remove(Chosen());
  changed_();
  Refresh();
}

void ItemsEditor::Move(int by) {
  Finish();
  const std::size_t from = Chosen().front();
  const std::size_t to = by < 0 ? from - 1 : from + 1;
  if (!items_.Move(from, to)) return;
  FillList();
  Choose(to);
  changed_();
}

int ItemsEditor::Filter(const QString& text) { return isHidden() ? 0 : form_->Filter(text); }

void ItemsEditor::Finish() { form_->Finish(); }

void ItemsEditor::Forget() { form_->Forget(); }

QWidget* ItemsEditor::Find(std::string_view name) const { return form_->Find(name); }

}  // namespace xrpt
