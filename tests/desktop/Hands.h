// Hands that use whatever the window offers, told apart by what a thing is and not by its name, so that a new field,
// command or button is used without a word here: editors of fields, menus that open, dialogs that ask.
#pragma once

#include <QObject>

class QDialog;
class QWidget;

namespace xrpt {

// Answers whatever opens while it lives: questions with yes, palettes with a colour, menus with an entry, choosers with
// a name, lists with a new entry; everything else is closed.
class Answers final : public QObject {
 public:
  Answers();

  static constexpr int kNone = -1;
  int swatch = 0;       // the colour taken, from 0
  int entry = kNone;    // the entry taken from the next menu
  int entriesSeen = 0;  // how many the last menu had
  int name = 0;         // the name taken from the next chooser or given to the next entry, from 0
  bool yes = true;

  // Until nothing is open any more.
  static void WaitUntilClosed();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void Answer();
  void AnswerPopup(QWidget& popup);
  void AnswerDialog(QWidget& dialog);
  void ChooseName(QDialog& chooser);
  void AddEntry(QDialog& dialog);
  void FillEntry(QDialog& dialog);
  static bool IsSecondTime(QDialog& dialog);
};

// Makes an editor say something else than it does, in another way each turn: typing, then keys. Fails the test for a
// kind of editor it has no hand for.
void Use(QWidget& editor, int turn, Answers& answers);

}  // namespace xrpt
