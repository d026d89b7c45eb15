#include "model/RVCardDynamicImage.h"

#include "platform/Base64.h"

namespace xrpt {
namespace {

constexpr std::wstring_view kImageKind = L"IMG";

// A camera in grey on white.
struct Placed {
  int left, top, right, bottom;
  std::uint8_t shade;
};
constexpr int kPlaceholderWidth = 64;
constexpr int kPlaceholderHeight = 48;
constexpr Placed kCamera[] = {{8, 14, 56, 42, 0x90},
                              {22, 8, 42, 14, 0x90},
                              {24, 18, 40, 36, 0xFF},
                              {27, 21, 37, 33, 0x60},
                              {46, 18, 52, 22, 0xFF}};

void FillBlock(Picture& picture, const Placed& block) {
  for (int y = block.top; y < block.bottom; ++y) {
    const auto row = picture.rgb.begin() + static_cast<std::ptrdiff_t>(y) * kPlaceholderWidth * 3;
    std::fill(row + block.left * 3, row + block.right * 3, block.shade);
  }
}

PicturePtr DrawPlaceholder() {
  auto picture = std::make_shared<Picture>();
  picture->width = kPlaceholderWidth;
  picture->height = kPlaceholderHeight;
  picture->rgb.assign(std::size_t{3} * kPlaceholderWidth * kPlaceholderHeight, 0xFF);
  for (const Placed& block : kCamera) FillBlock(*picture, block);
  return picture;
}

}  // namespace

std::span<const CardRow> RVCardDynamicImage::Rows() {
  using Image = RVCardDynamicImage;
  static constexpr auto kRows = JoinRows(
      RowsOf(Holding(TextRole::Variable, ReadBy<Image, &Image::ReadVariable>(WriteBy<Image, &Image::WriteVariable>(
                                             Field<Image, codec::String, &Image::variable>(
                                                 nullptr, "variable", nullptr,
                                                 {text::kVariable, FieldGroup::Content, FieldEditor::Variable}))))),
      AlignmentRows<Image, &Image::horizontalAlign, &Image::verticalAlign>(),
      ScalingRows<Image, &Image::maintainAspectRatio, &Image::maintainRealSize>());
  return kRows;
}

const CardClass& RVCardDynamicImage::Class() {
  static const CardClass kind =
      DeriveCard<RVCardDynamicImage>("dynamicImage", text::kDynamicImageCard, RVCardControl::Class(), Rows());
  return kind;
}

RVCardDynamicImage::RVCardDynamicImage(ModelServices& services) : RVCardControl(services) { color = 0xC0C0C0; }

const PicturePtr& RVCardDynamicImage::Placeholder() {
  static const PicturePtr picture = DrawPlaceholder();
  return picture;
}

void RVCardDynamicImage::ReadVariable(const XmlNode& element) {
  const VariableNaming& naming = *Services().variables;
  const DriverVariable parts = naming.SplitDriverVariable(element.Value("id"));
  variable = naming.JoinDriverVariable({parts.device, parts.variable, {}, {}});
}

void RVCardDynamicImage::WriteVariable(XmlWriter& out) const {
  const VariableNaming& naming = *Services().variables;
  DriverVariable parts = naming.SplitDriverVariable(variable);
  parts.kind = kImageKind;
  parts.period.clear();
  const XmlElement element(out, "variable");
  out.Value("id", naming.JoinDriverVariable(parts));
}

int RVCardDynamicImage::refreshImage(const XmlNode& node) {
  picture_.reset();
  std::string joined;
  const std::string_view encoded = node.Node("image64").WholeText(joined);
  if (encoded.empty()) return 0;
  const std::optional<std::string> bytes = DecodeBase64(encoded);
  if (bytes) picture_ = Services().pictures->Decode(*bytes);
  return picture_ ? 0 : 1;
}

}  // namespace xrpt
