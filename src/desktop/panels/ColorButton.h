// A button that shows a colour and opens a chooser of them; beside the colours there is "none".
#pragma once

#include <QToolButton>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "platform/Color.h"

class QMenu;

namespace xrpt {

class ColorButton final : public QToolButton {
 public:
  explicit ColorButton(QWidget* parent = nullptr);

  // Nothing: several cards of different colours.
  void Show(std::optional<Color> color);
  std::function<void(Color)> chosen;
  // Colours that are offered first: those in use.
  std::function<std::vector<Color>()> used;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void OpenMenu();
  void AddBoard(QMenu& menu, std::span<const Color> colors);
  void ChooseOther();
  void Choose(Color color);

  std::optional<Color> color_;
};

}  // namespace xrpt
