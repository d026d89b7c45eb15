// The samples' pages against pictures of them that somebody looked at and found right.
//
// Pictures are compared in blocks of 8 by 8 pixels: the mean of a block may differ by 6 of 255 levels in each colour.
// That lets another version of the font renderer shade its letters differently, and sees a digit that is missing or
// has moved by half its width. A page that differs leaves its picture, and one of the differences, in the build folder.
// XRPT_ACCEPT=1 in the environment writes new references instead; look at them before they are committed.
#include <QFontInfo>
#include <cstdlib>
#include <fstream>

#include "canvas/RenderPage.h"
#include "host/PngEncoder.h"
#include "host/qt/PageSurfaces.h"
#include "host/qt/QtHost.h"
#include "model/RVReport.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

constexpr double kDpi = 72.0;
constexpr int kBlock = 8;
constexpr int kTolerance = 6;

struct Sample {
  const char* report;
  int page;
};

std::ostream& operator<<(std::ostream& out, const Sample& sample) { return out << sample.report << '-' << sample.page; }

constexpr Sample kSamples[] = {{"Consumo_mensual", 1}, {"Consumo_mensual", 2}, {"Consumo_mensual", 3},
                               {"Consumo_mensual", 4}, {"Power_quality", 1},   {"Power_quality", 2},
                               {"Power_quality", 3},   {"Tarifa_y_costes", 1}, {"Tarifa_y_costes", 2},
                               {"Line_comparison", 1}};

class ReferenceTest : public ::testing::TestWithParam<Sample> {
 protected:
  ReferenceTest() {
    HostOptions options;
    options.cfgFolder = EXAMPLES_FOLDER "/config";
    options.imagesFolder = EXAMPLES_FOLDER "/images";
    options.stateFolder = folder_.Folder();
    options.settingsFile = folder_.Folder() / "settings.ini";
    options.language = "en";
    options.dpi = 96;
    host_ = MakeQtHost(options);
    host_->locale = std::make_unique<PlainLocale>();
    former_ = InstallHost(host_.get());
  }
  ~ReferenceTest() override { InstallHost(former_); }

  std::string Rendered() {
    RVReport report;
    EXPECT_TRUE(report.Load(FromUtf8(GetParam().report)).loaded);
    const auto index = static_cast<std::size_t>(GetParam().page) - 1;
    if (index >= report.pages.size()) return {};
    const RVReportPage& page = *report.pages[index];
    const SizeD size = OutputSize(page, kDpi);
    PngSurface surface(roundi(size.width), roundi(size.height), kDpi);
    RenderPage(surface.Graphics(), page, kDpi);
    return surface.Finish();
  }
  PicturePtr Decoded(const std::string& bytes) { return host_->pictures->Decode(bytes); }
  Path FileIn(const char* folder, const char* suffix) const {
    return Path(folder) / (std::string(GetParam().report) + "-" + std::to_string(GetParam().page) + suffix);
  }

 private:
  TemporaryFolder folder_;
  std::unique_ptr<Host> host_;
  Host* former_ = nullptr;
};

// The largest difference of the block's mean colours.
int BlockDifference(const Picture& a, const Picture& b, int left, int top) {
  int sums[3] = {0, 0, 0};
  int pixels = 0;
  for (int y = top; y < std::min(top + kBlock, a.height); ++y) {
    for (int x = left; x < std::min(left + kBlock, a.width); ++x, ++pixels) {
      for (int channel = 0; channel < 3; ++channel)
        sums[channel] += a.Row(y)[3 * x + channel] - b.Row(y)[3 * x + channel];
    }
  }
  return std::max({std::abs(sums[0]), std::abs(sums[1]), std::abs(sums[2])}) / pixels;
}

std::vector<Point> BlocksThatDiffer(const Picture& a, const Picture& b) {
  std::vector<Point> blocks;
  for (int top = 0; top < a.height; top += kBlock) {
    for (int left = 0; left < a.width; left += kBlock) {
      if (BlockDifference(a, b, left, top) > kTolerance) blocks.push_back({left, top});
    }
  }
  return blocks;
}

// Grey where the pictures agree, the darker the more they differ.
Picture Difference(const Picture& a, const Picture& b) {
  Picture picture = a;
  picture.alpha.clear();
  for (std::size_t i = 0; i < picture.rgb.size(); ++i) {
    picture.rgb[i] = static_cast<std::uint8_t>(255 - std::abs(a.rgb[i] - b.rgb[i]));
  }
  return picture;
}

TEST_F(HostTest, ReferencesNeedTheFontsTheyWereMadeWith) {
  EnsureHeadlessQt();
  for (const char* family : {"Arial", "Liberation Sans"}) {
    EXPECT_EQ(QFontInfo(QFont(QString::fromLatin1(family))).family(), QStringLiteral("Liberation Sans"))
        << "install fonts-liberation";
  }
  EXPECT_EQ(QFontInfo(QFont(QStringLiteral("DejaVu Sans"))).family(), QStringLiteral("DejaVu Sans"))
      << "install fonts-dejavu-core";
}

TEST_P(ReferenceTest, LooksAsItDid) {
  const std::string rendered = Rendered();
  ASSERT_FALSE(rendered.empty());
  const Path reference = FileIn(REFERENCE_FOLDER, ".png");
  if (std::getenv("XRPT_ACCEPT")) TestHost::WriteFile(reference, rendered);
  const PicturePtr now = Decoded(rendered);
  const PicturePtr then = Decoded(TestHost::ReadFile(reference));
  ASSERT_TRUE(now && then) << "no reference " << reference;
  const Path output = FileIn(OUTPUT_FOLDER, ".png");
  const Path difference = FileIn(OUTPUT_FOLDER, "-difference.png");
  std::filesystem::remove(output);
  std::filesystem::remove(difference);
  const bool sameSize = now->width == then->width && now->height == then->height;
  const std::vector<Point> blocks = sameSize ? BlocksThatDiffer(*now, *then) : std::vector<Point>{{0, 0}};
  if (blocks.empty()) return;
  TestHost::WriteFile(output, rendered);
  if (sameSize) TestHost::WriteFile(difference, EncodePng(Difference(*now, *then)));
  FAIL() << blocks.size() << " blocks differ, the first at " << blocks[0].x << ", " << blocks[0].y << "; see " << output
         << " and the difference beside it";
}

INSTANTIATE_TEST_SUITE_P(Samples, ReferenceTest, ::testing::ValuesIn(kSamples), [](const auto& info) {
  return std::string(info.param.report) + "_" + std::to_string(info.param.page);
});

}  // namespace
}  // namespace xrpt
