// A button of the ribbon: shows an action large (icon above a label of up to two lines) or small (icon beside its
// label, or icon alone where room is short).
#pragma once

#include <QToolButton>
#include <array>

class QAction;

namespace xrpt {

enum class ButtonShape { Large, Small, IconOnly };

class RibbonButton final : public QToolButton {
 public:
  RibbonButton(QAction& action, ButtonShape shape, QWidget* parent = nullptr);
  void SetShape(ButtonShape shape);
  ButtonShape Shape() const { return shape_; }
  // What it would take in a shape, whichever it has now.
  QSize SizeAs(ButtonShape shape) const;
  QSize sizeHint() const override { return SizeAs(shape_); }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  static constexpr std::size_t kShapes = 3;

  QSize Measure(ButtonShape shape) const;
  void TakeFromAction();
  QString LabelAs(ButtonShape shape) const;

  QAction& action_;
  ButtonShape shape_;
  mutable std::array<QSize, kShapes> sizes_;  // invalid ones are yet to be measured
};

// Breaks a label of several words into two lines of nearly equal length; the second line of one word is empty.
QString InTwoLines(const QString& label);

}  // namespace xrpt
