// Decoded pictures shared between cards: one record a picture of the images folder, however many cards of however many
// pages and undo steps show it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "platform/Picture.h"
#include "platform/PictureMemory.h"

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
  // The picture, read from the folder when first asked for; null when there is none to read. A large one comes without
  // its pixels (`WithPixels`).
  PicturePtr Current() const;
  // Reads the file again.
  void Reload();

 private:
  friend class PictureStore;
  void Keep(PicturePtr picture) const;

  PictureStore& store_;
  std::wstring id_;
  std::wstring path_;  // sub-folder of the images folder
  mutable PicturePtr picture_;
  mutable bool read_ = false;
};

using ImageRecordPtr = std::shared_ptr<ImageRecord>;

class PictureStore {
 public:
  // The decoded picture of an id and a path, or null. Called once a record, with the store's lock held.
  using Reader = std::function<PicturePtr(const std::wstring& id, const std::wstring& path)>;
  explicit PictureStore(Reader reader) : reader_(std::move(reader)) {}

  // The record of an id and a path, made when nobody holds it yet. The record goes with its last holder.
  ImageRecordPtr Attach(const std::wstring& id, const std::wstring& path);
  void ReloadAll();
  std::size_t Count() const;
  // The limit of all decoded pictures, the painters' included.
  const std::shared_ptr<PictureMemory>& Memory() const { return memory_; }

  // Whether a picture of this size may stay decoded; the painters need half of the memory. A larger one is decoded anew
  // whenever it is painted.
  bool MayKeep(const Picture& outline) const;
  // Its pixels turned out not to be readable: from now on there is no such picture, until it is reloaded.
  void Lose(const std::wstring& id, const std::wstring& path);

 private:
  friend class ImageRecord;
  using Key = std::pair<std::wstring, std::wstring>;
  PicturePtr Read(const ImageRecord& record) const { return reader_ ? reader_(record.id_, record.path_) : nullptr; }
  void Forget(const ImageRecord& record);

  Reader reader_;
  // Its lock guards the list, and the picture of every record.
  std::shared_ptr<PictureMemory> memory_ = std::make_shared<PictureMemory>();
  std::size_t kept_ = 0;  // bytes of decoded pictures
  std::map<Key, std::weak_ptr<ImageRecord>> records_;
};

}  // namespace xrpt
