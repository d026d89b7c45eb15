#include "desktop/dialogs/QuestionBox.h"

#include <QMessageBox>
#include <QPushButton>

#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "platform/FileTexts.h"

namespace xrpt {
namespace {

QMessageBox::ButtonRole RoleOf(const Question& question, std::size_t index) {
  if (index + 1 == question.answers.size()) return QMessageBox::RejectRole;
  if (question.answers[index] == text::kDontSave) return QMessageBox::DestructiveRole;
  return index == 0 ? QMessageBox::AcceptRole : QMessageBox::ActionRole;
}

}  // namespace

std::size_t AskInBox(const Question& question, QWidget* parent) {
  QMessageBox box(question.isAlarming ? QMessageBox::Warning : QMessageBox::Question, Translated(text::kProgramName),
                  ToQString(question.text), QMessageBox::NoButton, parent);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(ToQString(question.detail));
  std::vector<QPushButton*> buttons;
  for (std::size_t i = 0; i < question.answers.size(); ++i)
    buttons.push_back(box.addButton(Translated(question.answers[i]), RoleOf(question, i)));
  box.setDefaultButton(buttons[question.usual]);
  box.setEscapeButton(buttons.back());
  box.exec();
  const auto chosen = std::find(buttons.begin(), buttons.end(), box.clickedButton());
  return chosen == buttons.end() ? buttons.size() - 1 : static_cast<std::size_t>(chosen - buttons.begin());
}

}  // namespace xrpt
