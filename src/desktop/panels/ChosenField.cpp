#include "desktop/panels/ChosenField.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"

namespace xrpt {

ChosenField::ChosenField(QWidget* parent)
    : QWidget(parent), line_(new QLineEdit(this)), button_(new QToolButton(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  row->addWidget(line_, 1);
  row->addWidget(button_);
  button_->setProperty("flat", true);
  setFocusProxy(line_);
  connect(line_, &QLineEdit::textEdited, this, [this](const QString& text) { edited(text); });
  connect(button_, &QToolButton::clicked, this, [this] { Choose(); });
}

void ChosenField::SetChooser(const char* icon, int textId, Chooser choose) {
  button_->setIcon(ThemedIcon(QLatin1String(icon)));
  button_->setToolTip(Translated(textId));
  button_->setAccessibleName(Translated(textId));
  button_->setFocusPolicy(Qt::StrongFocus);
  choose_ = std::move(choose);
}

void ChosenField::Show(const std::optional<std::wstring>& text) {
  const QString shown = ToQString(text.value_or(L""));
  line_->setAccessibleName(accessibleName());
  line_->setPlaceholderText(text ? QString() : Translated(text::kMixed));
  if (line_->text() != shown) line_->setText(shown);
}

void ChosenField::Choose() {
  const std::optional<std::wstring> chosen = choose_(line_->text().toStdWString(), window());
  if (!chosen) return;
  line_->setText(ToQString(*chosen));
  edited(line_->text());
}

}  // namespace xrpt
