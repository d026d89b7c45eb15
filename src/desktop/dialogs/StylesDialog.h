// The text styles of the configuration folder: a list with samples, and what can be done with them.
#pragma once

#include <QDialog>
#include <functional>

#include "editor/CDlgAddRemoveStyle.h"

class QBoxLayout;
class QPushButton;
class QTreeWidget;

namespace xrpt {

class StylesDialog final : public QDialog, private StylesPort {
 public:
  explicit StylesDialog(QWidget* parent);

  // Style files changed; some may go by other names now.
  std::function<void(const std::vector<StyleRenaming>&)> changed;

 private:
  // StylesPort
  bool EditStyle(CDlgNewModifyStyle& dialog) override;
  Answer Ask(int textId) override;
  void Tell(int textId) override;
  void TellFailure(const std::wstring& sentence) override;

  void AddList(QBoxLayout& row);
  void AddButtons(QBoxLayout& row);
  QPushButton* AddButton(QBoxLayout& column, int textId, bool (CDlgAddRemoveStyle::*act)(), const char* keys = "");
  void Run(bool (CDlgAddRemoveStyle::*act)());
  void Copy();
  void Fill();
  void TakeSelection();
  void Refresh();

  CDlgAddRemoveStyle list_;
  QTreeWidget* rows_ = nullptr;
  QPushButton* modify_ = nullptr;
  QPushButton* duplicate_ = nullptr;
  QPushButton* remove_ = nullptr;
  QPushButton* copy_ = nullptr;
};

}  // namespace xrpt
