#include "desktop/panels/PropertyPanel.h"

#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/AlternativesEditor.h"
#include "desktop/panels/FieldForm.h"
#include "desktop/panels/FieldUndo.h"
#include "desktop/panels/ItemsEditor.h"
#include "editor/ReportDialogs.h"
#include "editor/UsedColors.h"

namespace xrpt {

namespace {
constexpr int kIdleMilliseconds = 600;
}

PropertyPanel::PropertyPanel(RVEditControlWnd& frame, QWidget* parent)
    : QScrollArea(parent),
      fields_(frame),
      background_(frame, FieldsOf::Background),
      idle_(new QTimer(this)),
      services_{*new FieldUndo([this] { return isTyping_; }, this), [&frame] { return SourcesOf(frame); },
                [&frame] { return UsedColors(frame); }} {
  setObjectName(QStringLiteral("panelArea"));
  setAccessibleName(Translated(text::kProperties));
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  idle_->setSingleShot(true);
  idle_->setInterval(kIdleMilliseconds);
  connect(idle_, &QTimer::timeout, this, [this] { EndStep(); });

  auto* body = new QWidget();
  auto* column = new QVBoxLayout(body);
  column->setContentsMargins(12, 8, 12, 12);
  column->setSpacing(6);
  title_ = new QLabel(body);
  QFont bold = title_->font();
  bold.setPointSizeF(bold.pointSizeF() * 1.15);
  bold.setBold(true);
  title_->setFont(bold);
  setWidget(body);
  const auto touch = [this] { Touch(); };
  AddFilter();
  form_ = AddForm("", fields_);
  items_ = new ItemsEditor("item/", SelectedItems(frame), services_, touch, body);
  alternatives_ = new AlternativesEditor(frame, services_, touch, body);
  backgroundTitle_ = MakeSectionTitle(text::kBackground, body);
  backgroundForm_ = AddForm("background/", background_);
  for (QWidget* part : std::initializer_list<QWidget*>{title_, filter_, noField_, form_, items_, alternatives_,
                                                       backgroundTitle_, backgroundForm_})
    column->addWidget(part);
  column->addStretch(1);
}

void PropertyPanel::AddFilter() {
  filter_ = new QLineEdit(widget());
  filter_->setPlaceholderText(Translated(text::kFilterFields));
  filter_->setAccessibleName(Translated(text::kFilterFields));
  filter_->setObjectName(QStringLiteral("filter"));
  filter_->setClearButtonEnabled(true);
  noField_ = new QLabel(Translated(text::kNoSuchField), widget());
  noField_->setObjectName(QStringLiteral("muted"));
  noField_->hide();
  connect(filter_, &QLineEdit::textChanged, this, [this] { ApplyFilter(); });
}

// What stands in no form has no name to be found by, and stays.
void PropertyPanel::ApplyFilter() {
  const QString text = filter_->text();
  const int background = backgroundForm_->Filter(text);
  const int shown = form_->Filter(text) + items_->Filter(text) + alternatives_->Filter(text) + background;
  backgroundTitle_->setVisible(!backgroundForm_->IsEmpty() && background > 0);
  noField_->setVisible(shown == 0);
}

FieldForm* PropertyPanel::AddForm(const char* prefix, SelectedFields& fields) {
  return new FieldForm(
      prefix, services_,
      [this, &fields](const FieldRow& row, const std::string& text) {
        fields.Assign(row, text);
        Touch();
      },
      widget());
}

void PropertyPanel::Refresh() {
  ShowTitle();
  form_->Show(fields_.Fields());
  items_->Refresh();
  alternatives_->Refresh();
  const std::vector<FieldState> background = background_.Fields();
  backgroundTitle_->setVisible(!background.empty());
  backgroundForm_->setVisible(!background.empty());
  backgroundForm_->Show(background);
  if (!filter_->text().isEmpty()) ApplyFilter();
}

void PropertyPanel::Reload() {
  Commit();
  for (FieldForm* form : {form_, backgroundForm_}) form->Forget();
  items_->Forget();
  alternatives_->Forget();
  Refresh();
}

void PropertyPanel::ShowTitle() {
  const std::size_t count = fields_.Count();
  const int kind = fields_.KindTextId();
  if (count == 0) return title_->setText(Translated(text::kPageTitle));
  const QString cards = Translated(text::kSelectedCards, QString::number(count));
  if (count == 1) return title_->setText(Translated(kind));
  title_->setText(kind ? QStringLiteral("%1 · %2").arg(Translated(kind), cards) : cards);
}

void PropertyPanel::Touch() {
  isTyping_ = true;
  idle_->start();
  if (edited) edited();
}

void PropertyPanel::Commit() {
  form_->Finish();
  items_->Finish();
  alternatives_->Finish();
  backgroundForm_->Finish();
  EndStep();
}

void PropertyPanel::EndStep() {
  idle_->stop();
  isTyping_ = false;
  fields_.Commit();
}

void PropertyPanel::FocusFirst() { form_->FocusFirst(); }

void PropertyPanel::FocusContent() { form_->FocusContent(); }

QWidget* PropertyPanel::Find(std::string_view name) const {
  if (QWidget* found = form_->Find(name)) return found;
  if (QWidget* found = items_->Find(name)) return found;
  if (QWidget* found = alternatives_->Find(name)) return found;
  return backgroundForm_->Find(name);
}

}  // namespace xrpt
