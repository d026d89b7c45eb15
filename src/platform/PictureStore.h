// Decoded pictures shared between cards: one record a picture of the images folder, however many cards of however many
// pages and undo steps show it.
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "platform/Picture.h"

namespace xrpt {

class PictureStore;

class ImageRecord {
 public:
  ImageRecord(PictureStore& store, std::wstring id, std::wstring path)
      : store_(store), id_(std::move(id)), path_(std::move(path)) {}
  ~ImageRecord();
  ImageRecord(const ImageRecord&) = delete;
  ImageRecord& operator=(const ImageRecord&) = delete;

  const std::wstring& Id() const { return id_; }
  const std::wstring& ImagePath() const { return path_; }
  // The picture, read from the folder when first asked for; null when there is none to read.
  PicturePtr Current() const;
  // Reads the file again.
  void Reload();

 private:
  friend class PictureStore;
  PictureStore& store_;
  std::wstring id_;
  std::wstring path_;  // sub-folder of the images folder
  mutable PicturePtr picture_;
  mutable bool read_ = false;
};

using ImageRecordPtr = std::shared_ptr<ImageRecord>;

class PictureStore {
 public:
  // The record of an id and a path, made when nobody holds it yet. The record goes with its last holder.
  ImageRecordPtr Attach(const std::wstring& id, const std::wstring& path);
  void ReloadAll();
  std::size_t Count() const;

  // The decoded file of the images folder: base64 text, XML-escaped, named id + ".img". Null when there is no such
  // file, when it is no picture, and when id or path would leave the folder.
  static PicturePtr ReadImageFile(const std::wstring& id, const std::wstring& path);
  // Whether there is such a file, whatever it holds.
  static bool HasImageFile(const std::wstring& id, const std::wstring& path);

 private:
  friend class ImageRecord;
  using Key = std::pair<std::wstring, std::wstring>;
  void Forget(const ImageRecord& record);

  mutable std::recursive_mutex lock_;  // the list, and the picture of every record
  std::map<Key, std::weak_ptr<ImageRecord>> records_;
};

}  // namespace xrpt
