// The fields of the selected cards, or of the page, in titled sections. It knows no card: the fields' rows say what
// there is and how it is edited.
#pragma once

#include <QScrollArea>
#include <memory>
#include <vector>

#include "editor/SelectedFields.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QTimer;

namespace xrpt {

class FieldEditorWidget;
class FieldUndo;

class PropertyPanel final : public QScrollArea {
 public:
  PropertyPanel(SelectedFields& fields, QWidget* parent = nullptr);
  ~PropertyPanel() override;

  // Shows what is selected now. The same widgets are filled again as long as the same fields are shown.
  void Refresh();
  // Ends the edit under way: what was changed since the last end is one step of the history. Edits end by themselves
  // when the user pauses.
  void Commit();
  // Puts the keyboard on the first field.
  void FocusFirst();
  // The widget of a field by its full name; null when it is not shown.
  QWidget* Find(std::string_view name) const;

  // A field was changed.
  std::function<void()> edited;

 private:
  struct Entry {
    const FieldRow* row;
    std::unique_ptr<FieldEditorWidget> editor;
  };

  bool ShowsSameFields(const std::vector<FieldState>& states) const;
  void Rebuild(const std::vector<FieldState>& states);
  void AddSection(QBoxLayout& column, FieldGroup group, const std::vector<FieldState>& states);
  QGridLayout* StartSection(QBoxLayout& column, FieldGroup group);
  void AddField(QGridLayout& grid, const FieldRow& row, int index);
  void ShowTitle();
  void EndStep();
  void Edit(const FieldRow& row, const std::string& text);

  SelectedFields& fields_;
  QLabel* title_ = nullptr;
  std::vector<Entry> entries_;
  QTimer* idle_;
  FieldUndo* undo_;
  bool isTyping_ = false;  // something was changed since the last end
};

}  // namespace xrpt
