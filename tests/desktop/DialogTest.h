// Hands for dialogs that wait for an answer: what a test does in them runs while they are open.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QTimer>
#include <stdexcept>

#include "WindowTest.h"
#include "desktop/look/Texts.h"

namespace xrpt {

// What is done to the modal window that opens next, as soon as keys reach it.
inline void WhenOpen(std::function<void(QWidget&)> act) {
  const QWidget* below = QApplication::activeModalWidget();
  auto* waiting = new QTimer(qApp);
  waiting->setInterval(5);
  QObject::connect(waiting, &QTimer::timeout, qApp, [below, waiting, act = std::move(act)] {
    QWidget* opened = QApplication::activeModalWidget();
    if (!opened || opened == below || !opened->isActiveWindow()) return;
    waiting->stop();
    waiting->deleteLater();
    act(*opened);
  });
  waiting->start();
}

inline QPushButton& Button(QWidget& within, int textId) {
  for (auto* button : within.findChildren<QPushButton*>()) {
    if (button->text() == Translated(textId)) return *button;
  }
  throw std::out_of_range("no such button");
}

class DialogTest : public WindowTest {
 protected:
  // Runs `work` in the dialog of that kind as soon as one is open, then closes whatever is left of it. Nested dialogs
  // need a call each, before they open.
  template <class Dialog, class Work>
  void In(Work work) {
    ++expected_;
    auto* waiting = new QTimer(qApp);
    waiting->setInterval(5);
    QObject::connect(waiting, &QTimer::timeout, qApp, [this, waiting, work] {
      auto* dialog = dynamic_cast<Dialog*>(QApplication::activeModalWidget());
      if (!dialog || !dialog->isActiveWindow()) return;
      waiting->stop();
      waiting->deleteLater();
      ++seen_;
      work(*dialog);
      if (dialog->isVisible() && dialog == QApplication::activeModalWidget()) dialog->reject();
    });
    waiting->start();
  }
  void TearDown() override { EXPECT_EQ(seen_, expected_) << "dialogs that opened, and that were to"; }

  template <class Widget>
  static Widget& Named(QWidget& dialog, const char* accessibleName) {
    for (auto* widget : dialog.findChildren<Widget*>()) {
      if (widget->accessibleName() == QLatin1String(accessibleName)) return *widget;
    }
    throw std::runtime_error(accessibleName);
  }
  static void Type(QWidget& widget, const char* text) { QTest::keyClicks(&widget, QLatin1String(text)); }
  static void Hit(QWidget& widget, int key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(&widget, static_cast<Qt::Key>(key), held);
  }
  static void Rest(int milliseconds = 200) { QTest::qWait(milliseconds); }

 private:
  int expected_ = 0;
  int seen_ = 0;
};

}  // namespace xrpt
