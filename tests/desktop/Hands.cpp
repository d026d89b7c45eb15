#include "desktop/Hands.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDeadlineTimer>
#include <QFontComboBox>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

#include "desktop/WindowTest.h"
#include "desktop/dialogs/CDlgIntroduceIdentification.h"
#include "desktop/dialogs/NameChooser.h"
#include "desktop/dialogs/formulas/ExpressionEdit.h"
#include "desktop/dialogs/formulas/ExpressionField.h"
#include "desktop/dialogs/formulas/FormulaDialog.h"
#include "desktop/dialogs/formulas/FormulasDialog.h"
#include "desktop/dialogs/formulas/SourcesDialog.h"
#include "desktop/panels/ChosenField.h"
#include "desktop/panels/ColorButton.h"
#include "desktop/panels/MixedSpinBox.h"

namespace xrpt {

// --- What opens ---

namespace {

constexpr int kPeriod = 5;  // milliseconds

template <class... Dialogs>
bool IsOneOf(QWidget& dialog) {
  return (dynamic_cast<Dialogs*>(&dialog) || ...);
}

}  // namespace

Answers::Answers() { startTimer(kPeriod); }

// Out of the timer, which stands still meanwhile: what an answer opens wants one, too.
void Answers::timerEvent(QTimerEvent*) {
  QTimer::singleShot(0, this, [this] { Answer(); });
}

void Answers::Answer() {
  if (QWidget* popup = QApplication::activePopupWidget()) return AnswerPopup(*popup);
  if (QWidget* dialog = QApplication::activeModalWidget()) AnswerDialog(*dialog);
}

void Answers::AnswerPopup(QWidget& popup) {
  const int wanted = std::exchange(entry, kNone);
  const auto swatches = popup.findChildren<QToolButton*>();
  auto* menu = qobject_cast<QMenu*>(&popup);
  if (!menu) return void(popup.close());
  if (!swatches.empty()) return swatches.at(swatch % swatches.size())->click();
  QList<QAction*> entries;
  for (QAction* action : menu->actions()) {
    if (!action->isSeparator() && !action->menu()) entries.append(action);
  }
  entriesSeen = static_cast<int>(entries.size());
  if (wanted < 0 || wanted >= entriesSeen || !entries.at(wanted)->isEnabled()) return void(menu->close());
  menu->setActiveAction(entries.at(wanted));
  QTest::keyClick(menu, Qt::Key_Return);
}

// The next name after that which was taken before.
void Answers::ChooseName(QDialog& chooser) {
  auto* list = chooser.findChild<QListView*>();
  const int count = list->model()->rowCount();
  if (count == 0) return chooser.reject();
  list->setCurrentIndex(list->model()->index(name++ % count, 0));
  QTest::keyClick(list, Qt::Key_Return);
}

// A list gets an entry, which a dialog of its own asks for.
void Answers::AddEntry(QDialog& dialog) {
  if (IsSecondTime(dialog)) return dialog.accept();
  const auto lists = dialog.findChildren<QTreeView*>();
  QTest::keyClick(lists.at(name % lists.size()), Qt::Key_Insert);
}

// One that refuses what was typed is left.
void Answers::FillEntry(QDialog& dialog) {
  if (IsSecondTime(dialog)) return dialog.reject();
  auto* line = dialog.findChild<QLineEdit*>();
  QTest::keyClicks(line, QStringLiteral("Entry%1").arg(name++));
  const auto expressions = PartsOf<ExpressionEdit>(dialog);
  if (!expressions.empty()) QTest::keyClicks(expressions.front(), QStringLiteral("1"));
  QTest::keyClick(expressions.empty() ? static_cast<QWidget*>(line) : expressions.front(), Qt::Key_Return);
}

bool Answers::IsSecondTime(QDialog& dialog) {
  const bool isSecond = dialog.property("seen").toBool();
  dialog.setProperty("seen", true);
  return isSecond;
}

void Answers::AnswerDialog(QWidget& dialog) {
  if (dynamic_cast<NameChooser*>(&dialog)) return ChooseName(dynamic_cast<QDialog&>(dialog));
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
    QAbstractButton* button = box->button(yes ? QMessageBox::Yes : QMessageBox::No);
    if (!button) button = yes ? box->defaultButton() : box->escapeButton();
    return button ? button->click() : box->accept();
  }
  auto* asking = qobject_cast<QDialog*>(&dialog);
  if (IsOneOf<FormulasDialog, SourcesDialog>(dialog)) return AddEntry(*asking);
  if (IsOneOf<FormulaDialog, CDlgIntroduceIdentification>(dialog)) return FillEntry(*asking);
  if (asking) return asking->reject();
  dialog.close();
}

void Answers::WaitUntilClosed() {
  const QDeadlineTimer end(5000);
  while (QApplication::activePopupWidget() || QApplication::activeModalWidget()) {
    if (end.hasExpired()) {
      ADD_FAILURE() << "something stays open";
      return;
    }
    QCoreApplication::processEvents(QEventLoop::AllEvents, kPeriod);
  }
}

// --- What is used ---

namespace {

void Type(QWidget& field, const QString& text) {
  QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&field, text);
}

void UseNumber(MixedSpinBox& number, int turn) {
  if (number.IsMixed()) return Type(number, QStringLiteral("7"));
  const bool isAtEnd = number.value() + 1.0 > number.maximum();
  if (turn % 2 == 1) return QTest::keyClick(&number, isAtEnd ? Qt::Key_Down : Qt::Key_Up);
  Type(number, QLocale().toString(number.value() + (isAtEnd ? -1.0 : 1.0), 'f', number.decimals()));
}

void UseList(QComboBox& list, int turn) {
  const bool isAtEnd = list.currentIndex() + 1 >= list.count();
  const bool goesUp = isAtEnd || (turn % 2 == 1 && list.currentIndex() > 0);
  QTest::keyClick(&list, goesUp ? Qt::Key_Up : Qt::Key_Down);
}

void UseFace(QFontComboBox& face, int turn) {
  Type(face, QString::fromLatin1(turn % 2 == 0 ? "Liberation Mono" : "DejaVu Serif"));
  QTest::keyClick(&face, Qt::Key_Return);
}

void UseLines(QListWidget& list) {
  QTest::keyClick(&list, list.currentRow() + 1 < list.count() ? Qt::Key_Down : Qt::Key_Up);
}

// Presses it; of a menu that opens, takes an entry.
void UseButton(QAbstractButton& button, int turn, Answers& answers) {
  answers.swatch = turn + 8;
  answers.entry = turn;
  button.click();
  answers.entry = Answers::kNone;
}

void UseChosen(ChosenField& field, int turn, Answers& answers) {
  if (turn % 2 == 1) return UseButton(field.Button(), turn, answers);
  Type(field.Line(), QStringLiteral("name %1").arg(turn));
}

}  // namespace

void Use(QWidget& editor, int turn, Answers& answers) {
  editor.setFocus();
  const QString words = QStringLiteral("words %1").arg(turn);
  if (auto* number = dynamic_cast<MixedSpinBox*>(&editor)) return UseNumber(*number, turn);
  if (auto* face = qobject_cast<QFontComboBox*>(&editor)) return UseFace(*face, turn);
  if (auto* list = qobject_cast<QComboBox*>(&editor)) return UseList(*list, turn);
  if (auto* lines = qobject_cast<QListWidget*>(&editor)) return UseLines(*lines);
  if (auto* chosen = dynamic_cast<ChosenField*>(&editor)) return UseChosen(*chosen, turn, answers);
  if (qobject_cast<QLineEdit*>(&editor) || qobject_cast<QPlainTextEdit*>(&editor)) return Type(editor, words);
  if (auto* expression = dynamic_cast<ExpressionField*>(&editor))
    return Type(expression->Edit(), QString::number(turn));
  if (auto* slider = qobject_cast<QSlider*>(&editor))
    return QTest::keyClick(slider, turn % 2 ? Qt::Key_Left : Qt::Key_Right);
  if (auto* button = qobject_cast<QAbstractButton*>(&editor)) return UseButton(*button, turn, answers);
  ADD_FAILURE() << "no hand for " << editor.metaObject()->className() << " " << editor.objectName().toStdString();
}

}  // namespace xrpt
