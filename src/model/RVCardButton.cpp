#include "model/RVCardButton.h"

#include "model/StyleReference.h"
#include "platform/PictureName.h"
#include "platform/SystemNames.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr double kFontSize = 20.0;

bool SameRow(const Picture& left, const Picture& right, int row) {
  return std::equal(left.Row(row), left.Row(row) + left.RowBytes(), right.Row(row));
}

}  // namespace

std::span<const CardRow> RVCardButton::Rows() {
  using Button = RVCardButton;
  using VisualizationCodec = codec::OneOf<kVisualizationWords, codec::kNone, codec::kNone>;
  constexpr auto aligned = AlignmentRows<Button, &Button::horizontalAlign, &Button::verticalAlign>();
  constexpr auto scaled = ScalingRows<Button, &Button::maintainAspectRatio, &Button::maintainRealSize>();
  static constexpr CardRow kRows[] = {
      Field<Button, VisualizationCodec, &Button::visualization>(
          nullptr, "visualization", nullptr, {text::kVisualization, FieldGroup::Content, FieldEditor::Choice}),
      Only<Button, &Button::IsImage>(KnownBy<Button, &Button::AssignPicture, &Button::PictureName>(
          OtherWay<Button>(), {text::kPicture, FieldGroup::Content, FieldEditor::Picture})),
      Only<Button, &Button::IsButton>(
          Constant<Button>(nullptr, [](const RVCardControl&, XmlWriter& out) { out.Bool("button", true); })),
      // A missing caption reads as none, not as a new button's.
      Holding(TextRole::Words,
              Only<Button, &Button::HasTextPart>(ReadBy<Button, &Button::ReadText>(
                  WriteBy<Button, &Button::WriteText>(Field<Button, codec::String, &Button::text>(
                      nullptr, "text", nullptr, {text::kText, FieldGroup::Content, FieldEditor::Lines}))))),
      Only<Button, &Button::HasTextPart>(FontNameRow<Button, &Button::font>()),
      Only<Button, &Button::HasTextPart>(FontStyleRow<Button, &Button::font>()),
      Only<Button, &Button::HasTextPart>(FontSizeRow<Button, &Button::font>()),
      Only<Button, &Button::HasTextPart>(Field<Button, codec::Colour, &Button::fontColor>(
          "font", "color", nullptr, {text::kFontColor, FieldGroup::Font, FieldEditor::Color})),
      Only<Button, &Button::IsText>(Field<Button, codec::Decimal, &Button::orientation>(
          "font", "orientation", "", {text::kOrientation, FieldGroup::Font, FieldEditor::Angle, -360.0, 360.0})),
      // Read after the font, because the style's font overrides the one in the file.
      Only<Button, &Button::HasTextPart>(ReadBy<Button, &Button::ReadStyle>(
          WriteBy<Button, &Button::WriteStyle>(Field<Button, codec::String, &Button::styleName>(
              nullptr, "style", nullptr, {text::kStyle, FieldGroup::Font, FieldEditor::Style})))),
      Only<Button, &Button::IsImage>(
          When<Button, &Button::HasImageId>(Field<Button, codec::String, &Button::imageId>("image", "imageId", ""))),
      Only<Button, &Button::IsImage>(When<Button, &Button::HasImageId>(
          NotCompared(Field<Button, codec::String, &Button::imagePath, &NotCopied<std::wstring>::value>(
              "image", "imagePath", "")))),
      ComparedBy<Button, &Button::EqualPicture, &Button::SamePicture>(
          Only<Button, &Button::IsImage>(ReadAfter<Button, &Button::ReadImage>())),
      Only<Button, &Button::IsAligned>(aligned[0]),
      Only<Button, &Button::IsAligned>(aligned[1]),
      Only<Button, &Button::IsImage>(scaled[0]),
      Only<Button, &Button::IsImage>(scaled[1]),
  };
  return kRows;
}

const CardClass& RVCardButton::Class() {
  static const CardClass kind = DeriveCard<RVCardButton>(nullptr, text::kButtonCard, RVCardControl::Class(), Rows());
  return kind;
}

RVCardButton::RVCardButton(ModelServices& services)
    : RVCardControl(services), text(services.texts->Text(kNewCaptionText)) {
  font.size = kFontSize;
}

bool RVCardButton::GetStyleFromFile(const std::wstring& name) {
  return TakeStyle(*Services().styles, name, font, fontColor);
}

void RVCardButton::ReadText(const XmlNode& element) { text = element.Value("textStr"); }

void RVCardButton::WriteText(XmlWriter& out) const {
  if (text.empty()) return;
  const XmlElement element(out, "text");
  out.Value("textStr", text);
}

void RVCardButton::ReadStyle(const XmlNode& reference) {
  if (ReadStyleReference(*this, reference, styleName, parent)) GetStyleFromFile(styleName);
}

void RVCardButton::WriteStyle(XmlWriter& out) const { WriteStyleReference(*Services().styles, out, styleName); }

void RVCardButton::ReadImage(const XmlNode& node) {
  if (node.Node("image")) LoadImage();
}

void RVCardButton::AssignPicture(std::string_view name) {
  const PictureKey key = ParsePictureName(FromUtf8(name));
  imageId = key.id;
  imagePath.value = key.id.empty() ? std::wstring() : key.path;
  image_.reset();
  if (!imageId.empty()) LoadImage();
}

std::wstring RVCardButton::PictureName() const { return xrpt::PictureName({imageId, imagePath.value}); }

void RVCardButton::LoadImage() {
  ImageRecordPtr record = Services().pictureStore.Attach(imageId, imagePath.value);
  if (record->Current()) image_ = std::move(record);
}

void RVCardButton::TakePlaceOf(const RVCardControl& source) {
  imagePath.value = static_cast<const RVCardButton&>(source).imagePath.value;
}

bool RVCardButton::EqualPicture(const RVCardButton& other) const {
  return EqualSampled(GetPicture(), other.GetPicture());
}

bool EqualSampled(const PicturePtr& left, const PicturePtr& right) {
  if (left == right) return true;
  if (!left || !right) return false;
  const bool sameSize =
      left->encodedSize == right->encodedSize && left->width == right->width && left->height == right->height;
  if (!sameSize || left->height == 0) return sameSize;
  const PicturePtr a = WithPixels(left);
  const PicturePtr b = WithPixels(right);
  return a && b && SameRow(*a, *b, 0) && SameRow(*a, *b, left->height / 2);
}

}  // namespace xrpt
