// A line for a name, and a button that opens a window to choose it in.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <string>

class QLineEdit;
class QToolButton;

namespace xrpt {

class ChosenField final : public QWidget {
 public:
  // The name chosen, beginning with `current`; nothing when cancelled.
  using Chooser = std::function<std::optional<std::wstring>(const std::wstring& current, QWidget* parent)>;

  explicit ChosenField(QWidget* parent = nullptr);
  void SetChooser(const char* icon, int textId, Chooser choose);

  // Nothing: several cards that differ.
  void Show(const std::optional<std::wstring>& text);
  QLineEdit& Line() { return *line_; }
  QToolButton& Button() { return *button_; }

  std::function<void(const QString&)> edited;

 private:
  void Choose();

  QLineEdit* line_;
  QToolButton* button_;
  Chooser choose_;
};

}  // namespace xrpt
