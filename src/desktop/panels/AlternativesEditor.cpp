#include "desktop/panels/AlternativesEditor.h"

#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/dialogs/formulas/ExpressionEditor.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/CameraRow.h"
#include "desktop/panels/FieldForm.h"
#include "desktop/panels/FieldServices.h"
#include "desktop/panels/FieldUndo.h"
#include "desktop/panels/ItemsEditor.h"
#include "desktop/panels/ListButtons.h"
#include "model/FieldTexts.h"
#include "platform/Text.h"

namespace xrpt {

namespace {
constexpr char kPrefix[] = "alternative/";
}

AlternativesEditor::AlternativesEditor(RVEditControlWnd& frame, const FieldServices& services,
                                       std::function<void()> changed, QWidget* parent)
    : QWidget(parent), alternatives_(frame), fields_(frame, FieldsOf::Alternative), changed_(std::move(changed)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(6);
  BuildList();
  shown_ = new QWidget(this);
  column->addWidget(shown_);
  auto* inside = new QVBoxLayout(shown_);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->setSpacing(6);
  BuildCondition(services);
  form_ = new FieldForm(
      kPrefix, services,
      [this](const FieldRow& row, const std::string& text) {
        fields_.Assign(row, text);
        changed_();
      },
      shown_);
  items_ = new ItemsEditor(
      kPrefix, SelectedItems(frame, FieldsOf::Alternative), services, [this] { changed_(); }, shown_);
  camera_ = new CameraRow(frame, shown_);
  inside->addWidget(form_);
  inside->addWidget(camera_);
  inside->addWidget(items_);
}

AlternativesEditor::~AlternativesEditor() = default;

QWidget& AlternativesEditor::Condition() { return *condition_->Widget()->focusProxy(); }

void AlternativesEditor::BuildList() {
  layout()->addWidget(MakeSectionTitle(text::kAlternatives, this));
  list_ = new QListWidget(this);
  list_->setAccessibleName(Translated(text::kAlternatives));
  connect(list_, &QListWidget::currentRowChanged, this, [this](int line) {
    if (line < 0) return;
    Finish();
    alternatives_.Show(static_cast<std::size_t>(line));
    changed_();
  });
  layout()->addWidget(list_);
  buttons_ = new ListButtons(this);
  buttons_->removed = [this] { Remove(); };
  buttons_->moved = [this](int by) { Move(by); };
  FillMenu();
  layout()->addWidget(buttons_);
}

void AlternativesEditor::BuildCondition(const FieldServices& services) {
  auto* label = new QLabel(Translated(text::kCondition), shown_);
  label->setObjectName(QStringLiteral("muted"));
  const auto edited = [this](const std::string& typed) {
    alternatives_.SetCondition(static_cast<std::size_t>(alternatives_.Shown()), FromUtf8(typed));
    changed_();
  };
  condition_ = MakeExpressionEditor(ExpressionKind::Logical, edited, services.expressions, shown_);
  QWidget& field = *condition_->Widget();
  field.setObjectName(QStringLiteral("condition"));
  field.setAccessibleName(Translated(text::kCondition));
  label->setBuddy(&field);
  services.undo.Watch(field);
  shown_->layout()->addWidget(label);
  shown_->layout()->addWidget(&field);
}

void AlternativesEditor::FillMenu() {
  auto* menu = new QMenu(this);
  for (const CardClass* kind : SelectedAlternatives::Kinds())
    connect(menu->addAction(Translated(kind->textId)), &QAction::triggered, this, [this, kind] { Add(*kind); });
  buttons_->Add().setMenu(menu);
  buttons_->Add().setPopupMode(QToolButton::InstantPopup);
}

void AlternativesEditor::Refresh() {
  setVisible(alternatives_.HasList());
  if (!alternatives_.HasList()) return;
  FillList();
  ShowShown();
}

void AlternativesEditor::FillList() {
  const QSignalBlocker quiet(list_);
  const int count = static_cast<int>(alternatives_.Size());
  while (list_->count() > count) delete list_->takeItem(list_->count() - 1);
  while (list_->count() < count) list_->addItem(new QListWidgetItem());
  for (int line = 0; line < count; ++line) {
    const auto index = static_cast<std::size_t>(line);
    const QString condition = ToQString(alternatives_.Condition(index));
    list_->item(line)->setText(QStringLiteral("%1 → %2").arg(
        condition.isEmpty() ? Translated(text::kNoCondition) : condition, ToQString(alternatives_.Caption(index))));
  }
  list_->setCurrentRow(alternatives_.Shown());
  FitHeight(*list_);
}

void AlternativesEditor::ShowShown() {
  const bool any = alternatives_.Shown() >= 0 && alternatives_.Size() > 0;
  const auto shown = any ? static_cast<std::size_t>(alternatives_.Shown()) : 0;
  shown_->setVisible(any);
  buttons_->Refresh(any ? 1 : 0, shown, alternatives_.Size());
  if (!any) return;
  condition_->Show(alternatives_.Condition(shown));
  form_->Show(fields_.Fields());
  camera_->Refresh();
  items_->Refresh();
}

void AlternativesEditor::Add(const CardClass& kind) {
  Finish();
  alternatives_.Add(kind);
  changed_();
  Refresh();
  condition_->Widget()->setFocus(Qt::OtherFocusReason);
}

void AlternativesEditor::Remove() {
  Finish();
  alternatives_.Remove(static_cast<std::size_t>(alternatives_.Shown()));
  changed_();
  Refresh();
}

void AlternativesEditor::Move(int by) {
  Finish();
  const std::int32_t from = alternatives_.Shown();
  alternatives_.Move(static_cast<std::size_t>(from), static_cast<std::size_t>(from + by));
  changed_();
  Refresh();
}

int AlternativesEditor::Filter(const QString& text) {
  return isHidden() ? 0 : form_->Filter(text) + items_->Filter(text);
}

void AlternativesEditor::Finish() {
  form_->Finish();
  items_->Finish();
}

void AlternativesEditor::Forget() {
  form_->Forget();
  items_->Forget();
}

QWidget* AlternativesEditor::Find(std::string_view name) const {
  if (QWidget* found = form_->Find(name)) return found;
  return items_->Find(name);
}

}  // namespace xrpt
