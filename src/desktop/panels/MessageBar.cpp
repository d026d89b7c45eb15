#include "desktop/panels/MessageBar.h"

#include <QPushButton>
#include <QStyle>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"

namespace xrpt {

MessageBar::MessageBar(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("messageBar"));
  row_ = new QHBoxLayout(this);
  row_->setContentsMargins(10, 5, 6, 5);
  icon_ = new QLabel(this);
  text_ = new QLabel(this);
  text_->setWordWrap(true);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* close = new QToolButton(this);
  close->setProperty("flat", true);
  close->setIcon(ThemedIcon(QStringLiteral("close")));
  close->setAccessibleName(Translated(text::kDismiss));
  close->setToolTip(Translated(text::kDismiss));
  connect(close, &QToolButton::clicked, this, [this] { Dismiss(); });
  row_->addWidget(icon_);
  row_->addWidget(text_, 1);
  row_->addWidget(close);
  hide();
}

void MessageBar::Show(const QString& message, bool isAlarming, const std::vector<MessageChoice>& choices) {
  Dismiss();
  setProperty("alarming", isAlarming);
  style()->unpolish(this);
  style()->polish(this);
  icon_->setPixmap(ThemedIcon(isAlarming ? QStringLiteral("warning") : QStringLiteral("information"))
                       .pixmap(QSize(18, 18), devicePixelRatioF()));
  text_->setText(message);
  setAccessibleName(message);
  for (const MessageChoice& choice : choices) AddChoice(choice);
  show();
}

void MessageBar::AddChoice(const MessageChoice& choice) {
  auto* button = new QPushButton(choice.text, this);
  button->setAccessibleName(choice.text);
  connect(button, &QPushButton::clicked, this, [this, run = choice.run] {
    Dismiss();
    run();
  });
  row_->insertWidget(row_->count() - 1, button);
  buttons_.push_back(button);
}

void MessageBar::Dismiss() {
  hide();
  for (QPushButton* button : buttons_) button->deleteLater();
  buttons_.clear();
}

QString MessageBar::Message() const { return isHidden() ? QString() : text_->text(); }

}  // namespace xrpt
