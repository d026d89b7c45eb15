#include <gmock/gmock.h>
#include <zlib.h>

#include <limits>

#include "host/PngEncoder.h"
#include "host/SvgGraphics.h"
#include "platform/Base64.h"
#include "platform/Xml.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

PicturePtr TwoByTwo(bool alpha) {
  auto picture = std::make_shared<Picture>();
  picture->width = picture->height = 2;
  picture->rgb = {255, 0, 0, 0, 255, 0, 0, 0, 255, 10, 20, 30};
  if (alpha) picture->alpha = {255, 128, 0, 1};
  return picture;
}

class Svg : public ::testing::Test {
 protected:
  std::string Text() {
    std::string text = svg.Finish();
    XmlError error;
    EXPECT_TRUE(XmlDocument().Parse(text, &error)) << error.message << "\n" << text;
    return text;
  }
  SvgGraphics svg{{210.0, 297.0}, {210.0, 297.0}};
};

TEST_F(Svg, TextStaysTextWhateverItHolds) {
  const Font font{L"A\"<'\\>&", 10.0, FontStyle::ItalicBold};
  svg.DrawText({L"<b>&\"'ñ 漢\x1\t]]>\xD800\xFFFF", &font, 12.5, {1.0, 2.0}, 34.5678, Rgb(1, 2, 255)});
  const std::string text = Text();
  EXPECT_THAT(text, HasSubstr(">&lt;b&gt;&amp;&quot;'ñ 漢 ]]&gt;\xEF\xBF\xBD</text>"));
  EXPECT_THAT(text, HasSubstr("font-family=\"'A&quot;&lt;&gt;&amp;', sans-serif\""));
  EXPECT_THAT(text, HasSubstr("textLength=\"34.568\""));
  EXPECT_THAT(text, HasSubstr("font-weight=\"bold\" font-style=\"italic\""));
  EXPECT_THAT(text, HasSubstr("fill=\"#0102FF\""));
}

TEST_F(Svg, ClipAndTransformEndWithTheirState) {
  {
    const GraphicsState state(svg);
    svg.ClipRect({0, 0, 10, 10});
    svg.Translate(1.0, 2.0);
    svg.Rotate(90.0);
    svg.FillRect({0, 0, 5, 5}, kBlack);
  }
  svg.FillRect({7, 8, 9, 9}, kWhite);
  const std::string text = Text();
  EXPECT_THAT(text, HasSubstr("<clipPath id=\"c1\"><rect x=\"0\" y=\"0\" width=\"10\" height=\"10\"/></clipPath>\n"
                              "<g clip-path=\"url(#c1)\">\n<g transform=\"translate(1 2)\">\n"
                              "<g transform=\"rotate(-90)\">\n"));
  EXPECT_THAT(text, HasSubstr("</g>\n</g>\n</g>\n<rect x=\"7\""));
}

TEST_F(Svg, StatesLeftOpenAndRestoredTooOftenStayWellFormed) {
  svg.Restore();
  svg.Translate(1, 1);
  svg.Save();
  svg.ClipRoundRect({0, 0, 1, 1}, 0.5, 0.5);
  Text();
}

TEST_F(Svg, NumbersAreShortAndAlwaysNumbers) {
  const double inf = std::numeric_limits<double>::infinity();
  svg.DrawLine({1.0 / 3.0, -0.0001}, {inf, std::nan("")}, {kBlack, 0.5, PenStyle::DashDot});
  svg.DrawLine({1, 1}, {2, 2}, {kBlack, 0.0, PenStyle::Solid});
  const std::string text = Text();
  EXPECT_THAT(text, HasSubstr("x1=\"0.333\" y1=\"0\" x2=\"1000000000\" y2=\"0\""));
  EXPECT_THAT(text, HasSubstr("stroke-dasharray=\"2 1 0.5 1\""));
  EXPECT_THAT(text, HasSubstr("vector-effect=\"non-scaling-stroke\""));
}

TEST_F(Svg, NothingIsPaintedWithNoColourOrNoPen) {
  const PointD points[] = {{0, 0}, {1, 1}, {2, 0}};
  svg.FillRect({0, 0, 1, 1}, kNoColor);
  svg.FillRoundRect({0, 0, 1, 1}, 1, 1, kNoColor);
  svg.FillEllipse({0, 0, 1, 1}, kNoColor);
  svg.FillPolygon(points, kNoColor);
  svg.FillPie({0, 0, 1, 1}, 0, 90, kNoColor);
  svg.DrawPolygon(points, {kBlack, 1.0, PenStyle::None});
  svg.DrawRect({0, 0, 1, 1}, {kNoColor, 1.0, PenStyle::Solid});
  svg.DrawText({L"", nullptr, 10, {}, 0, kBlack});
  svg.DrawPicture(nullptr, {0, 0, 1, 1});
  const std::string text = Text();
  EXPECT_EQ(text.substr(text.find(">\n", text.find("<svg")) + 2), "</svg>\n");
}

TEST_F(Svg, PieSlicesTurnCounterClockwiseFromThreeOClock) {
  svg.FillPie({0, 0, 20, 20}, 0.0, 90.0, kBlack);
  svg.FillPie({0, 0, 20, 20}, 90.0, 270.0, kBlack);
  svg.FillPie({0, 0, 20, 20}, 45.0, 360.0, kBlack);
  const std::string text = Text();
  EXPECT_THAT(text, HasSubstr("d=\"M10 10L20 10A10 10 0 0 0 10 0Z\""));
  EXPECT_THAT(text, HasSubstr("d=\"M10 10L10 0A10 10 0 1 0 20 10Z\""));
  EXPECT_THAT(text, HasSubstr("<ellipse cx=\"10\" cy=\"10\" rx=\"10\" ry=\"10\""));
}

TEST_F(Svg, OnePictureIsEmbeddedOnceHoweverOftenItIsShown) {
  const PicturePtr picture = TwoByTwo(true);
  svg.DrawPicture(picture, {10, 20, 30, 30});
  svg.DrawPicture(picture, {0, 0, 2, 2});
  svg.DrawPicture(std::make_shared<Picture>(), {0, 0, 2, 2});
  const std::string text = Text();
  EXPECT_EQ(text.find("data:image/png"), text.rfind("data:image/png"));
  EXPECT_THAT(text, HasSubstr("transform=\"translate(10 20) scale(10 5)\""));
}

// The picture's rows as a PNG reader finds them, filters undone.
std::string PixelsOf(const std::string& png, std::size_t rowBytes, std::size_t rows) {
  const std::size_t data = png.find("IDAT");
  if (data == png.npos) return "no data";
  std::string out((rowBytes + 1) * rows, '\0');
  uLongf size = out.size();
  const auto* from = reinterpret_cast<const Bytef*>(png.data() + data + 4);
  if (uncompress(reinterpret_cast<Bytef*>(out.data()), &size, from, png.size() - data - 4) != Z_OK)
    return "not deflated";
  std::string pixels(rowBytes, '\0');
  for (std::size_t i = 0; i < out.size(); ++i) {
    if (i % (rowBytes + 1) != 0) pixels += static_cast<char>(out[i] + pixels[pixels.size() - rowBytes]);
  }
  return pixels.substr(rowBytes);
}

TEST(Png, HoldsThePixelsAndTheAlpha) {
  const std::string opaque("\xFF\0\0\0\xFF\0\0\0\xFF\x0A\x14\x1E", 12);
  EXPECT_EQ(PixelsOf(EncodePng(*TwoByTwo(false)), 6, 2), opaque);
  const std::string seeThrough("\xFF\0\0\xFF\0\xFF\0\x80\0\0\xFF\0\x0A\x14\x1E\x01", 16);
  EXPECT_EQ(PixelsOf(EncodePng(*TwoByTwo(true)), 8, 2), seeThrough);
}

TEST(Png, PictureShorterThanItSaysIsNone) {
  Picture picture = *TwoByTwo(true);
  picture.alpha.pop_back();
  EXPECT_EQ(EncodePng(picture), "");
  EXPECT_EQ(EncodePng(Picture()), "");
}

TEST(Base64, PadsTheLastGroup) {
  EXPECT_EQ(EncodeBase64(""), "");
  EXPECT_EQ(EncodeBase64("M"), "TQ==");
  EXPECT_EQ(EncodeBase64("Ma"), "TWE=");
  EXPECT_EQ(EncodeBase64("Man\xFF"), "TWFu/w==");
}

}  // namespace
}  // namespace xrpt
