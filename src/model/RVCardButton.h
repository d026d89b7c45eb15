// The visible part that other cards inherit: a button, a text or a picture. It has no element of its own: its values
// stand in the element of the card it is part of.
#pragma once

#include "model/CommonRows.h"
#include "model/NotCopied.h"
#include "model/RVCardControl.h"
#include "platform/PictureStore.h"

namespace xrpt {

enum class Visualization { None = 0, Button = 1, Image = 2, Text = 3 };

inline constexpr Word kVisualizationWords[] = {{"BUTTON", 1, 60190}, {"IMAGE", 2, 60191}, {"TEXT", 3, 60192}};

class RVCardButton : public RVCardControl {
 public:
  explicit RVCardButton(ModelServices& services = InstalledServices());

  static const CardClass& Class();
  const CardClass& GetRuntimeClass() const override { return Class(); }
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<RVCardButton>(*this); }
  void TakePlaceOf(const RVCardControl& source) override;

  bool GetStyleFromFile(const std::wstring& name) override;
  bool UpdateStyleFromFile() override { return GetStyleFromFile(styleName); }

  void Draw(Graphics& graphics, const tagDraw& draw) const override;

  // Takes the picture that id and path name. One that cannot be read leaves the card the picture it has.
  void LoadImage();
  // The picture as people name it (see PictureName); nothing lets go of it.
  void AssignPicture(std::string_view name);
  std::wstring PictureName() const;
  // Null without one.
  PicturePtr GetPicture() const { return image_ ? image_->Current() : nullptr; }

  bool IsButton() const { return visualization == Visualization::Button; }
  bool IsImage() const { return visualization == Visualization::Image; }
  bool IsText() const { return visualization == Visualization::Text; }

  Visualization visualization = Visualization::None;
  std::wstring styleName;
  Font font;
  Color fontColor = kBlack;
  std::wstring text;
  std::wstring imageId;
  // Deliberately not copied: a copy keeps the picture and its id, and is written without the folder.
  NotCopied<std::wstring> imagePath;
  bool maintainRealSize = false;
  bool maintainAspectRatio = true;
  std::int32_t horizontalAlign = kAlignCenter;
  std::int32_t verticalAlign = kAlignCenter;
  double orientation = 0.0;  // degrees, of a text

 private:
  static std::span<const CardRow> Rows();
  bool HasTextPart() const { return IsButton() || IsText(); }
  bool IsAligned() const { return IsImage() || IsText(); }
  bool HasImageId() const { return !imageId.empty(); }
  void ReadText(const XmlNode& element);
  void WriteText(XmlWriter& out) const;
  void ReadStyle(const XmlNode& reference);
  void WriteStyle(XmlWriter& out) const;
  void ReadImage(const XmlNode& node);
  bool EqualPicture(const RVCardButton& other) const;
  bool SamePicture(const RVCardButton& other) const { return image_ == other.image_; }

  ImageRecordPtr image_;
};

// Whether two pictures look alike: their sizes, the top row and the middle one. The other rows are deliberately not
// looked at, which keeps comparing cheap.
bool EqualSampled(const PicturePtr& left, const PicturePtr& right);

}  // namespace xrpt
