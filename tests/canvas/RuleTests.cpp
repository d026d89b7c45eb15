// Placement, zoom, scrolling and the rules of drags over plain values, hostile ones included.
#include <limits>

#include "canvas/CanvasDriver.h"
#include "canvas/DragRules.h"
#include "model/RVCardImage.h"

namespace xrpt {
namespace {

class RuleTest : public HostTest {};

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

// --- Placement ---

struct PlaceRow {
  const char* name;
  int clientWidth, clientHeight;
  double zoom;
  int scrollX, scrollY;
  double offsetX, offsetY;
};

// The page is centred on an axis it fits on, and scrolled on the other.
TEST_F(RuleTest, PagePlacement) {
  const PlaceRow rows[] = {{"fits", 1250, 1685, 1, 0, 0, 100, 100},
                           {"stored scroll of a page that fits", 1250, 1685, 1, 30, 40, 100, 100},
                           {"too wide", 1000, 1685, 1, 20, 40, -20, 100},
                           {"too high", 1250, 1400, 1, 20, 40, 100, -40},
                           {"fit counts like its scale", 625, 842, -0.5, 0, 0, 50, 49.75},
                           {"half a pixel too wide", 1049, 1685, 1, 0, 0, 0, 100},
                           {"no further than there is page", 1049, 1685, 1, 900, 0, -1, 100}};
  for (const PlaceRow& row : rows) {
    RVGlobalProperties page;
    const PixelsPerMm scale{5, 5};
    const PagePlacement place =
        PlacePage(page, scale, row.zoom, {0, 0, row.clientWidth, row.clientHeight}, row.scrollX, row.scrollY);
    EXPECT_DOUBLE_EQ(place.offsetX, row.offsetX) << row.name;
    EXPECT_DOUBLE_EQ(place.offsetY, row.offsetY) << row.name;
    EXPECT_DOUBLE_EQ(place.pageWidthPx, 1050 * std::abs(row.zoom)) << row.name;
  }
}

// Width and height are rounded apart from the corner: a card keeps its size in pixels wherever it stands.
TEST_F(RuleTest, SizesDoNotWobble) {
  RVGlobalProperties page;
  const PagePlacement place = PlacePage(page, {96 / 25.4, 96 / 25.4}, 1.0, {0, 0, 1000, 1300}, 0, 0);
  for (double x = 0.0; x < 10.0; x += 0.037) {
    const Rect rect = ToPixels(place, {x, x, 12.3, 45.6});
    EXPECT_EQ(rect.Width(), roundi(12.3 * 96 / 25.4)) << x;
    EXPECT_EQ(rect.Height(), roundi(45.6 * 96 / 25.4)) << x;
    EXPECT_EQ(rect.left, roundi(std::round(place.offsetX) + x * 96 / 25.4)) << x;
    EXPECT_NEAR(ToMillimetres(place, rect).x, x, 25.4 / 96) << x;
  }
}

TEST_F(RuleTest, ZoomModes) {
  struct Row {
    int mode;
    double wanted;
    bool changes;
  };
  const Row rows[] = {{1, 1, false},
                      {2, 2, true},
                      {100, 2, false},
                      {3, 3, true},
                      {4, 4, true},
                      {7, 1, true},
                      {5, 1, false},
                      {0, -1685 / 1485., true},
                      {-1, 1, true},
                      {102, 1, false},
                      {101, -1250 / 1050., true},
                      {101, -1250 / 1050., false}};
  Canvas canvas;
  for (const Row& row : rows) {
    EXPECT_EQ(canvas.wnd.SetMode(row.mode), row.changes) << row.mode;
    EXPECT_NEAR(canvas.wnd.Zoom(), row.wanted, 1e-12) << row.mode;
  }
  canvas.port.client = {};
  EXPECT_TRUE(canvas.wnd.SetMode(0)) << "no window to fit into";
  EXPECT_EQ(canvas.wnd.Zoom(), kUndeterminedZoom);
  EXPECT_DOUBLE_EQ(canvas.wnd.Placement().pageWidthPx, 1050);
  EXPECT_EQ(canvas.wnd.Zoom(), 1.0) << "the first placement settles it";
}

TEST_F(RuleTest, Orientation) {
  Canvas canvas;
  EXPECT_FALSE(canvas.wnd.SetOrientation(1));
  canvas.wnd.SetMode(101);
  EXPECT_TRUE(canvas.wnd.SetOrientation(0));
  EXPECT_EQ(canvas.page.properties.width, 297);
  EXPECT_EQ(canvas.page.properties.Background().width, 297);
  EXPECT_NEAR(canvas.wnd.Zoom(), -std::min(1250 / 1485., 1685 / 1050.), 1e-12) << "fits the page, not its width";
  EXPECT_EQ(canvas.wnd.UndoCount(), 2u);
  canvas.wnd.ControlUndo();
  EXPECT_EQ(canvas.page.properties.width, 210);
}

TEST_F(RuleTest, ABackgroundThatCoversThePageGoesOnCoveringIt) {
  Canvas canvas;
  const auto resize = [&canvas](double width) { canvas.wnd.Edit({}).Properties().width = width; };
  const auto covered = [&canvas] { return canvas.page.properties.Background().width; };
  resize(150.0);
  EXPECT_EQ(covered(), 150.0);
  canvas.wnd.ControlUndo();
  EXPECT_EQ(covered(), 210.0);
  canvas.wnd.Edit({}).Properties().Background().width = 40.0;
  resize(150.0);
  EXPECT_EQ(covered(), 40.0) << "one that does not is left as it is";
}

TEST_F(RuleTest, Scrolling) {
  Canvas canvas;
  canvas.port.client = {0, 0, 1000, 1685};
  canvas.wnd.OnSize();
  const ScrollInfo wanted{0, 50 + 9, 10, 0, true};
  EXPECT_EQ(canvas.port.bars[0], wanted);
  EXPECT_FALSE(canvas.port.bars[1].visible);
  struct Row {
    ScrollCommand command;
    int thumb;
    int position;
  };
  const Row rows[] = {
      {ScrollCommand::LineBack, 0, 0},     {ScrollCommand::LineForward, 0, 1}, {ScrollCommand::PageForward, 0, 11},
      {ScrollCommand::LineBack, 0, 10},    {ScrollCommand::Last, 0, 50},       {ScrollCommand::LineForward, 0, 50},
      {ScrollCommand::PageForward, 0, 50}, {ScrollCommand::PageBack, 0, 40},   {ScrollCommand::Thumb, 3, 3},
      {ScrollCommand::PageBack, 0, 0},     {ScrollCommand::Thumb, 9999, 50},   {ScrollCommand::First, 0, 0},
      {ScrollCommand::Thumb, -20, 0},      {ScrollCommand::Thumb, 45, 45}};
  for (const Row& row : rows) {
    canvas.wnd.OnHScroll(row.command, row.thumb);
    EXPECT_EQ(canvas.port.bars[0].position, row.position);
    EXPECT_EQ(canvas.wnd.Placement().offsetX, -row.position);
  }
  canvas.port.client = {0, 0, 1020, 1685};
  canvas.wnd.OnSize();
  EXPECT_EQ(canvas.port.bars[0].position, 30) << "the position stays inside the new range";
}

TEST_F(RuleTest, Visibility) {
  const Rect a{10, 10, 20, 20};
  const std::pair<Rect, bool> rows[] = {{{12, 12, 14, 14}, true},  {{0, 0, 10, 10}, true},    {{20, 20, 30, 30}, true},
                                        {{0, 12, 9, 14}, false},   {{21, 12, 30, 14}, false}, {{12, 0, 14, 9}, false},
                                        {{12, 21, 14, 30}, false}, {{0, 0, 100, 100}, true}};
  for (const auto& [b, visible] : rows)
    EXPECT_EQ(RVEditTemplateWnd::IsVisible(a, b), visible) << b.left << " " << b.top;
}

// An edge within a pixel of a line is pulled onto it, any other stays.
TEST_F(RuleTest, WeakSnap) {
  RVGlobalProperties page;
  const PagePlacement place = PlacePage(page, {1 / 0.26, 1 / 0.26}, 1.0, {0, 0, 1000, 1300}, 0, 0);
  struct Row {
    double x, width, step, wantedX, wantedWidth;
  };
  const Row rows[] = {{4.9, 10.2, 5, 5, 10},      {4.5, 10, 5, 4.5, 10},     {4.5, 10.4, 5, 4.5, 10.5},
                      {4.9, 10.2, -3, 4.9, 10.2}, {4.9, 10.2, 0, 4.9, 10.2}, {4.9, 0.2, 5, 5, 0.2}};
  for (const Row& row : rows) {
    CardRect rect{row.x, row.x, row.width, row.width};
    IntelligentAdjustToGrid(rect, {row.step, row.step}, place);
    ExpectBox(rect, {row.wantedX, row.wantedX, row.wantedWidth, row.wantedWidth}, std::to_string(row.x));
  }
}

// --- Hostile values ---

// Whatever file or script says, a rule ends, stays in range, and a window survives every event.
TEST_F(RuleTest, AbsurdPagesAreSurvived) {
  const double sizes[] = {0, -5, 1e-300, 1, 210, 1e9, 1e300, kInfinite, kNoNumber};
  const double grids[] = {0, 1e-320, 1e-9, 0.01, 5, 1e300, kInfinite, kNoNumber};
  for (const double size : sizes) {
    for (const double grid : grids) {
      Canvas canvas;
      canvas.Add(L"a", {size, -size, 40, size});
      canvas.Add(L"b", {1e300, kNoNumber, kInfinite, 3});
      canvas.page.properties.width = size;
      canvas.page.properties.height = 297;
      canvas.SetGrid(grid, grid);
      for (const int mode : {0, 101, 1}) {
        canvas.wnd.SetMode(mode);
        canvas.wnd.InitializeScrollBars(false);
        canvas.wnd.SetInsertKind(kPointer);
        canvas.wnd.ControlSelectAll();
        canvas.Drag({300, 300}, {2147483647, -2147483647});
        canvas.Drag({0, 0}, {500, 500}, kCtrl);
        canvas.wnd.OnKeyDown(key::Right, kPlain);
        canvas.wnd.AlignSelectedControlsCtrl(kAlignRightEdges);
        canvas.wnd.SetInsertKind(0);
        canvas.Drag({120, 120}, {-2147483647, 900});
        canvas.wnd.AddControlAtPointer();
        canvas.wnd.ControlUndo();
      }
      EXPECT_TRUE(std::isfinite(canvas.wnd.Zoom())) << size << " " << grid;
    }
  }
}

// On an axis with a grid a move of one edge or of all never ends further than a pixel from where it would be without,
// when the grid is finer than that.
TEST_F(RuleTest, FineGridsMoveNothingFurtherThanAPixel) {
  for (const double step : {0.15, 0.01, 1e-5, 1e-12, 1e-300}) {
    const DragAxis grid{100, 1050, step, 5};
    const DragAxis free{100, 1050, 0, 5};
    for (const int delta : {-4000, -101, -1, 0, 1, 63, 701, 4000}) {
      EXPECT_NEAR(MoveDelta(grid, 200, 400, delta), MoveDelta(free, 200, 400, delta), 1) << step << " " << delta;
      EXPECT_NEAR(ResizeDelta(grid, 200, delta), ResizeDelta(free, 200, delta), 1) << step << " " << delta;
    }
  }
}

}  // namespace
}  // namespace xrpt
