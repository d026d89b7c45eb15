// All that an expression may use, in groups, with a filter over all of it. Double click or Enter chooses.
#pragma once

#include <QWidget>
#include <functional>

#include "formulas/ExpressionChoices.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace xrpt {

class ChoiceTree final : public QWidget {
 public:
  ChoiceTree(const ExpressionSources& sources, QWidget* parent);

  void FocusFilter();
  // The text of what was chosen, and how far before its end typing goes on.
  std::function<void(const std::wstring& text, std::size_t caretBack)> chosen;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildTree();
  void BuildGoBacks(const SourceList& goBacks);
  void Fill(const QString& typed);
  QTreeWidgetItem* ParentOf(const ExpressionChoice& choice);
  void Open(bool all);
  void Choose();
  void ShowHelp();
  const ExpressionChoice* CurrentChoice() const;

  std::vector<ExpressionChoice> choices_;
  QLineEdit* filter_;
  QComboBox* goBack_;
  QTreeWidget* tree_;
  QLabel* help_;
};

}  // namespace xrpt
