// Every step of the report, the oldest first, with those that were taken back below: a click goes to the state after a
// step.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "canvas/RVUndo.h"

class QListWidget;

namespace xrpt {

class RVEditControlWnd;

class HistoryPanel final : public QWidget {
 public:
  explicit HistoryPanel(RVEditControlWnd& frame, QWidget* parent = nullptr);

  // Does nothing while it is out of sight.
  void Refresh();

  std::function<void()> beforeMove;
  std::function<void()> moved;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void GoTo(int row);

  RVEditControlWnd& frame_;
  QListWidget* list_;
  std::vector<UndoName> done_;  // as listed
  std::vector<UndoName> undone_;
};

}  // namespace xrpt
