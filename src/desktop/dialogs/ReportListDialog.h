// The reports of the configuration folder: choosing one to open with a look at its first page, and keeping the folder
// in order.
#pragma once

#include <QDialog>
#include <optional>
#include <string>

#include "editor/CDlgInformesList.h"

class QBoxLayout;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace xrpt {

class ReportPreview;

class ReportListDialog final : public QDialog, private ReportListPort {
 public:
  // The name and file of the report that is open; it is chosen to begin with.
  ReportListDialog(const std::wstring& current, const Path& open, QWidget* parent);

  // A report's name, or a path without its ending when the name alone would not find it. Nothing when cancelled.
  static std::optional<std::wstring> Choose(const std::wstring& current, const Path& open, QWidget* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // ReportListPort
  std::size_t Decide(const Question& question) override;
  std::optional<std::wstring> AskForName(int titleTextId, const std::wstring& proposed) override;
  void TellFailure(const std::wstring& sentence) override;

  void AddFilter(QBoxLayout& column);
  void AddList(QBoxLayout& row);
  void AddDetails(QBoxLayout& row);
  void AddButtons(QBoxLayout& column);
  QPushButton* AddAction(QDialogButtonBox& buttons, int textId, const char* keys, bool (CDlgInformesList::*act)());
  void Run(bool (CDlgInformesList::*act)());
  void Fill();
  void ShowSelection();
  void TakeSelection();
  void Refresh();
  void ShowDetails();
  QString NoticeOn(const ListedReport& report) const;
  void Open();
  void Browse();

  CDlgInformesList list_;
  QLineEdit* filter_ = nullptr;
  QTreeWidget* rows_ = nullptr;
  ReportPreview* preview_ = nullptr;
  QLabel* details_ = nullptr;
  QPushButton* open_ = nullptr;
  QPushButton* rename_ = nullptr;
  QPushButton* duplicate_ = nullptr;
  QPushButton* remove_ = nullptr;
  std::wstring chosen_;
};

}  // namespace xrpt
