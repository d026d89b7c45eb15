#include "desktop/panels/FieldForm.h"

#include <QGridLayout>
#include <QLabel>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/FieldEditors.h"
#include "desktop/panels/FieldServices.h"
#include "desktop/panels/FieldUndo.h"

namespace xrpt {

namespace {

constexpr FieldGroup kGroups[] = {
    FieldGroup::Geometry, FieldGroup::Content,   FieldGroup::Font,  FieldGroup::Alignment, FieldGroup::Colors,
    FieldGroup::Format,   FieldGroup::Animation, FieldGroup::Scale, FieldGroup::Series,    FieldGroup::Page};

// Short numbers stand two on a line; a text box takes the whole width below its label.
bool StandsInPairs(const FieldRow& row) { return row.panel.group == FieldGroup::Geometry; }
bool StandsBelowLabel(const FieldRow& row) {
  return row.panel.editor == FieldEditor::Lines || row.panel.editor == FieldEditor::Expression;
}

// What the panel's own title, or the list above, says already.
bool NeedsTitle(FieldGroup group) { return group != FieldGroup::Page && group != FieldGroup::Series; }

}  // namespace

int GroupTextId(FieldGroup group) { return text::kFirstFieldGroup + static_cast<int>(group); }

QWidget* MakeSectionTitle(int textId, QWidget* parent) {
  auto* title = new QLabel(Translated(textId), parent);
  title->setObjectName(QStringLiteral("sectionTitle"));
  title->setIndent(0);
  return title;
}

FieldForm::FieldForm(const char* prefix, const FieldServices& services, Edited edited, QWidget* parent)
    : QWidget(parent), prefix_(QLatin1String(prefix)), services_(services), edited_(std::move(edited)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
}

FieldForm::~FieldForm() = default;

void FieldForm::Show(const std::vector<FieldState>& states) {
  if (!ShowsSameFields(states)) Rebuild(states);
  for (const FieldState& state : states) {
    const auto entry =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.row == state.row; });
    if (entry == entries_.end()) continue;
    entry->editor->Offer(state.words);
    entry->editor->Show(state.text);
  }
}

bool FieldForm::ShowsSameFields(const std::vector<FieldState>& states) const {
  if (!body_) return false;
  std::size_t shown = 0;
  for (const FieldState& state : states) {
    if (state.row->panel.editor == FieldEditor::None) continue;
    const auto same = [&](const Entry& entry) { return entry.row == state.row; };
    if (std::none_of(entries_.begin(), entries_.end(), same)) return false;
    ++shown;
  }
  return shown == entries_.size();
}

void FieldForm::Forget() {
  entries_.clear();
  delete body_;
  body_ = nullptr;
}

void FieldForm::Rebuild(const std::vector<FieldState>& states) {
  Forget();
  body_ = new QWidget(this);
  auto* column = new QVBoxLayout(body_);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(6);
  for (const FieldGroup group : kGroups) AddSection(*column, group, states);
  layout()->addWidget(body_);
}

void FieldForm::AddSection(QBoxLayout& column, FieldGroup group, const std::vector<FieldState>& states) {
  QGridLayout* grid = nullptr;
  int index = 0;
  for (const FieldState& state : states) {
    if (state.row->panel.group != group || state.row->panel.editor == FieldEditor::None) continue;
    if (!grid) grid = StartSection(column, group);
    AddField(*grid, *state.row, index++);
  }
}

QGridLayout* FieldForm::StartSection(QBoxLayout& column, FieldGroup group) {
  if (NeedsTitle(group)) column.addWidget(MakeSectionTitle(GroupTextId(group), body_));
  auto* grid = new QGridLayout();
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(6);
  column.addLayout(grid);
  return grid;
}

void FieldForm::AddField(QGridLayout& grid, const FieldRow& row, int index) {
  auto editor = MakeFieldEditor(
      row, [this, &row](const std::string& text) { edited_(row, text); }, services_.expressions, body_);
  const QString name = Translated(row.panel.textId);
  auto* label = new QLabel(name, body_);
  label->setObjectName(QStringLiteral("muted"));
  label->setBuddy(editor->Widget());
  label->setMinimumWidth(StandsInPairs(row) ? 0 : 92);
  label->setWordWrap(!StandsInPairs(row));
  // Fields share the room there is, whatever they would like.
  editor->Widget()->setMinimumWidth(48);
  editor->Widget()->setSizePolicy(QSizePolicy::Ignored, editor->Widget()->sizePolicy().verticalPolicy());
  editor->Widget()->setAccessibleName(name);
  services_.undo.Watch(*editor->Widget());
  editor->Widget()->setObjectName(prefix_ + QString::fromStdString(row.FullName()));
  const int line = StandsInPairs(row) ? index / 2 : grid.rowCount();
  const int column = StandsInPairs(row) ? index % 2 * 2 : 0;
  grid.setColumnStretch(column + 1, 1);
  if (StandsBelowLabel(row)) {
    grid.addWidget(label, line, 0, 1, 2);
    grid.addWidget(editor->Widget(), line + 1, 0, 1, 2);
  } else {
    grid.addWidget(label, line, column);
    grid.addWidget(editor->Widget(), line, column + 1);
  }
  entries_.push_back({&row, std::move(editor)});
}

void FieldForm::Finish() {
  for (const Entry& entry : entries_) entry.editor->Finish();
}

void FieldForm::FocusFirst() {
  if (!entries_.empty()) entries_.front().editor->Widget()->setFocus(Qt::ShortcutFocusReason);
}

QWidget* FieldForm::Find(std::string_view name) const {
  for (const Entry& entry : entries_) {
    if (entry.row->FullName() == name) return entry.editor->Widget();
  }
  return nullptr;
}

}  // namespace xrpt
