// Where a report shall be saved: under a name in the configuration folder, or in any file.
#pragma once

#include <QDialog>
#include <optional>
#include <string>

#include "platform/Files.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace xrpt {

struct SaveTarget {
  std::wstring name;
  Path file;  // empty: in the configuration folder, under the name
};

class SaveDialog final : public QDialog {
 public:
  // Nothing when cancelled.
  static std::optional<SaveTarget> Choose(const std::wstring& name, QWidget* parent);
  // Text ids of the title and of what the button says; those of saving unless told others.
  struct Words {
    int title;
    int accept;
  };
  // A name only.
  static std::optional<std::wstring> ChooseName(const std::wstring& proposed, QWidget* parent);
  static std::optional<std::wstring> ChooseName(const std::wstring& proposed, QWidget* parent, const Words& words);

 private:
  SaveDialog(const std::wstring& name, bool offersFiles, const Words& words, QWidget* parent);
  void AddButtons(QBoxLayout& column, bool offersFiles, int acceptTextId);
  void Check();
  void Browse();

  QLineEdit* name_;
  QLabel* problem_;
  QPushButton* save_ = nullptr;
  SaveTarget target_;
};

}  // namespace xrpt
