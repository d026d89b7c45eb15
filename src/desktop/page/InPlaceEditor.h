// The text of a card while it is edited where it stands: a field laid over the card, with its font at the zoom's size.
// Enter keeps, with Shift or Ctrl it begins a line; Escape gives up; leaving keeps.
#pragma once

#include <QTextEdit>
#include <functional>

#include "canvas/TextInPlace.h"

namespace xrpt {

class InPlaceEditor final : public QTextEdit {
 public:
  InPlaceEditor(const TextInPlace& text, QWidget* parent);

  CardKey Card() const { return card_; }
  std::wstring Words() const;
  const std::wstring& Before() const { return before_; }
  // What is typed replaces the whole text, or goes on where the text ends.
  void Begin(const QString& typed);

  // Once, with whether the text is to be kept.
  std::function<void(bool keeps)> ended;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Fit();

  CardKey card_;
  std::wstring before_;
  QRect over_;  // the card
  int verticalAlign_;
};

}  // namespace xrpt
