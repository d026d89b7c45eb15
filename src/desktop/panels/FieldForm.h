// Fields in titled sections, one widget a field. It knows no card: the fields' rows say what there is and how it is
// edited. The same widgets are filled again as long as the same fields are shown.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "editor/SelectedFields.h"

class QBoxLayout;
class QGridLayout;
class QToolButton;

namespace xrpt {

class FieldEditorWidget;
struct FieldServices;

class FieldForm final : public QWidget {
 public:
  using Edited = std::function<void(const FieldRow&, const std::string&)>;

  // The services outlive the form. `prefix` stands before the fields' names where one window holds several forms.
  FieldForm(const char* prefix, const FieldServices& services, Edited edited, QWidget* parent);
  ~FieldForm() override;

  void Show(const std::vector<FieldState>& states);
  // Makes the widgets anew next time: what they offer changed.
  void Forget();
  // Tells what was typed and not told yet.
  void Finish();
  bool IsEmpty() const { return entries_.empty(); }
  // Shows only fields whose label, or whose section's title, holds the text, in any case; all of them for an empty one.
  // Gives how many there are to see.
  int Filter(const QString& text);
  void FocusFirst();
  // The field that says what the card shows.
  void FocusContent();
  // The widget of a field by its full name; null when it is not shown.
  QWidget* Find(std::string_view name) const;

 private:
  struct Entry {
    const FieldRow* row;
    std::unique_ptr<FieldEditorWidget> editor;
    QWidget* label;
    bool isNamed;  // chosen by name, whatever the row says
  };
  struct Section {
    FieldGroup group;
    QToolButton* title;  // null for a section that needs none
    QWidget* fields;
  };

  bool ShowsSameFields(const std::vector<FieldState>& states) const;
  void Rebuild(const std::vector<FieldState>& states);
  void AddSection(QBoxLayout& column, FieldGroup group, const std::vector<FieldState>& states);
  QGridLayout* StartSection(QBoxLayout& column, FieldGroup group);
  void AddField(QGridLayout& grid, const FieldState& state, int index);
  std::unique_ptr<FieldEditorWidget> MakeEditor(const FieldState& state);
  void Fold(const Section& section, bool isFolded);
  void ApplyFilter();

  QString prefix_;
  const FieldServices& services_;
  Edited edited_;
  QWidget* body_ = nullptr;
  std::vector<Entry> entries_;
  std::vector<Section> sections_;
  QString filter_;
};

// The title of a section of a panel.
QWidget* MakeSectionTitle(int textId, QWidget* parent);
// A field's name, with the unit of its numbers.
QString LabelOf(const FieldRow& row);
// Of a group of fields.
int GroupTextId(FieldGroup group);

}  // namespace xrpt
