// A picture that comes from a device variable, such as a camera's, and is fetched anew on request. Stands in
// conditioned cards only.
#pragma once

#include "model/CommonRows.h"
#include "model/RVCardControl.h"
#include "platform/Picture.h"

namespace xrpt {

class RVCardDynamicImage : public RVCardControl {
 public:
  explicit RVCardDynamicImage(ModelServices& services = InstalledServices());

  static const CardClass& Class();
  const CardClass& GetRuntimeClass() const override { return Class(); }
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<RVCardDynamicImage>(*this); }

  void Draw(Graphics& graphics, const tagDraw& draw) const override;

  // Replaces the picture by the one in the node's "image64"; without a node the placeholder shows again. 0, or 1 for
  // bytes that are no picture, which leave the card without one.
  int refreshImage(const XmlNode& node);
  // The picture, or null.
  const PicturePtr& GetPicture() const { return picture_; }
  // What a card without a picture shows. All of them share it.
  static const PicturePtr& Placeholder();

  std::int32_t horizontalAlign = kAlignCenter;
  std::int32_t verticalAlign = kAlignCenter;
  bool maintainAspectRatio = true;
  bool maintainRealSize = false;
  std::wstring variable;  // DEVICE.VARIABLE; the file adds the kind IMG

 private:
  static std::span<const CardRow> Rows();
  void ReadVariable(const XmlNode& element);
  void WriteVariable(XmlWriter& out) const;

  PicturePtr picture_;
};

}  // namespace xrpt
