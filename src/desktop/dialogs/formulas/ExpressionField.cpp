#include "desktop/dialogs/formulas/ExpressionField.h"

#include <QStyle>
#include <QToolButton>

#include "desktop/dialogs/DialogTexts.h"
#include "desktop/dialogs/formulas/ExpressionEdit.h"
#include "desktop/look/Texts.h"

namespace xrpt {

namespace {
constexpr int kIdleMilliseconds = 120;
}

ExpressionField::ExpressionField(ExpressionKind kind, QWidget* parent)
    : QWidget(parent),
      kind_(kind),
      row_(new QHBoxLayout()),
      edit_(new ExpressionEdit(this)),
      line_(new QLabel(this)),
      idle_(new QTimer(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(3);
  row_->setSpacing(3);
  row_->addWidget(edit_, 1);
  column->addLayout(row_, 1);
  column->addWidget(line_);
  line_->setObjectName(QStringLiteral("verdict"));
  line_->setTextFormat(Qt::PlainText);
  line_->setWordWrap(true);
  line_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  line_->setMinimumHeight(line_->fontMetrics().lineSpacing());
  edit_->setAccessibleName(Translated(text::kFormulaExpression));
  setFocusProxy(edit_);
  idle_->setSingleShot(true);
  idle_->setInterval(kIdleMilliseconds);
  connect(idle_, &QTimer::timeout, this, [this] { Judge(); });
  edit_->edited = [this] {
    idle_->start();
    if (textEdited) textEdited(Text());
  };
  // A button that waits for the verdict is not waited for.
  edit_->finishing = [this] {
    if (idle_->isActive()) Judge();
  };
  edit_->entered = [this] {
    if (entered) entered();
  };
}

void ExpressionField::SetFormulas(const FormulaTable& formulas) {
  formulas_ = formulas;
  edit_->SetFormulas(formulas);
}

void ExpressionField::SetSources(const ExpressionSources& sources) {
  formulas_ = sources.formulas;
  edit_->SetSources(sources);
}

void ExpressionField::AddButton(const QIcon& icon, const QString& name, std::function<void()> run) {
  auto* button = new QToolButton(this);
  button->setIcon(icon);
  button->setToolTip(name);
  button->setAccessibleName(name);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setProperty("flat", true);
  connect(button, &QToolButton::clicked, this, std::move(run));
  row_->addWidget(button, 0, Qt::AlignTop);
}

void ExpressionField::SetText(const std::wstring& text) {
  edit_->SetText(text);
  Judge();
}

std::wstring ExpressionField::Text() const { return edit_->Text(); }

QString ExpressionField::Line() const { return line_->text(); }

void ExpressionField::Judge() {
  idle_->stop();
  judgement_ = judge ? judge(Text()) : JudgeExpression(Text(), formulas_, kind_);
  Show();
  if (judged) judged();
}

void ExpressionField::Show() {
  line_->setText(ToQString(judgement_.Line()));
  line_->setVisible(!hidesEmptyLine || !line_->text().isEmpty());
  line_->setProperty("refused", !judgement_.accepted);
  line_->style()->unpolish(line_);
  line_->style()->polish(line_);
  edit_->setAccessibleDescription(line_->text());
  edit_->MarkError(judgement_.position);
}

}  // namespace xrpt
