// The table of a report's formulas: list, add, modify, remove, copy and paste. What it decides is `CDlgFormules`; OK is
// one step of the report's history.
#pragma once

#include <QDialog>
#include <QKeySequence>
#include <QList>
#include <map>

#include "formulas/CDlgFormules.h"
#include "formulas/ExpressionChoices.h"

class QAction;
class QBoxLayout;
class QItemSelectionModel;
class QTreeView;

namespace xrpt {

class FormulaModel;
class RVEditControlWnd;

class FormulasDialog final : public QDialog, private FormulesPort {
 public:
  // The frame must outlive the dialog. `shown`: the name of the formula to select; empty for none.
  FormulasDialog(RVEditControlWnd& frame, const std::wstring& shown, QWidget* parent);

  void accept() override;
  const CDlgFormules& Table() const { return table_; }

 private:
  // FormulesPort
  bool EditFormule(CDlgNewFormule& formula) override;
  bool AskUpdateUses(const std::wstring& from, const std::wstring& to, std::size_t uses) override;
  void ShowMessage(int textId) override;

  void BuildList();
  void BuildActions();
  QAction* AddAction(int textId, const char* icon, const QList<QKeySequence>& keys, bool (CDlgFormules::*run)());
  void AddButtons(QBoxLayout& row);
  // What the table does, with what is selected in the list; the list follows.
  void Run(bool (CDlgFormules::*operation)());
  void TakeSelection();
  void ShowSelection();
  void UpdateButtons();

  RVEditControlWnd& frame_;
  CDlgFormules table_;
  FormulaModel* model_ = nullptr;
  QTreeView* list_ = nullptr;
  QAction* modify_ = nullptr;
  QAction* remove_ = nullptr;
  QAction* copy_ = nullptr;
};

// Opens it; true when it was closed with OK.
bool EditFormulas(RVEditControlWnd& frame, QWidget* parent, const std::wstring& shown = {});

}  // namespace xrpt
