// The full pass: order, clip, grid, failing cards; and the set-up of output.
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>

#include "canvas/PagePreparation.h"
#include "canvas/RenderPage.h"
#include "draw/Drawing.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDynamicImage.h"
#include "model/RVCardImage.h"
#include "model/RVCardLabel.h"

namespace xrpt {
namespace {

struct PagePainterTest : HostTest {
  RVCardLabel& Put(const wchar_t* text, double x, double y) {
    auto card = std::make_unique<RVCardLabel>();
    card->text = text;
    card->x = x;
    card->y = y;
    card->width = 40.0;
    card->height = 10.0;
    return static_cast<RVCardLabel&>(page.cards.PushBack(std::move(card)));
  }
  RecordingGraphics Painted(const tagDraw& draw, const PagePaint& how = {}) {
    RecordingGraphics graphics;
    PaintPage(graphics, page, draw, how);
    EXPECT_EQ(graphics.depth, 0);
    return graphics;
  }
  RVReportPage page;
};

struct FailingCard : RVCardControl {
  void Draw(Graphics& graphics, const tagDraw&) const override {
    const GraphicsState state(graphics);
    throw std::runtime_error("no");
  }
};

TEST_F(PagePainterTest, PaintsBackToFrontAndOnlyWhatMeetsTheClip) {
  Put(L"front", 10, 10);
  Put(L"back", 20, 12);
  Put(L"below", 10, 200);
  EXPECT_EQ(Painted(DrawAt()).Texts(), (std::vector<std::wstring>{L"below", L"back", L"front"}));
  tagDraw draw = DrawAt();
  draw.clip = {0, 0, 800, 400};
  EXPECT_EQ(Painted(draw).Texts(), (std::vector<std::wstring>{L"back", L"front"}));
}

TEST_F(PagePainterTest, ACardThatFailsLeavesAMarkedBoxAndTheOthersAreSeen) {
  Put(L"front", 10, 10);
  auto failing = std::make_unique<FailingCard>();
  failing->x = 100;
  page.cards.PushBack(std::move(failing));
  Put(L"back", 20, 50);
  const RecordingGraphics drawn = Painted(DrawAt());
  EXPECT_EQ(drawn.Texts().size(), 2u);
  EXPECT_EQ(drawn.Count(CallKind::Line), 2u);
  EXPECT_EQ(drawn.First(CallKind::Rect).rect.left, roundi(100 * 96 / 25.4));
}

TEST_F(PagePainterTest, FillsTheSurroundThePageAndItsRoundedCorners) {
  page.properties.backcolor = Rgb(10, 20, 30);
  tagDraw draw = DrawAt();
  draw.offsetX = 7.9;
  RecordingGraphics drawn = Painted(draw);
  EXPECT_EQ(drawn.calls[0].color, Rgb(10, 20, 30));
  EXPECT_EQ(drawn.calls[0].rect, RectD(draw.clip));
  EXPECT_EQ(drawn.calls[1].color, kWhite);
  EXPECT_EQ(drawn.calls[1].rect, RectD(7, 0, 801, 1122));
  page.properties.backcolor = kNoColor;
  EXPECT_EQ(Painted(draw).Count(CallKind::FillRect), 1u);
  page.properties.backcolor = kBlack;
  draw.roundedPxX = draw.roundedPxY = 12.0;
  PagePaint alone;
  alone.surround = false;
  drawn = Painted(draw, alone);
  EXPECT_EQ(drawn.Count(CallKind::FillRect), 0u);
  EXPECT_EQ(drawn.First(CallKind::FillRoundRect).first, 12.0);
}

TEST_F(PagePainterTest, CardsAreSeenOnThePageOnly) {
  Put(L"outside", 200, 10);
  tagDraw draw = DrawAt();
  draw.offsetX = 20.4;
  RecordingGraphics drawn = Painted(draw);
  EXPECT_EQ(drawn.First(CallKind::ClipRect).rect, RectD(20, 0, 20 + 794 + 1, 1123 + 1));
  draw.roundedPxX = draw.roundedPxY = 12.0;
  EXPECT_EQ(Painted(draw).First(CallKind::ClipRoundRect).first, 12.0);
  drawn = {};
  RenderPage(drawn, page, 96.0);
  EXPECT_EQ(drawn.calls[1].kind, CallKind::Save);
  EXPECT_NE(drawn.calls[2].kind, CallKind::ClipRect);
}

TEST_F(PagePainterTest, AMissingPictureIsMarkedInTheEditorAndTheBackgroundsNowhere) {
  page.properties.Background().LoadOriginalImage(L"gone", L"./");
  ASSERT_TRUE(page.properties.ThereAreBackground());
  EXPECT_EQ(Painted(DrawAt()).Count(CallKind::Line), 0u);
  RVCardConditioned container;
  container.cards.push_back(std::make_unique<RVCardDynamicImage>());
  container.current = 0;
  page.cards.PushBack(container.GetClone());
  page.cards.PushBack(std::make_unique<RVCardImage>());
  const RecordingGraphics editor = Painted(DrawAt());
  EXPECT_EQ(editor.Count(CallKind::Line), 2u);
  EXPECT_EQ(editor.Count(CallKind::Picture), 1u);  // the camera of a dynamic picture
  RecordingGraphics paper;
  RenderPage(paper, page, 96.0);
  EXPECT_EQ(paper.Count(CallKind::Line) + paper.Count(CallKind::Picture) + paper.Count(CallKind::Text), 0u);
}

TEST_F(PagePainterTest, GridDotsStandAtTheCrossingsAndVanishWhenDrawnAgain) {
  std::vector<std::uint32_t> bits(300 * 200, 0xFFFFFFFFu);
  PixelBuffer buffer{bits.data(), 300, 200, 300, 1.0};
  tagDraw draw = DrawAt();
  draw.pageWidthPx = 210.0;
  draw.pageHeightPx = 297.0;
  draw.offsetX = 30.0;
  draw.offsetY = -20.0;
  draw.clip = {0, 0, 300, 200};
  const auto dots = [&bits] {
    return std::count_if(bits.begin(), bits.end(), [](std::uint32_t pixel) { return pixel != 0xFFFFFFFFu; });
  };
  for (const SizeD& off : {SizeD{10, -3}, SizeD{0, 10}, SizeD{-10, -10}, SizeD{0.5, 0.5}, SizeD{1e-300, 1e-300},
                           SizeD{std::nan(""), 10}}) {
    page.properties.xgrid = off.width;
    page.properties.ygrid = off.height;
    DrawGrid(buffer, page.properties, draw);
    EXPECT_EQ(dots(), 0) << off.width << ' ' << off.height;
  }
  page.properties.xgrid = 10.0;
  page.properties.ygrid = 20.0;
  DrawGrid(buffer, page.properties, draw);
  EXPECT_EQ(dots(), 21 * 10);  // 21 columns; rows 0, 20 ... 180 of the 11 that meet the clip below its top
  EXPECT_EQ(bits[0 * 300 + 30], 0xFF000000u);
  EXPECT_EQ(bits[40 * 300 + 50], 0xFF000000u);
  DrawGrid(buffer, page.properties, draw);
  EXPECT_EQ(dots(), 0);
  for (double far : {1e300, -1e300}) {
    draw.offsetX = far;
    DrawGrid(buffer, page.properties, draw);
    EXPECT_EQ(dots(), 0) << far;
  }
}

TEST_F(PagePainterTest, OutputFillsTheDeviceAndKeepsTextInProportion) {
  page.fontFactor = 96.0 / 120.0;  // laid out on a screen of 120 dots
  Put(L"text", 10, 10);
  RecordingGraphics screen;
  RenderPage(screen, page, 96.0);
  EXPECT_EQ(screen.calls[0].rect, RectD(0, 0, 793, 1122));
  EXPECT_NEAR(screen.First(CallKind::Text).pixelSize, 10.0 * 96 / 72 * 0.8, 1e-3);
  RecordingGraphics paper;
  RenderPage(paper, page, 600.0);
  const RectD small = screen.First(CallKind::Text).rect;
  const RectD large = paper.First(CallKind::Text).rect;
  EXPECT_NEAR(large.left / small.left, 600.0 / 96.0, 0.05);
  EXPECT_NEAR(large.Width(), small.Width() * 600.0 / 96.0, 1e-6);

  RecordingGraphics part;
  const tagDraw draw = OutputDraw(page, 96.0, {10, 10, 50, 20});
  PaintCards(part, page.cards, draw);
  EXPECT_EQ(draw.clip, (Rect{0, 0, 152, 38}));
  EXPECT_NEAR(part.First(CallKind::Text).rect.left, small.left - 10 * 96 / 25.4, 1.0);
}

// Notes the texts it is asked about, and whether by another thread.
struct NotingFonts final : FontService {
  FontMetrics Metrics(const Font&) override { return {8.0, 2.0, 10.0}; }
  double Width(const Font&, std::wstring_view text) override {
    const std::lock_guard lock(mutex);
    apart.insert(std::this_thread::get_id() != painter ? std::wstring(text) : std::wstring());
    return 5.0 * static_cast<double>(text.size());
  }
  const std::thread::id painter = std::this_thread::get_id();
  std::mutex mutex;
  std::set<std::wstring> apart;
};

struct PreparationTest : HostTest {};

// Scrolling to a card finds its text measured; taking the card away meanwhile is no harm.
TEST_F(PreparationTest, LaysOutCardsNobodyHasSeen) {
  auto fonts = std::make_unique<NotingFonts>();
  const NotingFonts& noted = *fonts;
  host->fonts = std::move(fonts);
  RVReportPage page;
  for (int i = 0; i < 500; ++i) {
    auto card = std::make_unique<RVCardLabel>();
    card->text = L"text " + std::to_wstring(i);
    card->width = 100.0;
    card->y = 1000.0 * i;
    page.cards.PushBack(std::move(card));
  }
  PagePreparation preparation;
  preparation.Begin(page.cards, DrawAt());
  preparation.Finish();
  EXPECT_EQ(noted.apart.size(), 500u);
  EXPECT_TRUE(noted.apart.contains(L"text 499"));
  preparation.Begin(page.cards, DrawAt());
  page.cards.Clear();
  preparation.Stop();
}

}  // namespace
}  // namespace xrpt
