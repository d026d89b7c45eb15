// A line above the page that says what went wrong or needs an answer, with buttons for what can be done about it.
#pragma once

#include <QFrame>
#include <functional>
#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace xrpt {

struct MessageChoice {
  QString text;
  std::function<void()> run;
};

class MessageBar final : public QFrame {
 public:
  explicit MessageBar(QWidget* parent = nullptr);

  // Replaces what is shown. Alarming: something may be lost.
  void Show(const QString& message, bool isAlarming, const std::vector<MessageChoice>& choices = {});
  void Dismiss();
  QString Message() const;

 private:
  void AddChoice(const MessageChoice& choice);

  QHBoxLayout* row_;
  QLabel* icon_;
  QLabel* text_;
  std::vector<QPushButton*> buttons_;
};

}  // namespace xrpt
