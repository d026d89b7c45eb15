// The reports of the configuration folder to choose from, and a way to any other file.
#pragma once

#include <QDialog>
#include <optional>
#include <string>

#include "platform/Files.h"

class QBoxLayout;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace xrpt {

class OpenDialog final : public QDialog {
 public:
  // `current` is chosen to begin with.
  OpenDialog(const std::wstring& current, QWidget* parent);

  // A report's name, or a path when the user browsed. Nothing when cancelled.
  static std::optional<std::wstring> Choose(const std::wstring& current, QWidget* parent);

 private:
  void AddList(QBoxLayout& column);
  void AddButtons(QBoxLayout& column);
  void Fill(const std::wstring& current);
  void AddFile(const Path& file, bool isOneOfSeveral, const std::wstring& current);
  void Filter(const QString& typed);
  void Browse();
  void Refresh();

  QLineEdit* filter_;
  QTreeWidget* list_;
  QPushButton* open_;
  std::wstring chosen_;
};

}  // namespace xrpt
