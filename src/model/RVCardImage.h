// A picture chosen at design time from the host's image store. Also each page's background picture.
#pragma once

#include "model/CommonRows.h"
#include "model/RVCardControl.h"
#include "platform/PictureStore.h"

namespace xrpt {

class RVCardImage : public RVCardControl {
 public:
  explicit RVCardImage(ModelServices& services = InstalledServices());

  static const CardClass& Class();
  const CardClass& GetRuntimeClass() const override { return Class(); }
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<RVCardImage>(*this); }

  void Draw(Graphics& graphics, const tagDraw& draw) const override;

  // Attaches the card to a picture of the store, shared with all cards that show it. A picture that cannot be read
  // leaves the card without one, and its id and path as they are.
  bool LoadOriginalImage(const std::wstring& id, const std::wstring& path);
  // Lets go of the picture.
  bool DeleteOriginalImage();
  bool ReLoadOriginalImage();
  static void ReLoadAllOriginalImages();

  bool HasImageData() const { return image_ != nullptr; }
  bool HasImageId() const { return image_ && !image_->Id().empty(); }
  std::wstring ImageId() const { return image_ ? image_->Id() : std::wstring(); }
  std::wstring ImagePath() const { return image_ ? image_->ImagePath() : std::wstring(); }
  PicturePtr GetPicture() const { return image_ ? image_->Current() : nullptr; }
  bool IsAnimated() const override { return animation.behavior != Behavior::None; }

  std::int32_t horizontalAlign = kAlignCenter;
  std::int32_t verticalAlign = kAlignCenter;
  bool maintainAspectRatio = true;
  bool maintainRealSize = false;
  Animation animation;

  // The picture as people name it (see PictureName); nothing lets go of it.
  void AssignPicture(std::string_view name);
  std::wstring PictureName() const;

 private:
  static std::span<const CardRow> Rows();
  void ReadImage(const XmlNode& image);
  void WriteImage(XmlWriter& out) const;
  bool EqualImage(const RVCardImage& other) const;
  bool SameImage(const RVCardImage& other) const { return image_ == other.image_; }

  ImageRecordPtr image_;
};

}  // namespace xrpt
