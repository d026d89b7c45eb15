// What is wrong with the report, a row each: how bad, what, which card, which page. Enter or a double click shows the
// card; what can be put right with one click is.
#pragma once

#include <QWidget>
#include <functional>
#include <map>

#include "editor/ProblemList.h"

class QToolButton;
class QTreeView;

namespace xrpt {

class ProblemsModel;
class ProblemsWatch;
class RVEditControlWnd;

class ProblemsPanel final : public QWidget {
 public:
  ProblemsPanel(RVEditControlWnd& frame, ProblemsWatch& watch, QWidget* parent = nullptr);

  // The rows are others. The row that was chosen stays chosen, if it is still there.
  void Refresh();
  // Chooses the row that many further on, from the first or last when none is chosen, and shows its card.
  void Step(int by);

  QTreeView& List() { return *list_; }
  QToolButton& Filter(Severity severity) { return *filters_.at(severity); }
  QToolButton& PutRightButton() { return *putRight_; }

  // The user is about to go elsewhere or to change something: what is being typed is to be taken first.
  std::function<void()> beforeAct;
  // A card was selected or changed.
  std::function<void()> acted;

 protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* MakeBar();
  QToolButton* MakeFilter(Severity severity);
  void MakeList();
  void ShowCounts();
  void ShowChosen();
  const Problem* Chosen() const;
  void Choose(int row);
  void ShowCard();
  void PutRight();
  void CopyMessage();
  void OpenMenu(QPoint at);
  void SizeColumns();

  RVEditControlWnd& frame_;
  ProblemsWatch& watch_;
  ProblemsModel* model_;
  QTreeView* list_ = nullptr;
  std::map<Severity, QToolButton*> filters_;
  QToolButton* putRight_ = nullptr;
  std::optional<Problem> chosen_;
};

}  // namespace xrpt
