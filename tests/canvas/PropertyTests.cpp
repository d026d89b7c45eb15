// Thousands of gestures and commands nobody would think of: whatever the user does, the page stays a page, and the way
// back leads to where it began.
#include <rapidcheck.h>

#include <cstdlib>

#include "canvas/CanvasDriver.h"
#include "canvas/MouseState.h"

namespace xrpt {
namespace {

// RC_PARAMS of the environment says otherwise.
class PropertyTest : public HostTest {
 protected:
  static void SetUpTestSuite() { ::setenv("RC_PARAMS", "max_success=2000 max_size=200", 0); }
};

int Between(int low, int high) { return *rc::gen::inRange(low, high + 1); }
bool Chance(int percent) { return Between(1, 100) <= percent; }

Point AnyPoint(const Canvas& canvas) {
  // Often on a card, where something happens.
  const auto& cards = canvas.page.cards;
  if (!cards.IsEmpty() && Chance(60)) {
    const auto index = static_cast<std::size_t>(Between(0, static_cast<int>(cards.Size()) - 1));
    const Rect rect = ToPixels(canvas.wnd.Placement(), RectOf(cards[index]));
    return {rect.left + Between(0, std::max(0, rect.Width() - 1)),
            rect.top + Between(0, std::max(0, rect.Height() - 1))};
  }
  return {Between(-50, 1500), Between(-50, 2000)};
}

void AddCards(Canvas& canvas, int count) {
  for (int i = 0; i < count; ++i) {
    const double width = Between(20, 600) / 10.0;
    const double height = Between(20, 600) / 10.0;
    canvas.Add(L"card" + std::to_wstring(i), {Between(0, 1500) / 10.0, Between(0, 2300) / 10.0, width, height});
  }
}

void Gesture(Canvas& canvas) {
  const MouseFlags flags{Chance(25), Chance(25)};
  const DragModifiers held{Chance(20), Chance(20)};
  const Point from = AnyPoint(canvas);
  Point to = from;
  canvas.Press(from, flags);
  for (int moves = Between(0, 3); moves > 0; --moves) {
    to = Chance(50) ? Point{to.x + Between(-60, 60), to.y + Between(-60, 60)} : AnyPoint(canvas);
    canvas.Move(to, held);
  }
  if (Chance(10)) return canvas.port.ReleaseCapture();
  if (Chance(5)) canvas.wnd.ControlUndo();
  canvas.Release(to);
}

using Step = std::function<void(Canvas&)>;

// Those that leave the page's properties and what lies on it inside the rules.
const std::vector<Step>& Commands() {
  static const std::vector<Step> commands = {
      [](Canvas& c) {
        c.wnd.OnKeyDown(Between(key::Left, key::Down), {Chance(30), false});
      },
      [](Canvas& c) { c.wnd.ControlCopy(); },
      [](Canvas& c) { c.wnd.ControlPaste(); },
      [](Canvas& c) { c.wnd.ControlCut(); },
      [](Canvas& c) {
        if (Chance(30)) c.wnd.ControlDelete();
      },
      [](Canvas& c) { c.wnd.ControlSelectAll(); },
      [](Canvas& c) { c.wnd.AlignSelectedControls(1 << Between(0, 6)); },
      [](Canvas& c) { c.wnd.AlignSelectedControlsCtrl(1 << Between(0, 6)); },
      [](Canvas& c) { c.wnd.DistributeSelectedControls(Between(0, 1)); },
      [](Canvas& c) { c.wnd.ControlBringToFront(); },
      [](Canvas& c) { c.wnd.ControlSendToBack(); },
      [](Canvas& c) { c.wnd.ResizeSelectedControls(Chance(50), Chance(50)); },
      [](Canvas& c) { c.wnd.AddControlAtPointer(); },
      [](Canvas& c) {
        if (c.page.cards.IsEmpty()) return;
        c.wnd.SelectControlById(c.page.cards[c.page.cards.Size() / 2].id);
      },
  };
  return commands;
}

// What changes the view and the way of working, and no card.
const std::vector<Step>& Views() {
  static const std::vector<Step> views = {
      [](Canvas& c) { c.wnd.SetZoom(Between(1, 6) * 0.5); },
      [](Canvas& c) {
        c.wnd.SetMode(Chance(50) ? 0 : 101);
        c.wnd.InitializeScrollBars(false);
      },
      [](Canvas& c) { c.wnd.ScrollTo(Between(0, 900), Between(0, 900)); },
      [](Canvas& c) { c.SetGrid(Between(-3, 12), Between(-3, 12)); },
      [](Canvas& c) { c.wnd.SetSmartGuides(Chance(50)); },
      [](Canvas& c) {
        const int tools[] = {0, 1, 3, 4, 8, 9, 10, 136, kPointer, kPointer};
        c.wnd.SetInsertKind(tools[Between(0, 9)]);
      },
      [](Canvas& c) {
        c.wnd.OnTimer();
        c.wnd.OnRButtonUp(AnyPoint(c));
      },
      [](Canvas& c) {
        c.port.client = {0, 0, Between(100, 2000), Between(100, 2000)};
        c.wnd.OnSize();
      },
  };
  return views;
}

void AnyStep(Canvas& canvas) {
  if (Chance(50)) return Gesture(canvas);
  const auto& steps = Chance(70) ? Commands() : Views();
  steps[static_cast<std::size_t>(Between(0, static_cast<int>(steps.size()) - 1))](canvas);
}

void CheckInvariants(const Canvas& canvas) {
  std::set<std::wstring> ids;
  for (std::size_t i = 0; i < canvas.page.cards.Size(); ++i) {
    const RVCardControl& card = canvas.page.cards[i];
    RC_ASSERT(ids.insert(card.id).second);
    RC_ASSERT(card.width > 0.0 && card.height > 0.0);
  }
  std::set<std::wstring> selected;
  for (const std::wstring& id : canvas.wnd.Selection().Ids()) {
    RC_ASSERT(ids.count(id) == 1);
    RC_ASSERT(selected.insert(id).second);
  }
  RC_ASSERT(canvas.wnd.CurrentMouseState() == kIdle);
  RC_ASSERT(!canvas.port.captured);
  RC_ASSERT(!canvas.wnd.CurrentGesture().Band());
  RC_ASSERT(canvas.wnd.UndoCount() >= 1u && canvas.wnd.UndoCount() <= 20u);
}

// Gestures keep cards on the page. Each card of a group goes to the grid by itself when it is let go, so half a step
// may be off, and a pixel of the screen.
void CheckOnPage(const Canvas& canvas) {
  const PagePlacement place = canvas.wnd.Placement();
  const GridSteps grid = GridOf(canvas.page.properties);
  const double across = place.PixelWidth() + std::max(0.0, grid.x) / 2;
  const double down = place.PixelHeight() + std::max(0.0, grid.y) / 2;
  for (std::size_t i = 0; i < canvas.page.cards.Size(); ++i) {
    const CardRect card = RectOf(canvas.page.cards[i]);
    RC_ASSERT(card.x >= -across && card.y >= -down);
    RC_ASSERT(card.x + card.width <= place.pageWidth + across);
    RC_ASSERT(card.y + card.height <= place.pageHeight + down);
  }
}

template <class Property>
void ExpectHolds(const char* what, const Property& property) {
  EXPECT_TRUE(rc::check(what, property)) << what;
}

TEST_F(PropertyTest, WhateverIsDoneThePageIsAPage) {
  ExpectHolds("invariants hold after every step", [] {
    Canvas canvas(*rc::gen::element(96, 127, 144), 127);
    AddCards(canvas, Between(0, 8));
    for (int steps = Between(1, 40); steps > 0; --steps) {
      AnyStep(canvas);
      CheckInvariants(canvas);
    }
  });
}

TEST_F(PropertyTest, UndoLeadsToTheStartAndRedoToTheEnd) {
  ExpectHolds("undo all, redo all", [] {
    Canvas canvas;
    AddCards(canvas, Between(0, 6));
    const std::string start = canvas.Saved();
    for (int steps = Between(1, 40); steps > 0 && canvas.wnd.UndoCount() < 19; --steps) {
      const auto grid = std::pair(canvas.page.properties.xgrid, canvas.page.properties.ygrid);
      AnyStep(canvas);
      canvas.SetGrid(grid.first, grid.second);  // the grid is no part of the history
    }
    const std::string end = canvas.Saved();
    const std::size_t count = canvas.wnd.UndoCount();
    while (canvas.wnd.IsActionUndoEnabled()) {
      canvas.wnd.ControlUndo();
      CheckInvariants(canvas);
    }
    RC_ASSERT(canvas.Saved() == start);
    while (canvas.wnd.UndoCount() < count) {
      canvas.wnd.ControlRedo();
      CheckInvariants(canvas);
    }
    RC_ASSERT(canvas.Saved() == end);
  });
}

// One card whatever is done to it, several when they are moved: a group that is resized may turn inside out beyond the
// edge, since the edge of the whole is what the page holds.
void MoveAll(Canvas& canvas) {
  if (Chance(20)) return canvas.wnd.OnKeyDown(Between(key::Left, key::Down), {Chance(30), false});
  const Rect rect = canvas.wnd.SelectedRects().front();
  const Point from{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  canvas.Press(from);
  canvas.Move({from.x + Between(-1500, 1500), from.y + Between(-1500, 1500)});
  canvas.Release(canvas.wnd.LastMousePoint());
}

TEST_F(PropertyTest, DragsStayOnThePage) {
  ExpectHolds("cards stay on the page", [] {
    Canvas canvas;
    const bool alone = Chance(50);
    AddCards(canvas, alone ? 1 : Between(2, 6));
    canvas.SetGrid(*rc::gen::element(0.0, 5.0, 7.0), *rc::gen::element(-3.0, 4.0));
    canvas.wnd.SetSmartGuides(Chance(50));
    for (int steps = Between(1, 15); steps > 0; --steps) {
      if (!alone) canvas.wnd.ControlSelectAll();
      alone ? Gesture(canvas) : MoveAll(canvas);
      CheckOnPage(canvas);
    }
  });
}

}  // namespace
}  // namespace xrpt
