#include "desktop/panels/PropertyPanel.h"

#include <QGridLayout>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/FieldEditors.h"
#include "desktop/panels/FieldUndo.h"

namespace xrpt {

namespace {

constexpr int kIdleMilliseconds = 600;
constexpr FieldGroup kGroups[] = {
    FieldGroup::Geometry, FieldGroup::Content,   FieldGroup::Font,  FieldGroup::Alignment, FieldGroup::Colors,
    FieldGroup::Format,   FieldGroup::Animation, FieldGroup::Scale, FieldGroup::Series,    FieldGroup::Page};

int GroupTextId(FieldGroup group) { return text::kFirstFieldGroup + static_cast<int>(group); }

// Short numbers stand two on a line; a text box takes the whole width below its label.
bool StandsInPairs(const FieldRow& row) { return row.panel.group == FieldGroup::Geometry; }
bool StandsBelowLabel(const FieldRow& row) { return row.panel.editor == FieldEditor::Lines; }

}  // namespace

PropertyPanel::PropertyPanel(SelectedFields& fields, QWidget* parent)
    : QScrollArea(parent),
      fields_(fields),
      idle_(new QTimer(this)),
      undo_(new FieldUndo([this] { return isTyping_; }, this)) {
  setObjectName(QStringLiteral("panelArea"));
  setAccessibleName(Translated(text::kProperties));
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  idle_->setSingleShot(true);
  idle_->setInterval(kIdleMilliseconds);
  connect(idle_, &QTimer::timeout, this, [this] { EndStep(); });
}

PropertyPanel::~PropertyPanel() = default;

void PropertyPanel::Refresh() {
  const std::vector<FieldState> states = fields_.Fields();
  if (!ShowsSameFields(states)) Rebuild(states);
  ShowTitle();
  for (const FieldState& state : states) {
    const auto entry =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.row == state.row; });
    if (entry == entries_.end()) continue;
    entry->editor->Offer(state.words);
    entry->editor->Show(state.text);
  }
}

bool PropertyPanel::ShowsSameFields(const std::vector<FieldState>& states) const {
  if (!title_) return false;
  std::size_t shown = 0;
  for (const FieldState& state : states) {
    if (state.row->panel.editor == FieldEditor::None) continue;
    const auto same = [&](const Entry& entry) { return entry.row == state.row; };
    if (std::none_of(entries_.begin(), entries_.end(), same)) return false;
    ++shown;
  }
  return shown == entries_.size();
}

void PropertyPanel::Rebuild(const std::vector<FieldState>& states) {
  entries_.clear();
  auto* form = new QWidget();
  auto* column = new QVBoxLayout(form);
  column->setContentsMargins(12, 8, 12, 12);
  column->setSpacing(6);
  title_ = new QLabel(form);
  QFont bold = title_->font();
  bold.setPointSizeF(bold.pointSizeF() * 1.15);
  bold.setBold(true);
  title_->setFont(bold);
  column->addWidget(title_);
  for (const FieldGroup group : kGroups) AddSection(*column, group, states);
  column->addStretch(1);
  setWidget(form);
}

void PropertyPanel::AddSection(QBoxLayout& column, FieldGroup group, const std::vector<FieldState>& states) {
  QGridLayout* grid = nullptr;
  int index = 0;
  for (const FieldState& state : states) {
    if (state.row->panel.group != group || state.row->panel.editor == FieldEditor::None) continue;
    if (!grid) grid = StartSection(column, group);
    AddField(*grid, *state.row, index++);
  }
}

// The fields of the page need no title besides the panel's own.
QGridLayout* PropertyPanel::StartSection(QBoxLayout& column, FieldGroup group) {
  if (group != FieldGroup::Page) {
    auto* title = new QLabel(Translated(GroupTextId(group)), column.parentWidget());
    title->setObjectName(QStringLiteral("sectionTitle"));
    title->setIndent(0);
    column.addWidget(title);
  }
  auto* grid = new QGridLayout();
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(6);
  column.addLayout(grid);
  return grid;
}

void PropertyPanel::AddField(QGridLayout& grid, const FieldRow& row, int index) {
  QWidget* parent = grid.parentWidget() ? grid.parentWidget() : title_->parentWidget();
  auto editor = MakeFieldEditor(
      row, [this, &row](const std::string& text) { Edit(row, text); }, parent);
  const QString name = Translated(row.panel.textId);
  auto* label = new QLabel(name, parent);
  label->setObjectName(QStringLiteral("muted"));
  label->setBuddy(editor->Widget());
  label->setMinimumWidth(StandsInPairs(row) ? 0 : 92);
  label->setWordWrap(!StandsInPairs(row));
  // Fields share the room there is, whatever they would like.
  editor->Widget()->setMinimumWidth(48);
  editor->Widget()->setSizePolicy(QSizePolicy::Ignored, editor->Widget()->sizePolicy().verticalPolicy());
  editor->Widget()->setAccessibleName(name);
  undo_->Watch(*editor->Widget());
  editor->Widget()->setObjectName(QString::fromStdString(row.FullName()));
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

void PropertyPanel::ShowTitle() {
  const std::size_t count = fields_.Count();
  const int kind = fields_.KindTextId();
  if (count == 0) return title_->setText(Translated(text::kPageTitle));
  const QString cards = Translated(text::kSelectedCards, QString::number(count));
  if (count == 1) return title_->setText(Translated(kind));
  title_->setText(kind ? QStringLiteral("%1 · %2").arg(Translated(kind), cards) : cards);
}

void PropertyPanel::Edit(const FieldRow& row, const std::string& text) {
  fields_.Assign(row, text);
  isTyping_ = true;
  idle_->start();
  if (edited) edited();
}

void PropertyPanel::Commit() {
  for (const Entry& entry : entries_) entry.editor->Finish();
  EndStep();
}

void PropertyPanel::EndStep() {
  idle_->stop();
  isTyping_ = false;
  fields_.Commit();
}

void PropertyPanel::FocusFirst() {
  if (!entries_.empty()) entries_.front().editor->Widget()->setFocus(Qt::ShortcutFocusReason);
}

QWidget* PropertyPanel::Find(std::string_view name) const {
  for (const Entry& entry : entries_) {
    if (entry.row->FullName() == name) return entry.editor->Widget();
  }
  return nullptr;
}

}  // namespace xrpt
