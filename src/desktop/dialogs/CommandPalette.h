// A list of every command that narrows as one types; Enter runs the chosen one.
#pragma once

#include <QDialog>
#include <vector>

class QAction;
class QLineEdit;
class QListWidget;

namespace xrpt {

class Actions;

class CommandPalette final : public QDialog {
 public:
  CommandPalette(const Actions& actions, QWidget* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Fill(const QString& typed);
  void RunChosen();

  const Actions& actions_;
  QLineEdit* field_;
  QListWidget* list_;
};

// How well a label answers what was typed: 0 not at all, more is better. Every typed letter must occur in order; starts
// of words and runs of letters count more.
int MatchScore(const QString& label, const QString& typed);

// How well other words for a command answer it: the beginning of one of them does, from three letters on.
int SenseScore(const QString& words, const QString& typed);

}  // namespace xrpt
