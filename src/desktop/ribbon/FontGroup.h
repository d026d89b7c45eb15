// Font, alignment and colour of the selected cards, on the ribbon. It edits the same fields as the property panel.
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Fonts.h"

class QBoxLayout;
class QFontComboBox;
class QToolButton;

namespace xrpt {

class ColorButton;
class MixedSpinBox;
class SelectedFields;
struct FieldRow;

class FontGroup final : public QWidget {
 public:
  explicit FontGroup(SelectedFields& fields, QWidget* parent = nullptr);

  void Refresh();
  std::function<void()> edited;

 private:
  // A button that stands for one word of a field, pressed while the cards hold it.
  struct WordButton {
    QToolButton* button;
    const char* field;
    const char* word;
  };
  // Bold and italic stand in one field, and each button leaves the other's alone.
  struct MarkButton {
    QToolButton* button;
    FontStyle mark;
  };

  void AddFace(QBoxLayout& row);
  void AddSize(QBoxLayout& row);
  void AddMarkButton(QBoxLayout& row, FontStyle mark, const char* icon, int textId);
  void AddWordButton(QBoxLayout& row, const char* icon, int textId, const char* field, const char* word);
  void AddColor(QBoxLayout& row);
  QToolButton* MakeButton(const char* icon, int textId);
  // Joins with what came before, while a number is being typed.
  void Assign(const char* field, const std::string& text);
  // Each press is a step of its own.
  void AssignAtOnce(const char* field, const std::string& text);
  void AssignMark(FontStyle mark, bool on);
  void ShowMarks();
  // Null where the cards have no colour of letters in common.
  const char* TextColorField() const;
  std::optional<std::wstring> TextOf(const char* field, bool& isThere) const;

  SelectedFields& fields_;
  QFontComboBox* face_;
  MixedSpinBox* size_;
  ColorButton* color_;
  std::vector<MarkButton> marks_;
  std::vector<WordButton> words_;
};

}  // namespace xrpt
