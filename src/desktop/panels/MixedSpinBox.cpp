#include "desktop/panels/MixedSpinBox.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace xrpt {

MixedSpinBox::MixedSpinBox(QWidget* parent) : QDoubleSpinBox(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAccelerated(true);
  setKeyboardTracking(true);
  setGroupSeparatorShown(false);
  setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this] { isMixed_ = false; });
}

void MixedSpinBox::ShowValue(double value) {
  const QSignalBlocker quiet(this);
  isMixed_ = false;
  setValue(value);
}

void MixedSpinBox::ShowMixed() {
  const QSignalBlocker quiet(this);
  isMixed_ = true;
  setValue(minimum());
  lineEdit()->clear();
}

QString MixedSpinBox::textFromValue(double value) const {
  return isMixed_ ? QString() : QDoubleSpinBox::textFromValue(value);
}

void MixedSpinBox::stepBy(int steps) {
  isMixed_ = false;
  QDoubleSpinBox::stepBy(steps);
}

void MixedSpinBox::wheelEvent(QWheelEvent* event) { hasFocus() ? QDoubleSpinBox::wheelEvent(event) : event->ignore(); }

}  // namespace xrpt
