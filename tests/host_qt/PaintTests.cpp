// What stands where on pixels and on paper.
#include <gmock/gmock.h>
#include <unistd.h>

#include <QFontMetricsF>
#include <QImage>
#include <cstdio>
#include <thread>

#include "host/qt/PageSurfaces.h"
#include "host/qt/QtFonts.h"
#include "host/qt/QtHost.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::HasSubstr;

class Painting : public HostTest {
 protected:
  Painting() { EnsureHeadlessQt(); }

  template <class Draw>
  static QImage Painted(int width, int height, Draw draw) {
    PngSurface surface(width, height);
    draw(surface.Graphics());
    QImage image;
    image.loadFromData(QByteArray::fromStdString(surface.Finish()));
    return image.convertToFormat(QImage::Format_RGB32);
  }
  // One letter a pixel: black '#', white '.', anything between '+'.
  static std::vector<std::string> Map(const QImage& image) {
    std::vector<std::string> rows;
    for (int y = 0; y < image.height(); ++y) {
      std::string row;
      for (int x = 0; x < image.width(); ++x) {
        const int gray = qGray(image.pixel(x, y));
        row += gray == 0 ? '#' : gray == 255 ? '.' : '+';
      }
      rows.push_back(row);
    }
    return rows;
  }
  // The columns of the first and the last mark.
  static std::pair<int, int> InkOf(const QImage& image) {
    std::pair<int, int> ink = {image.width(), -1};
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (qGray(image.pixel(x, y)) > 200) continue;
        ink = {std::min(ink.first, x), std::max(ink.second, x)};
      }
    }
    return ink;
  }
};

using Rows = std::vector<std::string>;
constexpr Pen kThin{kBlack, 1.0, PenStyle::Solid};

TEST_F(Painting, ThinLinesAreOneWholePixel) {
  const auto cross = [](Graphics& g) {
    g.DrawLine({1, 2}, {4, 2}, kThin);
    g.DrawLine({4.3, 3.2}, {4.3, 5}, {kBlack, 0.0, PenStyle::Solid});
  };
  EXPECT_EQ(Map(Painted(5, 5, cross)), (Rows{".....", ".....", ".###.", "....#", "....#"}));
}

TEST_F(Painting, FramesAreCrispWhereverTheyAreMoved) {
  const auto frame = [](Graphics& g) {
    g.Translate(0.4, 0.4);
    g.DrawRect({1, 1, 4, 3}, kThin);
  };
  EXPECT_EQ(Map(Painted(6, 5, frame)), (Rows{"......", ".####.", ".#..#.", ".####.", "......"}));
}

TEST_F(Painting, FillsAndClipsEndOnWholePixels) {
  const auto fill = [](Graphics& g) {
    const GraphicsState state(g);
    g.ClipRect({0, 0, 3.3, 9});
    g.FillRect({0.6, 0.4, 9, 2.2}, kBlack);
  };
  EXPECT_EQ(Map(Painted(5, 3, fill)), (Rows{".##..", ".##..", "....."}));
}

TEST_F(Painting, StateComesBackAfterRestore) {
  const auto draw = [](Graphics& g) {
    {
      const GraphicsState state(g);
      g.Translate(3, 0);
      g.ClipRect({0, 0, 1, 1});
    }
    g.FillRect({0, 0, 2, 1}, kBlack);
    g.Restore();
  };
  EXPECT_EQ(Map(Painted(4, 1, draw)), (Rows{"##.."}));
}

TEST_F(Painting, AnglesTurnCounterClockwise) {
  const auto turned = [](Graphics& g) {
    g.Translate(1, 3);
    g.Rotate(90);
    g.FillRect({0, 0, 3, 1}, kBlack);
  };
  EXPECT_EQ(Map(Painted(3, 3, turned)), (Rows{".#.", ".#.", ".#."}));
  const auto slice = [](Graphics& g) { g.FillPie({0, 0, 40, 40}, 0, 90, kBlack); };
  const QImage pie = Painted(40, 40, slice);
  EXPECT_EQ(qGray(pie.pixel(28, 12)), 0);
  for (const QPoint& other : {QPoint(12, 12), QPoint(12, 28), QPoint(28, 28)}) EXPECT_EQ(qGray(pie.pixel(other)), 255);
}

TEST_F(Painting, HostileNumbersDrawSomethingOrNothing) {
  const double nan = std::nan("");
  const auto draw = [nan](Graphics& g) {
    const PointD points[] = {{nan, 1e300}, {-1e300, nan}, {1e9, 1e9}};
    g.DrawLine({nan, -1e300}, {1e300, 5}, {kBlack, nan, PenStyle::Dash});
    g.DrawPolygon(points, {kBlack, 1e300, PenStyle::Solid});
    g.FillPolygon(points, kBlack);
    g.FillPie({0, 0, nan, 1e300}, 1e300, -1e300, kBlack);
    g.DrawText({L"text", nullptr, -5.0, {0, 0}, 10.0, kBlack});
    g.DrawText({L"text", nullptr, 1e300, {nan, 0}, nan, kBlack});
    g.DrawRoundRect({0, 0, 5, 5}, -1, nan, kThin);
    g.DrawPicture(std::make_shared<Picture>(), {0, 0, 5, 5});
  };
  EXPECT_EQ(Painted(8, 8, draw).size(), QSize(8, 8));
}

TEST_F(Painting, PicturesAreScaledIntoTheirPlaceWithTheirAlpha) {
  auto picture = std::make_shared<Picture>();
  picture->width = 2;
  picture->height = 1;
  picture->rgb = {0, 0, 0, 0, 0, 0};
  picture->alpha = {255, 0};
  const auto draw = [&](Graphics& g) { g.DrawPicture(picture, {0, 0, 2, 2}); };
  EXPECT_EQ(Map(Painted(3, 2, draw)), (Rows{"#..", "#.."}));
}

TEST_F(Painting, PictureCachesShareOneLimitAndKeepTheLastUsed) {
  auto picture = std::make_shared<Picture>();
  picture->width = picture->height = 1;
  picture->rgb = {1, 2, 3};
  PictureMemory& memory = *host->pictureStore.Memory();
  PictureCache cache;
  PictureCache other;
  const qint64 first = cache.Scaled(picture, {10, 10}).cacheKey();
  for (int side = 3000; side < 3020; ++side) {
    (side % 2 ? cache : other).Scaled(picture, {side, side});
    EXPECT_EQ(cache.Scaled(picture, {10, 10}).cacheKey(), first);
    EXPECT_LE(memory.Used(), memory.Limit());
  }
  EXPECT_GT(memory.Used(), memory.Limit() / 2);
  memory.SetLimit(1);
  EXPECT_EQ(memory.Used(), 400u) << "what was used last stays, however large";
  EXPECT_NE(cache.Whole(picture).cacheKey(), first);
  const std::weak_ptr<Picture> gone = picture;
  picture.reset();
  EXPECT_FALSE(gone.expired()) << "its address must not be used again while the cache knows it";
}

TEST_F(Painting, TextTakesItsMeasuredWidthOnEveryDevice) {
  QtFonts fonts;
  const Font font{L"Arial", 10.0, FontStyle::Bold};
  const std::wstring text = L"|Total energy 1234.56 kWh|";
  const double points = fonts.Width(font, text);
  for (const double dpi : {72.0, 96.0, 131.0, 300.0, 600.0}) {
    const double pixels = points * dpi / 72.0;
    const auto draw = [&](Graphics& g) {
      g.DrawText({text, &font, font.size * dpi / 72.0, {10.0, 1.5 * dpi / 4}, pixels, kBlack});
    };
    const auto [left, right] = InkOf(Painted(roundi(pixels) + 20, roundi(dpi / 2), draw));
    const double bar = fonts.Width(font, L"|") * dpi / 72.0;  // the ink of a bar lies within its width
    EXPECT_GE(left, 9) << dpi;
    EXPECT_LE(left, 10 + bar) << dpi;
    EXPECT_LE(right, 10 + pixels + 1) << dpi;
    EXPECT_GE(right, 10 + pixels - bar - 1) << dpi;
  }
}

TEST_F(Painting, TextIsStretchedIntoAWidthMeasuredElsewhere) {
  const Font font{L"Arial", 10.0, FontStyle::Normal};
  const auto draw = [&](Graphics& g) { g.DrawText({L"HHHHH", &font, 20.0, {0, 25}, 150.0, kBlack}); };
  EXPECT_NEAR(InkOf(Painted(200, 30, draw)).second, 148, 3);
}

TEST_F(Painting, FontsMeasureInProportion) {
  QtFonts fonts;
  const Font small{L"Arial", 7.0, FontStyle::Normal};
  const Font large{L"Arial", 70.0, FontStyle::Normal};
  EXPECT_DOUBLE_EQ(fonts.Width(large, L"Potencia máxima"), 10 * fonts.Width(small, L"Potencia máxima"));
  EXPECT_GT(fonts.Width(small, L"ab"), fonts.Width(small, L"a"));
  EXPECT_GT(fonts.Width({L"Arial", 7.0, FontStyle::Bold}, L"abc"), fonts.Width(small, L"abc"));
  EXPECT_EQ(fonts.Width({L"Arial", -5.0, FontStyle::Normal}, L"abc"), 0.0);
  const FontMetrics metrics = fonts.Metrics(large);
  EXPECT_GT(metrics.ascent, 0.6 * 70);
  EXPECT_GT(metrics.descent, 0.1 * 70);
  EXPECT_GE(metrics.lineSpacing, metrics.ascent + metrics.descent - 1e-9);
}

// Whoever measures a text has shaped it for whoever paints it, in this thread or another, and it looks the same.
TEST_F(Painting, ATextIsShapedOnceForMeasuringAndPainting) {
  QtFonts fonts;
  GlyphCache glyphs(&fonts);
  const Font font{L"Arial", 10.0, FontStyle::Normal};
  const std::wstring texts[] = {L"Energía activa", L"AVA fi To. ", L"  x", L"", L"12 345,67 kWh"};
  for (const std::wstring& text : texts) fonts.Width(font, text);
  std::thread([&] { fonts.Width(font, L"from another thread"); }).join();
  constexpr int kTexts = 6;
  EXPECT_EQ(fonts.Shapings(), kTexts);
  for (const double size : {10.0, 23.0}) {
    for (const std::wstring& text : texts) {
      fonts.Width({L"Arial", size, FontStyle::Normal}, text);
      const QList<QGlyphRun> runs = glyphs.Runs(font, text);
      const QList<QGlyphRun> alone = GlyphRunsOf(ReferenceFont(font), QString::fromStdWString(text));
      const QList<QPointF> places = runs.isEmpty() ? QList<QPointF>() : runs[0].positions();
      EXPECT_EQ(places, alone.isEmpty() ? QList<QPointF>() : alone[0].positions()) << text;
    }
  }
  glyphs.Runs(font, L"from another thread");
  EXPECT_EQ(fonts.Shapings(), kTexts);
}

// Lines break where they always did: the width of a shaped text is what the toolkit measures.
TEST_F(Painting, AShapedTextIsAsWideAsAMeasuredOne) {
  for (const wchar_t* text : {L"Te Av. fi ffi  ", L"  lead", L"trail   ", L"W", L"f", L"\x5E9\x5DC\x5D5\x5DD abc",
                              L"\x4E2D\x6587 x", L"x\x301", L"a\x9C b", L"\x1F600", L""}) {
    for (const FontStyle style : {FontStyle::Normal, FontStyle::ItalicBold}) {
      const QFont font = ReferenceFont({L"Arial", 10.0, style});
      const QString whole = QString::fromWCharArray(text);
      EXPECT_DOUBLE_EQ(ShapeText(font, whole).width, QFontMetricsF(font).horizontalAdvance(whole)) << text;
    }
  }
}

TEST_F(Painting, OldTextsAreForgottenAndRecentOnesNot) {
  RecentTexts<int> texts(10);
  for (int i = 0; i < 1000; ++i) {
    texts.Keep(std::to_wstring(i), i);
    ASSERT_TRUE(texts.Find(L"0")) << i;
    EXPECT_LE(texts.Size(), 20u);
  }
  for (int i = 991; i < 1000; ++i) EXPECT_TRUE(texts.Find(std::to_wstring(i))) << i;
  EXPECT_FALSE(texts.Find(L"500"));
}

TEST_F(Painting, SizesThatCannotBePaintedAreSaidSo) {
  EXPECT_FALSE(PngSurface(0, 10).IsValid());
  EXPECT_FALSE(PngSurface(-1, 10).IsValid());
  EXPECT_FALSE(PngSurface(60000, 60000).IsValid());
  PdfSurface pdf(L"x");
  EXPECT_FALSE(pdf.BeginPage({0, 297}));
  EXPECT_FALSE(pdf.BeginPage({std::nan(""), 297}));
  EXPECT_EQ(pdf.Finish(), "");
}

std::string OutputOf(const std::string& command) {
  std::string all;
  std::FILE* pipe = ::popen(command.c_str(), "r");
  char part[4096];
  while (const std::size_t got = std::fread(part, 1, sizeof part, pipe)) all.append(part, got);
  ::pclose(pipe);
  return all;
}

TEST_F(Painting, PdfHoldsEachPageInItsSizeAndItsTextAsText) {
  PdfSurface pdf(L"Informe ñ", 72.0);
  const Font font{L"Arial", 10.0, FontStyle::Normal};
  for (const SizeD size : {SizeD{210, 297}, SizeD{100, 50}}) {
    ASSERT_TRUE(pdf.BeginPage(size));
    pdf.Graphics().Save();
    pdf.Graphics().DrawText({L"Energía activa", &font, 10.0, {20, 40}, 70, kBlack});
  }
  const TemporaryFolder folder;
  const Path file = TestHost::WriteFile(folder.Folder() / "a.pdf", pdf.Finish());
  if (OutputOf("command -v pdftotext pdfinfo").empty()) GTEST_SKIP() << "poppler-utils is not installed";
  EXPECT_THAT(OutputOf("pdftotext " + file.string() + " -"), HasSubstr("Energía activa"));
  const std::string info = OutputOf("pdfinfo -f 1 -l 2 " + file.string());
  EXPECT_THAT(info, HasSubstr("Pages:           2"));
  EXPECT_THAT(info, ::testing::ContainsRegex("Page    1 size: *595[.0-9]* x 842"));
  EXPECT_THAT(info, ::testing::ContainsRegex("Page    2 size: *28[34][.0-9]* x 14[12]"));
  EXPECT_THAT(OutputOf("pdftotext -f 2 -l 2 -bbox " + file.string() + " -"),
              ::testing::ContainsRegex("xMin=\"(20|19)\\.[0-9]*\" yMin=\"3[01]"));
}

}  // namespace
}  // namespace xrpt
