// What there is to edit of the selected cards, or of the page: their fields, the items of a card that has a list, the
// alternatives of a conditioned card, the page's background picture.
#pragma once

#include <QScrollArea>

#include "desktop/panels/FieldServices.h"
#include "editor/SelectedFields.h"

class QLabel;
class QLineEdit;
class QTimer;

namespace xrpt {

class AlternativesEditor;
class FieldForm;
class ItemsEditor;

class PropertyPanel final : public QScrollArea {
 public:
  PropertyPanel(RVEditControlWnd& frame, QWidget* parent = nullptr);

  // Shows what is selected now.
  void Refresh();
  // The same with new widgets: what they offer changed (styles, devices).
  void Reload();
  // Ends the edit under way: what was changed since the last end is one step of the history. Edits end by themselves
  // when the user pauses.
  void Commit();
  // Puts the keyboard on the first field.
  void FocusFirst();
  // The field that says what the card shows.
  void FocusContent();
  // The widget of a field by its full name; null when it is not shown. Those of an alternative's card stand behind
  // the card's own.
  QWidget* Find(std::string_view name) const;
  ItemsEditor& Items() { return *items_; }
  AlternativesEditor& Alternatives() { return *alternatives_; }

  // A field was changed.
  std::function<void()> edited;

 private:
  FieldForm* AddForm(const char* prefix, SelectedFields& fields);
  void AddFilter();
  void ApplyFilter();
  void ShowTitle();
  void Touch();
  void EndStep();

  SelectedFields fields_;
  SelectedFields background_;
  QTimer* idle_;
  FieldServices services_;
  QLabel* title_ = nullptr;
  QLineEdit* filter_ = nullptr;
  QLabel* noField_ = nullptr;  // nothing fits the filter
  FieldForm* form_ = nullptr;
  ItemsEditor* items_ = nullptr;
  AlternativesEditor* alternatives_ = nullptr;
  QWidget* backgroundTitle_ = nullptr;
  FieldForm* backgroundForm_ = nullptr;
  bool isTyping_ = false;  // something was changed since the last end
};

}  // namespace xrpt
