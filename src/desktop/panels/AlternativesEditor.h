// The alternatives of a conditioned card: their list, the condition of the one that is shown, and the fields of its
// card, edited where they stand.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "editor/SelectedAlternatives.h"
#include "editor/SelectedFields.h"

class QListWidget;

namespace xrpt {

class CameraRow;
class FieldEditorWidget;
class FieldForm;
class ItemsEditor;
class ListButtons;
struct FieldServices;

class AlternativesEditor final : public QWidget {
 public:
  // `changed` hears of every change.
  AlternativesEditor(RVEditControlWnd& frame, const FieldServices& services, std::function<void()> changed,
                     QWidget* parent);
  ~AlternativesEditor() override;

  // Shows the card that is selected now; hides itself when it has no alternatives to be had.
  void Refresh();
  // Of the fields of the card that is shown; how many there are to see.
  int Filter(const QString& text);
  void Finish();
  void Forget();
  QWidget* Find(std::string_view name) const;
  QListWidget& List() { return *list_; }
  // Where the condition of the one shown is typed.
  QWidget& Condition();

 private:
  void BuildList();
  void BuildCondition(const FieldServices& services);
  void FillMenu();
  void FillList();
  void ShowShown();
  void Add(const CardClass& kind);
  void Remove();
  void Move(int by);

  SelectedAlternatives alternatives_;
  SelectedFields fields_;
  std::function<void()> changed_;
  QListWidget* list_ = nullptr;
  ListButtons* buttons_ = nullptr;
  QWidget* shown_ = nullptr;
  std::unique_ptr<FieldEditorWidget> condition_;
  FieldForm* form_ = nullptr;
  CameraRow* camera_ = nullptr;
  ItemsEditor* items_ = nullptr;
};

}  // namespace xrpt
