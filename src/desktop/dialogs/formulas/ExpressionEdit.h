// The text of an expression while it is written: in colours, with the partner of the parenthesis beside the cursor, the
// place of an error underlined, and names offered while they are typed (Ctrl+Space asks for them).
#pragma once

#include <QPlainTextEdit>
#include <functional>

#include "formulas/ExpressionChoices.h"

class QCompleter;

namespace xrpt {

class ExpressionColors;

class ExpressionEdit final : public QPlainTextEdit {
 public:
  explicit ExpressionEdit(QWidget* parent);

  // Which formulas count as defined.
  void SetFormulas(const FormulaTable& formulas);
  // What is offered, and the same.
  void SetSources(const ExpressionSources& sources);
  const std::vector<ExpressionChoice>& Choices() const { return choices_; }

  std::wstring Text() const;
  // Counts as no edit.
  void SetText(const std::wstring& text);
  // Puts a text in the place of what is selected; the cursor ends that far before its end.
  void Insert(const std::wstring& text, std::size_t caretBack);
  // Characters from 1; 0 for none.
  void MarkError(std::size_t position);
  // As high as so many lines, or taking the room there is above that.
  void SetLines(int lines, bool grows = false);
  // Offers what may stand at the cursor, even where nothing was typed yet.
  void OfferAll() { Offer(true); }
  bool IsOffering() const;

  // The user changed the text.
  std::function<void()> edited;
  // Enter is about to go to the dialog.
  std::function<void()> finishing;
  // It took the keyboard.
  std::function<void()> entered;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Offer(bool asked);
  void ShowOffers(const QStringList& labels);
  void Complete(std::size_t offer);
  void MarkPlaces();
  QTextCursor CursorOver(int begin, int end) const;

  std::vector<ExpressionChoice> choices_;
  ExpressionColors* colors_;
  QCompleter* completer_;
  Completion offered_;
  std::size_t error_ = 0;
};

}  // namespace xrpt
