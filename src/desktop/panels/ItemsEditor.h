// The list of a card's items (series of a graph, variables a button forces), and the fields of those that are chosen:
// several at once, too.
#pragma once

#include <QWidget>
#include <functional>

#include "editor/SelectedItems.h"

class QListWidget;

namespace xrpt {

class FieldForm;
class ListButtons;
struct FieldServices;

class ItemsEditor final : public QWidget {
 public:
  // `changed` hears of every change.
  ItemsEditor(const char* prefix, SelectedItems items, const FieldServices& services, std::function<void()> changed,
              QWidget* parent);

  // Shows the items of the card that is meant now; hides itself when there are none to be had.
  void Refresh();
  int Filter(const QString& text);
  void Finish();
  void Forget();
  QWidget* Find(std::string_view name) const;
  QListWidget& List() { return *list_; }

 private:
  ItemNumbers Chosen() const;
  void Choose(std::size_t item);
  void FillList();
  void ShowChosen();
  void Add();
  void Remove();
  void Move(int by);

  SelectedItems items_;
  std::function<void()> changed_;
  QListWidget* list_;
  ListButtons* buttons_;
  FieldForm* form_;
};

}  // namespace xrpt
