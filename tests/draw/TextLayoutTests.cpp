// How texts break and where their lines stand. The test host's fonts are plain tables, so widths are known: at 10
// points a digit is 5.56 wide, a blank 2.78, a line 11.17 high.
#include <numbers>

#include "draw/Drawing.h"
#include "model/RVCardLabel.h"
#include "model/draw/TextLayout.h"

namespace xrpt {
namespace {

using Lines = std::vector<std::wstring>;

struct TextLayoutTest : HostTest {
  TextLayout Layout(std::wstring_view text, SizeD size, int horizontal = kAlignLeft, int vertical = kAlignTop) {
    return LayOutText(*CurrentHost().fonts, Font(), text, {size, horizontal, vertical, true});
  }
  Lines LinesOf(std::wstring_view text, SizeD size) {
    Lines lines;
    for (const TextLine& line : Layout(text, size).lines) lines.push_back(line.text);
    return lines;
  }
};

TEST_F(TextLayoutTest, BreaksAtWordsThenInsideThem) {
  const struct {
    const wchar_t* text;
    SizeD box;
    Lines lines;
  } rows[] = {
      {L"11 22 33", {100, 100}, {L"11 22 33"}},
      {L"11 22 33", {35, 100}, {L"11 22", L"33"}},
      {L"11 22 33", {25, 100}, {L"11", L"22", L"33"}},
      {L"11  22", {25, 100}, {L"11", L"22"}},
      {L"1234567", {17, 100}, {L"123", L"456", L"7"}},
      {L"1 234567", {17, 100}, {L"1", L"234", L"567"}},
      {L"12", {0, 100}, {L"1", L"2"}},
      {L"a\r\nb\nc\rd", {100, 100}, {L"a", L"b", L"c", L"d"}},
      {L"a\n\nb", {100, 100}, {L"a", L"", L"b"}},
      {L"a\tb", {100, 100}, {L"a b"}},
      {L"ends\n", {100, 100}, {L"ends", L""}},
      {L"", {100, 100}, {}},
      // No room for a second line: better cut than halved. Line breaks of the user's own stand.
      {L"11 22 33", {25, 15}, {L"11 22 33"}},
      {L"11 22\n33", {25, 15}, {L"11 22", L"33"}},
      {L"11 22 33", {25, 22.7}, {L"11", L"22", L"33"}},
  };
  for (const auto& row : rows) EXPECT_EQ(LinesOf(row.text, row.box), row.lines) << ToUtf8(row.text);
}

TEST_F(TextLayoutTest, AlignsInsideTheBoxAndKeepsTheBeginningOfWhatIsTooLarge) {
  const double height = 11.17;
  const struct {
    const wchar_t* text;
    SizeD box;
    int horizontal;
    int vertical;
    double left;
    double top;
  } rows[] = {
      {L"11", {50, 40}, kAlignLeft, kAlignTop, 0, 0},
      {L"11", {50, 40}, kAlignCenter, kAlignCenter, (50 - 11.12) / 2, (40 - height) / 2},
      {L"11", {50, 40}, kAlignRight, kAlignBottom, 50 - 11.12, 40 - height},
      // Wider than a box of one line: the beginning stays; higher: the middle does.
      {L"11111", {20, 8}, kAlignRight, kAlignCenter, 0, (8 - height) / 2},
      {L"11\n22\n33", {50, 20}, kAlignCenter, kAlignBottom, (50 - 11.12) / 2, 0},
  };
  for (const auto& row : rows) {
    const TextLayout layout = Layout(row.text, row.box, row.horizontal, row.vertical);
    EXPECT_NEAR(layout.lines[0].left, row.left, 1e-9) << ToUtf8(row.text);
    EXPECT_NEAR(layout.lines[0].baseline, row.top + 9.05, 1e-9) << ToUtf8(row.text);
    EXPECT_NEAR(layout.bounds.top, row.top, 1e-9);
  }
}

TEST_F(TextLayoutTest, ShortensWithAnEllipsis) {
  FontService& fonts = *CurrentHost().fonts;
  const struct {
    double width;
    std::wstring text;
  } rows[] = {{100, L"123456"}, {33.36, L"123456"}, {30, L"1234\x2026"}, {12, L"1\x2026"}, {8, L""}, {-1, L""}};
  for (const auto& row : rows) EXPECT_EQ(FitText(fonts, Font(), L"123456", row.width), row.text) << row.width;
}

// What a turned rectangle covers, from the middle of the card, on a device whose y grows downwards.
RectD Covered(const RectD& rect, double degrees) {
  const double angle = degrees * std::numbers::pi / 180.0;
  RectD out(1e9, 1e9, -1e9, -1e9);
  for (const PointD& corner : {PointD{rect.left, rect.top}, PointD{rect.right, rect.top},
                               PointD{rect.left, rect.bottom}, PointD{rect.right, rect.bottom}}) {
    const double x = corner.x * std::cos(angle) + corner.y * std::sin(angle);
    const double y = corner.y * std::cos(angle) - corner.x * std::sin(angle);
    out = {std::min(out.left, x), std::min(out.top, y), std::max(out.right, x), std::max(out.bottom, y)};
  }
  return out;
}

constexpr SizeD kCard{120.0, 80.0};

struct TurnedTextTest : TextLayoutTest, ::testing::WithParamInterface<double> {
  static TextLayout Turned(std::wstring_view text, int horizontal = kAlignCenter, int vertical = kAlignCenter) {
    return LayOutTurnedText(*CurrentHost().fonts, Font(), text, {kCard, horizontal, vertical, true}, GetParam());
  }
};

// Negative, 0 or positive: where a text of the alignment leaves no room.
int SideOf(int align) { return align == kAlignCenter ? 0 : align == kAlignLeft || align == kAlignTop ? -1 : 1; }

TEST_P(TurnedTextTest, StandsInTheCardAsItIsAligned) {
  for (const wchar_t* text : {L"11", L"11 22 33 44 55 66 77 88", L"1\n22222\n333"}) {
    for (int horizontal : {kAlignLeft, kAlignCenter, kAlignRight}) {
      for (int vertical : {kAlignTop, kAlignCenter, kAlignBottom}) {
        const TextLayout layout = Turned(text, horizontal, vertical);
        const RectD seen = Covered(layout.bounds, GetParam());
        const double x = SideOf(horizontal) * (kCard.width - seen.Width()) * 0.5;
        const double y = SideOf(vertical) * (kCard.height - seen.Height()) * 0.5;
        EXPECT_NEAR(seen.Center().x, x, 1e-6) << text << horizontal << ' ' << vertical;
        EXPECT_NEAR(seen.Center().y, y, 1e-6) << text << horizontal << ' ' << vertical;
        EXPECT_LE(seen.Width(), kCard.width + 1e-3) << text;
        EXPECT_LE(seen.Height(), kCard.height + 1e-3) << text;
        EXPECT_NEAR(layout.lines[0].baseline, layout.bounds.top + 9.05, 1e-9);
      }
    }
  }
}

TEST_P(TurnedTextTest, ShowsTheBeginningOfWhatIsTooLarge) {
  std::wstring words;
  for (int i = 0; i < 400; ++i) words += L"1234 ";
  for (int align : {kAlignLeft, kAlignRight}) {
    const TextLayout layout = Turned(words, align, align == kAlignLeft ? kAlignTop : kAlignBottom);
    const TextLine& first = layout.lines.front();
    const RectD start =
        Covered({first.left, first.baseline - 9.05, first.left + 1.0, first.baseline + 2.12}, GetParam());
    EXPECT_GE(start.left, -kCard.width / 2 - 1e-6);
    EXPECT_GE(start.top, -kCard.height / 2 - 1e-6);
    EXPECT_LE(start.right, kCard.width / 2 + 1e-6);
    EXPECT_LE(start.bottom, kCard.height / 2 + 1e-6);
  }
}

INSTANTIATE_TEST_SUITE_P(Angles, TurnedTextTest,
                         ::testing::Values(0.01, 30.0, 45.0, 60.0, 90.0, 135.0, 180.0, 210.0, 270.0, -20.0, 405.0));

TEST_F(TextLayoutTest, ATurnedTextMovesAlongItsDirectionThroughTheCard) {
  const struct {
    double degrees;
    SizeD room;
  } rows[] = {{90, {40, 100}}, {180, {100, 40}}, {-90, {40, 100}}, {45, {56.5685, 56.5685}}, {30, {80, 46.188}}};
  for (const auto& row : rows) {
    const SizeD room = TurnedRoom({100, 40}, row.degrees);
    EXPECT_NEAR(room.width, row.room.width, 1e-3) << row.degrees;
    EXPECT_NEAR(room.height, row.room.height, 1e-3) << row.degrees;
  }
}

TEST_F(TextLayoutTest, SameLinesOnEveryDeviceAtEveryZoom) {
  RVCardLabel label = CardOf<RVCardLabel>(37.0, 60.0);
  label.horizontalAlign = kAlignLeft;
  label.text = L"Energy of the bottling lines during the period, without the air compressors (see page 3)";
  const RecordingGraphics reference = Recorded(label);
  ASSERT_GT(reference.Texts().size(), 3u);
  for (double dpi : {72.0, 96.0, 120.0, 300.0, 1200.0}) {
    for (double zoom : {0.35, 0.5, 1.0, -1.37, 3.0}) {
      const RecordingGraphics drawn = Recorded(label, DrawAt(dpi, zoom));
      EXPECT_EQ(drawn.Texts(), reference.Texts()) << dpi << " dpi, zoom " << zoom;
      const double scale = dpi / 96.0 * std::abs(zoom);
      const DrawCall& first = drawn.First(CallKind::Text);
      EXPECT_NEAR(first.pixelSize, reference.First(CallKind::Text).pixelSize * scale, 1e-6);
      EXPECT_NEAR(first.rect.Width(), reference.First(CallKind::Text).rect.Width() * scale, 1e-6);
    }
  }
}

TEST_F(TextLayoutTest, MegabytesOfTextEndSoon) {
  for (const SizeD box : {SizeD{50, 1e6}, SizeD{0.001, 1e6}, SizeD{1e6, 1e6}}) {
    EXPECT_LE(LinesOf(std::wstring(2'000'000, L'x'), box).size(), 1000u);
    EXPECT_LE(LinesOf(std::wstring(2'000'000, L'\n'), box).size(), 1000u);
    std::wstring words;
    for (int i = 0; i < 300'000; ++i) words += L"ab ";
    EXPECT_LE(LinesOf(words, box).size(), 1000u);
  }
}

}  // namespace
}  // namespace xrpt
