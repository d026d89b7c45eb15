// Aligning, distributing, centring, sizing and stacking, in rows.
#include "canvas/CanvasDriver.h"

namespace xrpt {
namespace {

// At 127 dpi one pixel is 0.2 mm; the page is 210 by 297 mm.
constexpr double kPixel = 0.2;

class ArrangeTest : public HostTest {
 protected:
  // Cards "0", "1", ... selected in this order.
  static void Fill(Canvas& canvas, const std::vector<CardRect>& boxes) {
    std::vector<std::wstring> ids;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
      ids.push_back(std::to_wstring(i));
      canvas.Add(ids.back(), boxes[i]);
    }
    canvas.wnd.SelectControls(ids);
  }
  static void Expect(const Canvas& canvas, const std::vector<CardRect>& wanted, const std::string& name) {
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      ExpectBox(canvas.Box(std::to_wstring(i)), wanted[i], name + ", card " + std::to_string(i));
    }
  }
};

struct AlignRow {
  const char* name;
  int mode;
  std::vector<CardRect> boxes;
  std::vector<CardRect> toLast;
  std::vector<CardRect> toAll;
};

const std::vector<CardRect> kThree{{10, 40, 30, 10}, {60, 20, 20, 16}, {50, 80, 40, 20}};

const AlignRow kAligns[] = {
    {"left",
     1,
     kThree,
     {{50, 40, 30, 10}, {50, 20, 20, 16}, kThree[2]},
     {kThree[0], {10, 20, 20, 16}, {10, 80, 40, 20}}},
    {"right",
     2,
     kThree,
     {{60, 40, 30, 10}, {70, 20, 20, 16}, kThree[2]},
     {{60, 40, 30, 10}, {70, 20, 20, 16}, kThree[2]}},
    {"top",
     4,
     kThree,
     {{10, 80, 30, 10}, {60, 80, 20, 16}, kThree[2]},
     {{10, 20, 30, 10}, kThree[1], {50, 20, 40, 20}}},
    {"bottom",
     8,
     kThree,
     {{10, 90, 30, 10}, {60, 84, 20, 16}, kThree[2]},
     {{10, 90, 30, 10}, {60, 84, 20, 16}, kThree[2]}},
    {"horizontal centres",
     32,
     kThree,
     {{55, 40, 30, 10}, {60, 20, 20, 16}, kThree[2]},
     {{35, 40, 30, 10}, {40, 20, 20, 16}, {30, 80, 40, 20}}},
    {"vertical centres",
     64,
     kThree,
     {{10, 85, 30, 10}, {60, 82, 20, 16}, kThree[2]},
     {{10, 55, 30, 10}, {60, 52, 20, 16}, {50, 50, 40, 20}}},
    {"no mode", 3, kThree, kThree, kThree},
    // The clamp runs whatever the mode: to 0 at the near edges, one pixel inside at the far ones.
    {"no mode, outside",
     0,
     {{-5, 290, 30, 10}, {190, -3, 20, 16}, {200, 0, 40, 20}},
     {{0, 290 - 3 - kPixel, 30, 10}, {190 - kPixel, 0, 20, 16}, {200, 0, 40, 20}},
     {{0, 290 - 3 - kPixel, 30, 10}, {190 - kPixel, 0, 20, 16}, {170 - kPixel, 0, 40, 20}}},
    {"right, reference outside",
     2,
     {{10, 40, 30, 10}, {200, 80, 40, 20}},
     {{180 - kPixel, 40, 30, 10}, {200, 80, 40, 20}},
     {{180 - kPixel, 40, 30, 10}, {170 - kPixel, 80, 40, 20}}},
    // The box reaches from the page's far edge to 0 before any card is looked at.
    {"left, all beyond the page",
     1,
     {{250, 40, 30, 10}, {230, 80, 40, 20}},
     {{180 - kPixel, 40, 30, 10}, {230, 80, 40, 20}},
     {{180 - kPixel, 40, 30, 10}, {170 - kPixel, 80, 40, 20}}},
    {"one card", 1, {{10, 40, 30, 10}}, {{10, 40, 30, 10}}, {{10, 40, 30, 10}}},
};

TEST_F(ArrangeTest, Aligning) {
  for (const AlignRow& row : kAligns) {
    Canvas last;
    Fill(last, row.boxes);
    last.wnd.AlignSelectedControls(row.mode);
    Expect(last, row.toLast, std::string(row.name) + " to the last");
    Canvas all;
    Fill(all, row.boxes);
    all.wnd.AlignSelectedControlsCtrl(row.mode);
    Expect(all, row.toAll, std::string(row.name) + " to all");
  }
}

struct ArrangeRow {
  const char* name;
  std::function<void(RVEditTemplateWnd&)> command;
  std::vector<CardRect> boxes;
  std::vector<CardRect> wanted;
};

auto Distribute(int mode) {
  return [mode](RVEditTemplateWnd& wnd) { wnd.DistributeSelectedControls(mode); };
}
auto Center(int mode, bool asGroup) {
  return [=](RVEditTemplateWnd& wnd) { wnd.JustifySelectedControls(mode, asGroup); };
}
auto SameSize(bool width, bool height) {
  return [=](RVEditTemplateWnd& wnd) { wnd.ResizeSelectedControls(width, height); };
}

const ArrangeRow kArranges[] = {
    {"across",
     Distribute(0),
     {{100, 1, 20, 5}, {10, 2, 20, 5}, {40, 3, 30, 5}},
     {{100, 1, 20, 5}, {10, 2, 20, 5}, {50, 3, 30, 5}}},
    {"down",
     Distribute(1),
     {{1, 100, 5, 20}, {2, 10, 5, 20}, {3, 40, 5, 30}},
     {{1, 100, 5, 20}, {2, 10, 5, 20}, {3, 50, 5, 30}}},
    {"overlapping",
     Distribute(0),
     {{10, 1, 40, 5}, {20, 2, 40, 5}, {30, 3, 40, 5}},
     {{10, 1, 40, 5}, {20, 2, 40, 5}, {30, 3, 40, 5}}},
    {"equal places keep the order of selection",
     Distribute(0),
     {{10, 1, 10, 5}, {10, 2, 20, 5}, {10, 3, 60, 5}},
     {{10, 1, 10, 5}, {5, 2, 20, 5}, {10, 3, 60, 5}}},
    {"two", Distribute(0), {{10, 1, 50, 5}, {30, 2, 20, 5}}, {{10, 1, 50, 5}, {40, 2, 20, 5}}},
    {"one", Distribute(0), {{-10, 1, 50, 5}}, {{-10, 1, 50, 5}}},
    {"up to the page's edge",
     Distribute(0),
     {{10, 1, 20, 5}, {60, 1, 20, 5}, {195, 1, 20, 5}},
     {{10, 1, 20, 5}, {102.5, 1, 20, 5}, {190 - kPixel, 1, 20, 5}}},

    {"each across", Center(0, false), {{10, 1, 20, 5}, {60, 2, 300, 5}}, {{95, 1, 20, 5}, {-45, 2, 300, 5}}},
    {"each down", Center(1, false), {{1, 10, 5, 97}, {2, 60, 5, 1}}, {{1, 100, 5, 97}, {2, 148, 5, 1}}},
    {"group across", Center(0, true), {{10, 1, 20, 5}, {60, 2, 30, 5}}, {{65, 1, 20, 5}, {115, 2, 30, 5}}},
    {"group down", Center(1, true), {{1, 10, 5, 20}, {2, 60, 5, 47}}, {{1, 100, 5, 20}, {2, 150, 5, 47}}},
    {"group wider than the page",
     Center(0, true),
     {{0, 1, 20, 5}, {200, 2, 30, 5}},
     {{-10, 1, 20, 5}, {190, 2, 30, 5}}},
    {"group at negative places",
     Center(0, true),
     {{-100, 1, 20, 5}, {-50, 2, 20, 5}},
     {{70, 1, 20, 5}, {120, 2, 20, 5}}},

    {"width", SameSize(true, false), {{10, 1, 20, 5}, {60, 2, 30, 9}}, {{10, 1, 30, 5}, {60, 2, 30, 9}}},
    {"height", SameSize(false, true), {{10, 1, 20, 5}, {60, 2, 30, 9}}, {{10, 1, 20, 9}, {60, 2, 30, 9}}},
    {"both", SameSize(true, true), {{10, 1, 20, 5}, {60, 2, 30, 9}}, {{10, 1, 30, 9}, {60, 2, 30, 9}}},
    // Only a far edge beyond the page's is brought back; to touch it is allowed, and to stand out at the near edge.
    {"over the far edges",
     SameSize(true, true),
     {{190, 290, 20, 5}, {-7, -8, 15, 5}, {60, 2, 30, 9}},
     {{180 - kPixel, 288 - kPixel, 30, 9}, {-7, -8, 30, 9}, {60, 2, 30, 9}}},
    {"up to the far edge", SameSize(true, false), {{180, 1, 20, 5}, {60, 2, 30, 9}}, {{180, 1, 30, 5}, {60, 2, 30, 9}}},
};

TEST_F(ArrangeTest, DistributingCentringSizing) {
  for (const ArrangeRow& row : kArranges) {
    Canvas canvas;
    Fill(canvas, row.boxes);
    const std::string before = canvas.Saved();
    row.command(canvas.wnd);
    Expect(canvas, row.wanted, row.name);
    const bool changed = canvas.Saved() != before;
    EXPECT_EQ(canvas.wnd.UndoCount(), changed || row.boxes.size() > 0 ? 2u : 1u) << row.name;
    canvas.wnd.ControlUndo();
    EXPECT_EQ(canvas.Saved(), before) << row.name;
  }
}

TEST_F(ArrangeTest, Stacking) {
  struct Row {
    std::vector<std::wstring> selected;
    void (RVEditTemplateWnd::*command)();
    const char* wanted;
  };
  const Row rows[] = {{{L"a", L"b"}, &RVEditTemplateWnd::ControlBringToFront, "b a d c"},
                      {{L"b", L"a"}, &RVEditTemplateWnd::ControlBringToFront, "a b d c"},
                      {{L"d", L"c"}, &RVEditTemplateWnd::ControlSendToBack, "b a d c"},
                      {{L"d"}, &RVEditTemplateWnd::ControlBringToFront, "d c b a"},
                      {{}, &RVEditTemplateWnd::ControlSendToBack, "d c b a"}};
  for (const Row& row : rows) {
    Canvas canvas;
    for (const wchar_t* id : {L"a", L"b", L"c", L"d"}) canvas.Add(id, {20, 20, 40, 20});
    canvas.wnd.SelectControls(row.selected);
    const std::size_t steps = canvas.wnd.UndoCount();
    (canvas.wnd.*row.command)();
    EXPECT_EQ(canvas.Stacked(), row.wanted);
    EXPECT_EQ(canvas.wnd.UndoCount(), steps + (row.selected.empty() ? 0 : 1)) << "recorded even when nothing moved";
    canvas.wnd.ControlUndo();
    EXPECT_EQ(canvas.Stacked(), "d c b a");
  }
}

// Without a place for the page only centring and stacking work.
TEST_F(ArrangeTest, NoPlacement) {
  Canvas canvas;
  Fill(canvas, kThree);
  canvas.wnd.SetDpi(0, 0);
  canvas.wnd.AlignSelectedControls(kAlignLeftEdges);
  canvas.wnd.AlignSelectedControlsCtrl(kAlignLeftEdges);
  canvas.wnd.DistributeSelectedControls(0);
  canvas.wnd.ResizeSelectedControls(true, true);
  Expect(canvas, kThree, "unchanged");
  canvas.wnd.JustifySelectedControls(0, false);
  Expect(canvas, {{90, 40, 30, 10}, {95, 20, 20, 16}, {85, 80, 40, 20}}, "centred");
}

}  // namespace
}  // namespace xrpt
