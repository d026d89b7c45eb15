// Pictures from strangers: what decodes, what is refused, and how quickly.
#include <gmock/gmock.h>

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <future>
#include <mutex>

#include "host/PngEncoder.h"
#include "host/qt/PictureCache.h"
#include "host/qt/QtHost.h"
#include "host/qt/QtPictures.h"
#include "platform/Base64.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;

class Pictures : public ::testing::Test {
 protected:
  Pictures() { EnsureHeadlessQt(); }

  // 40 x 30, red, with the top left pixel as given.
  static std::string Encoded(const char* format, QColor first = Qt::red) {
    QImage image(40, 30, first.alpha() == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    image.fill(Qt::red);
    image.setPixelColor(0, 0, first);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format, 100)) << format;
    return buffer.data().toStdString();
  }
  std::string Size(std::string_view bytes) {
    const PicturePtr picture = pictures.Decode(bytes);
    return picture ? std::to_string(picture->width) + "x" + std::to_string(picture->height) : "refused";
  }
  static std::string Svg(const std::string& body, const std::string& head = "") {
    return head +
           "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='20' "
           "height='10'>" +
           body + "</svg>";
  }

  QtPictures pictures;
};

TEST_F(Pictures, EveryCommonFormatDecodesByContent) {
  for (const char* format : {"png", "jpg", "bmp", "webp", "tiff", "ppm"}) {
    const std::string bytes = Encoded(format);
    const PicturePtr picture = pictures.Decode(bytes);
    ASSERT_TRUE(picture) << format;
    EXPECT_EQ(Size(bytes), "40x30") << format;
    EXPECT_NEAR(picture->rgb[3], 255, 3) << format;
    EXPECT_NEAR(picture->rgb[4], 0, 3) << format;
    EXPECT_TRUE(picture->alpha.empty()) << format;
    EXPECT_EQ(picture->encodedSize, bytes.size()) << format;
  }
  const std::string gif("GIF89a\1\0\1\0\x80\0\0\xFF\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35);
  EXPECT_EQ(Size(gif), "1x1");
}

TEST_F(Pictures, AlphaIsAPlaneOfItsOwnWhereItSaysSomething) {
  const PicturePtr picture = pictures.Decode(Encoded("png", QColor(10, 20, 30, 40)));
  ASSERT_TRUE(picture);
  ASSERT_EQ(picture->alpha.size(), 40u * 30u);
  EXPECT_EQ(picture->alpha[0], 40);
  EXPECT_EQ(picture->alpha[1], 255);
  EXPECT_THAT(std::vector<int>(picture->rgb.begin(), picture->rgb.begin() + 3), ElementsAre(10, 20, 30));
}

TEST_F(Pictures, OurOwnPngComesBackPixelForPixel) {
  Picture picture;
  picture.width = 33;
  picture.height = 17;
  for (int i = 0; i < 33 * 17; ++i) {
    for (int k : {7, 31, 113}) picture.rgb.push_back(static_cast<std::uint8_t>(i * k));
    picture.alpha.push_back(static_cast<std::uint8_t>(i));
  }
  const PicturePtr back = pictures.Decode(EncodePng(picture));
  ASSERT_TRUE(back);
  EXPECT_EQ(back->rgb, picture.rgb);
  EXPECT_EQ(back->alpha, picture.alpha);
}

TEST_F(Pictures, WhatIsNoPictureIsRefused) {
  const std::string rows[] = {
      "", "hello", std::string(1000, '\0'), "<svg", "<html><body/></html>", "\x89PNG\r\n\x1A\n"};
  for (const std::string& bytes : rows) EXPECT_EQ(Size(bytes), "refused") << bytes;
}

TEST_F(Pictures, TruncatedAnywhereNeverCrashesAndNeverGivesHalfAPng) {
  for (const char* format : {"png", "jpg", "bmp", "webp"}) {
    const std::string whole = Encoded(format, QColor(1, 2, 3, 4));
    for (std::size_t length = 0; length < whole.size(); length += 1 + whole.size() / 60) {
      const std::string size = Size(whole.substr(0, length));
      EXPECT_TRUE(size == "refused" || size == "40x30") << format << length;
      const bool isHalfPng = format == std::string("png") && length < whole.size() / 2;
      EXPECT_FALSE(isHalfPng && size != "refused") << length;
    }
  }
}

TEST_F(Pictures, HugeOnesAreRefusedByTheirHeader) {
  const auto png = [](std::string side) {
    return "\x89PNG\r\n\x1A\n" + std::string("\0\0\0\rIHDR", 8) + side + side + std::string("\1\0\0\0\0crc_", 9) +
           std::string("\0\0\0\1IDATx", 9);
  };
  const std::string bmp = std::string("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0", 18) +
                          std::string("\xFF\xFF\xFF\x7F\xFF\xFF\xFF\x7F\1\0\x18\0", 12) + std::string(40, '\0');
  EXPECT_EQ(Size(png(std::string("\0\0\xEA\x60", 4))), "refused") << "60000 x 60000";
  EXPECT_EQ(Size(png("\x7F\xFF\xFF\xFF")), "refused");
  EXPECT_EQ(Size(bmp), "refused");
  EXPECT_EQ(Size("<svg xmlns='http://www.w3.org/2000/svg' width='60000' height='60000'/>"), "refused");
}

TEST_F(Pictures, SvgIsPaintedAtItsOwnSize) {
  const PicturePtr picture = pictures.Decode(Svg("<rect width='20' height='5' fill='#010203'/>"));
  ASSERT_TRUE(picture);
  EXPECT_EQ(std::pair(picture->width, picture->height), std::pair(20, 10));
  EXPECT_THAT(std::vector<int>(picture->rgb.begin(), picture->rgb.begin() + 3), ElementsAre(1, 2, 3));
  EXPECT_EQ(picture->alpha.front(), 255);
  EXPECT_EQ(picture->alpha.back(), 0);
  EXPECT_EQ(Size(Svg("<a href='http://x/'><rect width='2' height='2'/></a>")), "20x10");
  EXPECT_EQ(Size(Svg("<image href='data:image/png;base64," + EncodeBase64(Encoded("png")) + "'/>")), "20x10");
}

TEST_F(Pictures, SvgThatReachesOutsideItselfIsRefused) {
  const std::string inner = EncodeBase64(Svg("<image href='/etc/passwd'/>"));
  std::string deep;
  for (int i = 0; i < 100'000; ++i) deep += "<g>";
  const std::string rows[] = {Svg("<image href='picture.png'/>"),
                              Svg("<image xlink:href='file:///etc/passwd'/>"),
                              Svg("<image xlink:href='&#x2F;etc&#x2F;passwd'/>"),
                              Svg("<image href='&f;'/>", "<!DOCTYPE svg [<!ENTITY f '/etc/passwd'>]>"),
                              Svg("<use href='other.svg#a'/>"),
                              Svg("<image href='http://example.com/a.png'/>"),
                              Svg("<image href='data:image/svg+xml;base64," + inner + "'/>"),
                              Svg("<image href='data:image/png;base64," + inner + "'/>"),
                              Svg("", "<?xml-stylesheet type='text/css' href='/etc/passwd'?>"),
                              Svg(deep),
                              Svg("&a;", "<!DOCTYPE svg [<!ENTITY a '&b;&b;'><!ENTITY b '&a;'>]>"),
                              Svg("<!-- " + std::string(9 << 20, 'x') + " -->"),
                              std::string("\x1F\x8B\x08\0\0\0\0\0", 8)};
  for (const std::string& row : rows) EXPECT_EQ(Size(row), "refused") << row.substr(0, 200);
}

// Large pictures of the image store, as cards see them.
class StoredPictures : public HostTest {
 protected:
  StoredPictures() {
    EnsureHeadlessQt();
    host->pictures = std::make_unique<QtPictures>();
  }
  // Left half black, right half white.
  void Store(const std::string& id, QSize size, const char* format = "png") {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    for (int y = 0; y < size.height(); ++y) {
      auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
      std::fill(row + size.width() / 2, row + size.width(), 0xFFFFFFFFu);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(image.save(&buffer, format, 30));
    TestHost::WriteFile(host.Images() / (id + ".img"), EncodeBase64(buffer.data().toStdString()));
  }
  PicturePtr Of(const std::wstring& id) {
    records.push_back(host->pictureStore.Attach(id, L"./"));
    return records.back()->Current();
  }
  std::vector<ImageRecordPtr> records;
};

TEST_F(StoredPictures, LargeOnesAreDecodedAtTheSizeShownAndShareTheLimit) {
  PictureMemory& memory = *host->pictureStore.Memory();
  memory.SetLimit(8u << 20);
  PictureCache cache;
  for (int i = 0; i < 6; ++i) {
    Store("p" + std::to_string(i), {3000, 2000}, i % 2 ? "png" : "jpg");
    const PicturePtr picture = Of(L"p" + std::to_wstring(i));
    ASSERT_TRUE(picture);
    EXPECT_EQ(std::pair(picture->width, picture->height), std::pair(3000, 2000));
    const QImage shown = cache.Scaled(picture, {300, 200});
    EXPECT_EQ(shown.size(), QSize(300, 200));
    EXPECT_LT(qGray(shown.pixel(50, 100)), 10);
    EXPECT_GT(qGray(shown.pixel(250, 100)), 245);
    EXPECT_LE(cache.Whole(picture).sizeInBytes(), 4 << 20) << "even whole it is no larger than half the memory";
    EXPECT_LE(memory.Used(), memory.Limit());
  }
}

// However many there are, what is kept is what is shown of them, and what was shown last is not decoded again.
TEST_F(StoredPictures, ManyAreDecodedOnceEachAndKeepToTheLimit) {
  constexpr int kMany = 300;
  PictureMemory& memory = *host->pictureStore.Memory();
  memory.SetLimit(1u << 20);
  Store("s", {64, 48});
  const std::string file = TestHost::ReadFile(host.Images() / "s.img");
  PictureCache cache;
  std::vector<PicturePtr> pictures;
  for (int i = 0; i < kMany; ++i) {
    TestHost::WriteFile(host.Images() / ("s" + std::to_string(i) + ".img"), file);
    pictures.push_back(Of(L"s" + std::to_wstring(i)));
    EXPECT_TRUE(pictures.back()->rgb.empty());
  }
  EXPECT_EQ(memory.Used(), 0u) << "nothing is shown yet";
  for (const PicturePtr& picture : pictures) EXPECT_EQ(cache.Scaled(picture, {80, 60}).size(), QSize(80, 60));
  EXPECT_EQ(cache.Preparations(), kMany);
  EXPECT_LE(memory.Used(), memory.Limit());
  EXPECT_GT(memory.Used(), memory.Limit() / 2);
  for (int i = kMany - 40; i < kMany; ++i) cache.Scaled(pictures[static_cast<std::size_t>(i)], {80, 60});
  EXPECT_EQ(cache.Preparations(), kMany);
}

TEST_F(StoredPictures, ComeLaterWhereNobodyWaits) {
  Store("late", {300, 200});
  const PicturePtr picture = Of(L"late");
  std::promise<void> arrived;
  std::once_flag once;
  PictureCache cache;  // the first to go, for it tells whenever something arrives
  cache.LoadApart([&] { std::call_once(once, [&] { arrived.set_value(); }); });
  const QRectF here(1, 2, 30, 20);
  const QRectF there(50, 2, 30, 20);
  EXPECT_TRUE(cache.Soon(picture, {30, 20}, here).isNull());
  cache.Soon(picture, {30, 20}, there);
  ASSERT_EQ(arrived.get_future().wait_for(std::chrono::seconds(20)), std::future_status::ready);
  EXPECT_THAT(cache.TakeArrived(), ElementsAre(here, there));
  EXPECT_TRUE(cache.TakeArrived().empty());
  const QImage shown = cache.Soon(picture, {30, 20}, here);
  EXPECT_EQ(shown, PictureCache().Scaled(picture, {30, 20}));
  EXPECT_EQ(cache.Preparations(), 1) << "asked for twice, decoded once";
  EXPECT_EQ(cache.Soon(picture, {60, 40}, here).size(), QSize(30, 20)) << "meanwhile what there is";
  EXPECT_EQ(cache.Scaled(picture, {90, 60}).size(), QSize(90, 60)) << "paper waits";
}

TEST_F(StoredPictures, OneThatTurnsOutUnreadableIsNoneFromThenOn) {
  Store("cut", {3000, 2000});
  const Path file = host.Images() / "cut.img";
  TestHost::WriteFile(file, TestHost::ReadFile(file).substr(0, 2000));
  const PicturePtr picture = Of(L"cut");
  PictureCache cache;
  ASSERT_TRUE(picture) << "its head is whole";
  EXPECT_TRUE(cache.Scaled(picture, {30, 20}).isNull());
  EXPECT_FALSE(records[0]->Current());
  Store("cut", {3000, 2000});
  records[0]->Reload();
  EXPECT_TRUE(records[0]->Current());
}

}  // namespace
}  // namespace xrpt
