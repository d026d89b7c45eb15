// A field for an expression wherever one is typed: its text in colours, and under it the value it has now, or what is
// wrong with it and where.
#pragma once

#include <QWidget>
#include <functional>

#include "formulas/ExpressionChoices.h"
#include "formulas/ExpressionJudgement.h"

class QBoxLayout;
class QIcon;
class QLabel;
class QTimer;

namespace xrpt {

class ExpressionEdit;

class ExpressionField final : public QWidget {
 public:
  ExpressionField(ExpressionKind kind, QWidget* parent);

  // What the expression may use; the formulas alone are enough to judge it.
  void SetFormulas(const FormulaTable& formulas);
  void SetSources(const ExpressionSources& sources);
  void SetText(const std::wstring& text);
  std::wstring Text() const;
  ExpressionEdit& Edit() { return *edit_; }

  // Judges at once what would be judged in a moment.
  void Judge();
  const ExpressionJudgement& Judgement() const { return judgement_; }
  // What the line under the text says, for whoever reads it to the user.
  QString Line() const;

  // A small button beside the text.
  void AddButton(const QIcon& icon, const QString& name, std::function<void()> run);

  // Whether the line under the text takes no room while it says nothing.
  bool hidesEmptyLine = false;
  // How it is judged instead of by kind and sources.
  std::function<ExpressionJudgement(const std::wstring&)> judge;
  // The user changed the text.
  std::function<void(const std::wstring&)> textEdited;
  // The text took the keyboard.
  std::function<void()> entered;
  // The expression was judged anew.
  std::function<void()> judged;

 private:
  void Show();

  ExpressionKind kind_;
  FormulaTable formulas_;
  QBoxLayout* row_;  // the text, and what stands beside it
  ExpressionEdit* edit_;
  QLabel* line_;
  QTimer* idle_;
  ExpressionJudgement judgement_;
};

}  // namespace xrpt
