// Finding and replacing, beside the page that is worked on: what to look for and where, the matches in a list that
// leads to their cards, and what replacing would come to before it is done.
#pragma once

#include <QDialog>
#include <functional>

#include "editor/ReportSearch.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabBar;
class QTimer;
class QTreeView;

namespace xrpt {

class MatchModel;

class SearchDialog final : public QDialog {
 public:
  // The frame must outlive the dialog.
  SearchDialog(RVEditControlWnd& frame, QWidget* parent);

  // Comes up, ready to be typed in; with the page for replacing or without.
  void Open(bool replaces);
  // Something in the report, or the page that is shown, changed.
  void ReportChanged();
  void FindNext();
  void FindPrevious();
  bool IsEmpty() const { return search_.text.empty(); }

  const ReportSearch& State() const { return search_; }
  // Another match is the current one, and its card selected; it answers where on the screen that is.
  std::function<QRect()> matchShown;
  // A match stands in this formula; it is shown where formulas are.
  std::function<void(const std::wstring& name)> formulaChosen;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildFields(QBoxLayout& column);
  void BuildList(QBoxLayout& column);
  void BuildButtons(QBoxLayout& column);
  QPushButton* AddButton(QBoxLayout& row, int textId, void (SearchDialog::*run)());
  bool Replaces() const;
  void ShowReplacing();
  void TakeFields();
  void SearchAnew();
  void FillList();
  void ShowCurrent();
  void Arrived();
  void ShowState();
  void Replace();
  void ReplaceAll();
  void GoToRow(const QModelIndex& index, bool opens);

  ReportSearch search_;
  QTabBar* tabs_;
  QFormLayout* fields_;
  QLineEdit* find_;
  QLineEdit* replaceWith_;
  QComboBox* scope_;
  QCheckBox* matchCase_;
  MatchModel* model_;
  QTreeView* list_;
  QLabel* state_;
  QPushButton* next_;
  QPushButton* previous_;
  QPushButton* replace_;
  QPushButton* replaceAll_;
  QTimer* idle_;     // until what is typed is looked for
  QTimer* changes_;  // until changes of the report are looked through
  QString said_;     // what came of the last button, until something else happens
};

}  // namespace xrpt
