// A number field that can also stand for several numbers that differ: then it is empty until the user types or steps.
// It takes a decimal comma and a decimal point in every language. Steps by the wheel only while it has the keyboard, so
// that scrolling a panel changes nothing.
#pragma once

#include <QDoubleSpinBox>

namespace xrpt {

class MixedSpinBox final : public QDoubleSpinBox {
 public:
  explicit MixedSpinBox(QWidget* parent = nullptr);

  void ShowValue(double value);
  void ShowMixed();
  // What stands where numbers differ; nothing unless told.
  void SetMixedText(const QString& text) { mixedText_ = text; }
  bool IsMixed() const { return isMixed_; }
  // From the first key until the number is finished, what stands here is the user's and is not replaced.
  bool IsBeingTyped() const { return isTyped_; }
  void FinishTyping() { isTyped_ = false; }

 protected:
  QString textFromValue(double value) const override;
  double valueFromText(const QString& text) const override;
  QValidator::State validate(QString& text, int& position) const override;
  void fixup(QString& text) const override;
  void stepBy(int steps) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QString WithoutSuffix(const QString& text) const;

  QString mixedText_;
  bool isMixed_ = false;
  bool isTyped_ = false;
};

}  // namespace xrpt
