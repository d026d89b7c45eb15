// A button that shows a colour and opens a chooser of them; beside the colours there is "none".
#pragma once

#include <QToolButton>
#include <functional>
#include <optional>

#include "platform/Color.h"

namespace xrpt {

class ColorButton final : public QToolButton {
 public:
  explicit ColorButton(QWidget* parent = nullptr);

  // Nothing: several cards of different colours.
  void Show(std::optional<Color> color);
  std::function<void(Color)> chosen;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void OpenMenu();
  void ChooseOther();
  void Choose(Color color);

  std::optional<Color> color_;
};

}  // namespace xrpt
