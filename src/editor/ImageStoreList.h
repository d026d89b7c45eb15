// The pictures of the image store: what the dialog does, without the dialog. Pictures are files that all reports share,
// so what is done here is done at once and is no step of a report's history; reports follow through
// `RVEditControlWnd::ImagesModified`.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "editor/DialogPort.h"
#include "editor/PictureUses.h"

namespace xrpt {

class ImageStoreList {
 public:
  // The port and the report, whose cards say where pictures are used, must outlive the list.
  ImageStoreList(DialogPort& port, const RVReport& report);

  // Sub-folders that hold pictures; the images folder itself is the empty name and always there.
  const std::vector<std::wstring>& Folders() const { return folders_; }
  // Nothing: pictures of all folders.
  void ShowFolder(std::optional<std::wstring> folder);
  const std::optional<std::wstring>& ShownFolder() const { return folder_; }
  // Names of the pictures of the folder shown, in order.
  const std::vector<std::wstring>& Rows() const { return rows_; }
  // In the open report; none when it is not used there.
  const std::vector<PictureUse>& UsesOf(const std::wstring& name) const;

  // Reads folder and report again.
  void UpdateList();

  // Each gives whether the store changed. New pictures go to the folder shown; their names are `Added`.
  bool OnAdd(const std::vector<Path>& files);
  bool OnAddBytes(const std::string& bytes, const std::wstring& id);
  const std::vector<std::wstring>& Added() const { return added_; }
  bool OnReplace(const std::wstring& name, const Path& file);
  // Ask first, and say where the pictures are used.
  bool OnDelete(const std::vector<std::wstring>& names);
  // Those that neither the open report nor any report of the configuration folder uses. Nothing is deleted while a
  // report of the folder cannot be read.
  bool OnDeleteUnused();
  std::vector<std::wstring> Unused(const NamedPictures& named) const;

 private:
  std::wstring FolderForNew() const { return folder_.value_or(std::wstring()); }
  bool ConcludeAdding(const std::wstring& problems);
  bool Delete(const std::vector<std::wstring>& names);
  std::size_t CountUses(const std::vector<std::wstring>& names) const;

  DialogPort& port_;
  const RVReport& report_;
  std::vector<std::wstring> all_;
  std::vector<std::wstring> folders_;
  std::optional<std::wstring> folder_;
  std::vector<std::wstring> rows_;
  std::vector<std::wstring> added_;
  PictureUses uses_;
};

}  // namespace xrpt
