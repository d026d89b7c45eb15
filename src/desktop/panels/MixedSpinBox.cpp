#include "desktop/panels/MixedSpinBox.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "desktop/panels/TypedNumber.h"

namespace xrpt {

MixedSpinBox::MixedSpinBox(QWidget* parent) : QDoubleSpinBox(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAccelerated(true);
  setKeyboardTracking(true);
  setGroupSeparatorShown(false);
  setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
    isMixed_ = false;
    isTyped_ = true;
  });
  connect(this, &QAbstractSpinBox::editingFinished, this, [this] { FinishTyping(); });
}

void MixedSpinBox::ShowValue(double value) {
  const QSignalBlocker quiet(this);
  isMixed_ = false;
  lineEdit()->setPlaceholderText({});
  setValue(value);
}

void MixedSpinBox::ShowMixed() {
  const QSignalBlocker quiet(this);
  isMixed_ = true;
  setValue(minimum());
  lineEdit()->clear();
  lineEdit()->setPlaceholderText(mixedText_);
}

QString MixedSpinBox::textFromValue(double value) const {
  return isMixed_ ? QString() : QDoubleSpinBox::textFromValue(value);
}

// --- What is typed ---

QString MixedSpinBox::WithoutSuffix(const QString& text) const {
  return !suffix().isEmpty() && text.endsWith(suffix()) ? text.chopped(suffix().size()) : text;
}

double MixedSpinBox::valueFromText(const QString& text) const {
  return NumberTyped(WithoutSuffix(text)).value_or(value());
}

// A number beyond the range may be on its way to one within; what is left of it at the end is brought to the nearest.
QValidator::State MixedSpinBox::validate(QString& text, int&) const {
  const QString typed = WithoutSuffix(text);
  if (const auto number = NumberTyped(typed))
    return *number >= minimum() && *number <= maximum() ? QValidator::Acceptable : QValidator::Intermediate;
  return MayBecomeNumber(typed) ? QValidator::Intermediate : QValidator::Invalid;
}

void MixedSpinBox::fixup(QString& text) const {
  if (const auto number = NumberTyped(WithoutSuffix(text)))
    text = QDoubleSpinBox::textFromValue(std::clamp(*number, minimum(), maximum())) + suffix();
}

// --- Steps ---

void MixedSpinBox::stepBy(int steps) {
  isMixed_ = false;
  FinishTyping();
  QDoubleSpinBox::stepBy(steps);
}

void MixedSpinBox::wheelEvent(QWheelEvent* event) { hasFocus() ? QDoubleSpinBox::wheelEvent(event) : event->ignore(); }

}  // namespace xrpt
