#include "model/RVCardImage.h"

#include "platform/PictureName.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

// Of a new card, and of one whose file names no colour.
constexpr Color kNewColor = 0xC06060;
constexpr Color kNewBackColor = 0x00FFFF;

}  // namespace

std::span<const CardRow> RVCardImage::Rows() {
  using Image = RVCardImage;
  static constexpr auto kRows = JoinRows(
      // Id and path name one thing together, so they are read and written together.
      RowsOf(KnownBy<Image, &Image::AssignPicture, &Image::PictureName>(
          ComparedBy<Image, &Image::EqualImage, &Image::SameImage>(
              Irregular<Image, &Image::ReadImage, &Image::WriteImage>("image")),
          {text::kPicture, FieldGroup::Content, FieldEditor::Picture})),
      AlignmentRows<Image, &Image::horizontalAlign, &Image::verticalAlign>(),
      ScalingRows<Image, &Image::maintainAspectRatio, &Image::maintainRealSize>(),
      AnimationRows<Image, &Image::animation, &Image::IsAnimated>());
  return kRows;
}

const CardClass& RVCardImage::Class() {
  static const CardClass kind =
      DeriveCard<RVCardImage>("staticImage", text::kImageCard, RVCardControl::Class(), Rows());
  return kind;
}

RVCardImage::RVCardImage(ModelServices& services) : RVCardControl(services) {
  color = kNewColor;
  backcolor = kNewBackColor;
}

bool RVCardImage::EqualImage(const RVCardImage& other) const {
  return ImageId() == other.ImageId() && ImagePath() == other.ImagePath();
}

bool RVCardImage::LoadOriginalImage(const std::wstring& id, const std::wstring& path) {
  image_ = Services().pictureStore.Attach(id, path);
  return true;
}

bool RVCardImage::DeleteOriginalImage() {
  image_.reset();
  return true;
}

bool RVCardImage::ReLoadOriginalImage() {
  if (image_) image_->Reload();
  return image_ != nullptr;
}

void RVCardImage::ReLoadAllOriginalImages() { InstalledServices().pictureStore.ReloadAll(); }

void RVCardImage::AssignPicture(std::string_view name) {
  const PictureKey key = ParsePictureName(FromUtf8(name));
  key.id.empty() ? DeleteOriginalImage() : LoadOriginalImage(key.id, key.path);
}

std::wstring RVCardImage::PictureName() const { return xrpt::PictureName({ImageId(), ImagePath()}); }

void RVCardImage::ReadImage(const XmlNode& image) {
  if (image) LoadOriginalImage(image.Value("imageId"), image.Value("imagePath"));
}

void RVCardImage::WriteImage(XmlWriter& out) const {
  if (!image_) return;
  if (image_->Id().empty()) {
    return Services().logger->Log(3, L"RVCardImage::SaveTemplate(): imageData->id is empty!");
  }
  const XmlElement element(out, "image");
  out.Value("imageId", image_->Id());
  out.Value("imagePath", image_->ImagePath());
}

}  // namespace xrpt
