#include "desktop/Hands.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDeadlineTimer>
#include <QFontComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QToolButton>

#include "desktop/panels/ColorButton.h"
#include "desktop/panels/MixedSpinBox.h"

namespace xrpt {

// --- What opens ---

namespace {
constexpr int kPeriod = 5;  // milliseconds
}

Answers::Answers() { startTimer(kPeriod); }

void Answers::timerEvent(QTimerEvent*) {
  if (QWidget* popup = QApplication::activePopupWidget()) return AnswerPopup(*popup);
  if (QWidget* dialog = QApplication::activeModalWidget()) AnswerDialog(*dialog);
}

void Answers::AnswerPopup(QWidget& popup) {
  const auto swatches = popup.findChildren<QToolButton*>();
  auto* menu = qobject_cast<QMenu*>(&popup);
  if (!menu) return void(popup.close());
  if (!swatches.empty()) return swatches.at(swatch % swatches.size())->click();
  QList<QAction*> entries;
  for (QAction* action : menu->actions()) {
    if (!action->isSeparator() && !action->menu()) entries.append(action);
  }
  entriesSeen = static_cast<int>(entries.size());
  const int wanted = std::exchange(entry, kNone);
  if (wanted < 0 || wanted >= entriesSeen || !entries.at(wanted)->isEnabled()) return void(menu->close());
  menu->setActiveAction(entries.at(wanted));
  QTest::keyClick(menu, Qt::Key_Return);
}

void Answers::AnswerDialog(QWidget& dialog) {
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
    QAbstractButton* button = box->button(yes ? QMessageBox::Yes : QMessageBox::No);
    return button ? button->click() : box->accept();
  }
  if (auto* asking = qobject_cast<QDialog*>(&dialog)) return asking->reject();
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

}  // namespace

void Use(QWidget& editor, int turn, Answers& answers) {
  editor.setFocus();
  const QString words = QStringLiteral("words %1").arg(turn);
  if (auto* number = dynamic_cast<MixedSpinBox*>(&editor)) return UseNumber(*number, turn);
  if (auto* face = qobject_cast<QFontComboBox*>(&editor)) return UseFace(*face, turn);
  if (auto* list = qobject_cast<QComboBox*>(&editor)) return UseList(*list, turn);
  if (qobject_cast<QLineEdit*>(&editor) || qobject_cast<QPlainTextEdit*>(&editor)) return Type(editor, words);
  if (auto* slider = qobject_cast<QSlider*>(&editor))
    return QTest::keyClick(slider, turn % 2 ? Qt::Key_Left : Qt::Key_Right);
  if (auto* button = qobject_cast<QAbstractButton*>(&editor)) {
    answers.swatch = turn + 8;
    return button->click();
  }
  ADD_FAILURE() << "no hand for " << editor.metaObject()->className() << " " << editor.objectName().toStdString();
}

}  // namespace xrpt
