#include "desktop/panels/FieldForm.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/ColorButton.h"
#include "desktop/panels/FieldEditors.h"
#include "desktop/panels/FieldServices.h"
#include "desktop/panels/FieldUndo.h"
#include "model/FieldTexts.h"

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

// What a number measures, as people write it; empty for a mere number, and where the section's title says it.
QString UnitOf(const FieldRow& row) {
  if (row.panel.editor != FieldEditor::Decimal && row.panel.editor != FieldEditor::Integer) return {};
  if (row.panel.group == FieldGroup::Page) return QStringLiteral("mm");
  if (row.panel.textId == text::kFontSize) return QStringLiteral("pt");
  return row.panel.textId == text::kScrollDelay ? QStringLiteral("ms") : QString();
}

// What the panel's own title, or the list above, says already.
bool NeedsTitle(FieldGroup group) { return group != FieldGroup::Page && group != FieldGroup::Series; }

}  // namespace

QString LabelOf(const FieldRow& row) {
  const QString name = Translated(row.panel.textId);
  const QString unit = UnitOf(row);
  return unit.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, unit);
}

int GroupTextId(FieldGroup group) { return text::kFirstFieldGroup + static_cast<int>(group); }

QWidget* MakeSectionTitle(int textId, QWidget* parent) {
  auto* title = new QLabel(Translated(textId), parent);
  title->setObjectName(QStringLiteral("sectionTitle"));
  title->setIndent(0);
  return title;
}

namespace {

// Which sections are folded is remembered for all panels together.
constexpr wchar_t kFoldedSection[] = L"FoldedSections";

std::wstring FoldName(FieldGroup group) { return std::to_wstring(static_cast<int>(group)); }

bool IsFolded(FieldGroup group) { return CurrentHost().settings->ProfileInt(kFoldedSection, FoldName(group), 0) != 0; }

void StoreFolded(FieldGroup group, bool on) {
  CurrentHost().settings->SetProfileInt(kFoldedSection, FoldName(group), on ? 1 : 0);
}

QToolButton* MakeFoldingTitle(FieldGroup group, QWidget* parent) {
  auto* title = new QToolButton(parent);
  title->setText(Translated(GroupTextId(group)));
  title->setToolTip(Translated(text::kFoldSection, title->text()));
  title->setAccessibleName(title->toolTip());
  title->setObjectName(QStringLiteral("sectionTitle"));
  title->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  title->setAutoRaise(true);
  title->setProperty("flat", true);
  title->setFocusPolicy(Qt::TabFocus);
  return title;
}

}  // namespace

FieldForm::FieldForm(const char* prefix, const FieldServices& services, Edited edited, QWidget* parent)
    : QWidget(parent), prefix_(QLatin1String(prefix)), services_(services), edited_(std::move(edited)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
}

FieldForm::~FieldForm() = default;

void FieldForm::Show(const std::vector<FieldState>& states) {
  if (!ShowsSameFields(states)) {
    Rebuild(states);
    ApplyFilter();
  }
  for (const FieldState& state : states) {
    const auto entry =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.row == state.row; });
    if (entry == entries_.end()) continue;
    entry->editor->Offer(state.words);
    if (entry->isNamed) entry->editor->OfferNames(state.names);
    entry->editor->Show(state.text);
  }
}

bool FieldForm::ShowsSameFields(const std::vector<FieldState>& states) const {
  if (!body_) return false;
  std::size_t shown = 0;
  for (const FieldState& state : states) {
    if (state.row->panel.editor == FieldEditor::None) continue;
    const auto same = [&](const Entry& entry) {
      return entry.row == state.row && entry.isNamed == !state.names.empty();
    };
    if (std::none_of(entries_.begin(), entries_.end(), same)) return false;
    ++shown;
  }
  return shown == entries_.size();
}

void FieldForm::Forget() {
  entries_.clear();
  sections_.clear();
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
    AddField(*grid, state, index++);
  }
}

QGridLayout* FieldForm::StartSection(QBoxLayout& column, FieldGroup group) {
  Section section{group, nullptr, new QWidget(body_)};
  if (NeedsTitle(group)) {
    section.title = MakeFoldingTitle(group, body_);
    connect(section.title, &QToolButton::clicked, this, [this, section] {
      StoreFolded(section.group, !IsFolded(section.group));
      Fold(section, IsFolded(section.group));
    });
    column.addWidget(section.title);
  }
  auto* grid = new QGridLayout(section.fields);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(6);
  column.addWidget(section.fields);
  sections_.push_back(section);
  Fold(section, section.title && IsFolded(group));
  return grid;
}

void FieldForm::Fold(const Section& section, bool isFolded) {
  section.fields->setVisible(!isFolded);
  if (section.title) section.title->setArrowType(isFolded ? Qt::RightArrow : Qt::DownArrow);
}

int FieldForm::Filter(const QString& text) {
  filter_ = text.trimmed();
  ApplyFilter();
  return static_cast<int>(
      std::count_if(entries_.begin(), entries_.end(), [](const Entry& entry) { return !entry.label->isHidden(); }));
}

// What the filter finds is shown, folded or not.
void FieldForm::ApplyFilter() {
  for (const Section& section : sections_) {
    const bool holdsTitle = section.title && section.title->text().contains(filter_, Qt::CaseInsensitive);
    bool hasAny = false;
    for (const Entry& entry : entries_) {
      if (entry.row->panel.group != section.group) continue;
      const bool fits = holdsTitle || Translated(entry.row->panel.textId).contains(filter_, Qt::CaseInsensitive);
      entry.label->setVisible(fits);
      entry.editor->Widget()->setVisible(fits);
      hasAny = hasAny || fits;
    }
    if (section.title) section.title->setVisible(hasAny);
    Fold(section, !hasAny || (filter_.isEmpty() && section.title && IsFolded(section.group)));
  }
}

std::unique_ptr<FieldEditorWidget> FieldForm::MakeEditor(const FieldState& state) {
  const FieldRow& row = *state.row;
  const auto edited = [this, &row](const std::string& text) { edited_(row, text); };
  if (!state.names.empty()) return MakeNamedEditor(edited, body_);
  auto editor = MakeFieldEditor(row, edited, services_.expressions, body_);
  if (auto* button = dynamic_cast<ColorButton*>(editor->Widget())) button->used = services_.colors;
  return editor;
}

void FieldForm::AddField(QGridLayout& grid, const FieldState& state, int index) {
  const FieldRow& row = *state.row;
  auto editor = MakeEditor(state);
  const QString name = Translated(row.panel.textId);
  auto* label = new QLabel(LabelOf(row), body_);
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
  entries_.push_back({&row, std::move(editor), label, !state.names.empty()});
}

void FieldForm::Finish() {
  for (const Entry& entry : entries_) entry.editor->Finish();
}

void FieldForm::FocusFirst() {
  if (!entries_.empty()) entries_.front().editor->Widget()->setFocus(Qt::ShortcutFocusReason);
}

void FieldForm::FocusContent() {
  for (const Entry& entry : entries_) {
    if (entry.row->panel.group == FieldGroup::Content) return entry.editor->Widget()->setFocus(Qt::ShortcutFocusReason);
  }
  FocusFirst();
}

QWidget* FieldForm::Find(std::string_view name) const {
  for (const Entry& entry : entries_) {
    if (entry.row->FullName() == name) return entry.editor->Widget();
  }
  return nullptr;
}

}  // namespace xrpt
