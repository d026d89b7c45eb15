// The pictures of the image store, with previews: adding them from files, the clipboard and drops, replacing and
// deleting them, and where the open report shows them.
#pragma once

#include <QDialog>
#include <functional>

#include "editor/ImageStoreList.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QListView;
class QListWidget;
class QMimeData;
class QPushButton;

namespace xrpt {

class PicturesModel;

class ImageStoreDialog final : public QDialog, private DialogPort {
 public:
  ImageStoreDialog(const RVReport& report, QWidget* parent);

  // Files of the store changed.
  std::function<void()> changed;
  // The user wants to see where a picture is used.
  std::function<void(const PictureUse&)> useChosen;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  // DialogPort
  std::size_t Decide(const Question& question) override;
  void TellFailure(const std::wstring& sentences) override;

  void AddFolders(QBoxLayout& row);
  void AddPictures(QBoxLayout& row);
  void AddDetails(QBoxLayout& row);
  void AddButtons(QBoxLayout& column);
  QPushButton* AddButton(QBoxLayout& row, int textId, const char* keys, void (ImageStoreDialog::*act)());

  void AddFiles();
  void Paste();
  bool TakeFrom(const QMimeData& data);
  void Replace();
  void Delete();
  void DeleteUnused();
  void NewFolder();
  // Shows the store as it is now, when it changed.
  void Conclude(bool hasChanged);

  void FillFolders();
  void FillPictures();
  void TakeFolder(int row);
  void Refresh();
  void ShowDetails(const std::wstring& name);
  std::vector<std::wstring> Selected() const;
  void Select(const std::vector<std::wstring>& names);

  ImageStoreList list_;
  PicturesModel* model_ = nullptr;
  QLineEdit* filter_ = nullptr;
  QListWidget* folders_ = nullptr;
  QListView* pictures_ = nullptr;
  QLabel* preview_ = nullptr;
  QLabel* details_ = nullptr;
  QListWidget* uses_ = nullptr;
  QPushButton* replace_ = nullptr;
  QPushButton* delete_ = nullptr;
};

}  // namespace xrpt
