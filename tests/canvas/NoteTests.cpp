// What the editor remembers beside the report: hands leave locked and hidden cards alone, groups stay together, and the
// page itself does not change by any of it.
#include <gmock/gmock.h>

#include "canvas/CanvasDriver.h"
#include "canvas/WindowPainter.h"

namespace xrpt {
namespace {

class Notes : public HostTest {
 protected:
  Notes() {
    canvas.wnd.SetOptions(EditingOptions::Comfort());
    canvas.wnd.SetNotes(&notes, [this] { ++changes; });
    canvas.Add(L"c", {20, 60, 40, 20});  // 200, 400 to 400, 500
    canvas.AddTwo();
    before_ = canvas.Saved();
  }
  void Click(Point at, MouseFlags flags = {}) {
    canvas.Press(at, flags);
    canvas.Release(at);
  }
  void Select(const std::vector<std::wstring>& ids) { canvas.wnd.SelectControls(ids); }

  CardNotes notes;
  Canvas canvas;
  std::string before_;
  int changes = 0;
};

TEST_F(Notes, LockedCardsAreOutOfReach) {
  Select({L"a"});
  canvas.wnd.LockSelected(true);
  EXPECT_EQ(changes, 1);
  canvas.wnd.ClearSelection();
  Click({300, 250});
  EXPECT_EQ(canvas.Selected(), "");
  canvas.wnd.ControlSelectAll();
  EXPECT_EQ(canvas.Selected(), "b c");
  canvas.Drag({120, 120}, {1100, 700});
  EXPECT_EQ(canvas.Selected(), "b c");
  // A list may select it; nothing moves, arranges or deletes it.
  Select({L"a", L"b"});
  canvas.wnd.OnKeyDown(key::Down, {});
  canvas.wnd.OnKeyDown(key::Down, {false, false, true});
  canvas.wnd.AlignSelectedControls(kAlignTopEdges);
  ExpectBox(canvas.Box(L"a"), {20, 20, 40, 20}, "locked");
  canvas.wnd.DeleteSelectedControls();
  EXPECT_EQ(canvas.Stacked(), "a c");
  canvas.wnd.UnlockAll();
  Click({300, 250});
  EXPECT_EQ(canvas.Selected(), "a");
}

TEST_F(Notes, HiddenCardsAreSavedAndNeitherSeenNorHit) {
  Select({L"a"});
  canvas.wnd.HideSelected();
  EXPECT_EQ(canvas.Selected(), "");
  EXPECT_TRUE(canvas.wnd.IsHidden(*canvas.page.cards.Find(L"a")));
  EXPECT_TRUE(canvas.wnd.HasNoted(&CardNote::hidden));
  Click({300, 250});
  EXPECT_EQ(canvas.Selected(), "");
  EXPECT_EQ(canvas.Saved(), before_);
  EXPECT_FALSE(canvas.wnd.IsActionUndoEnabled());
  canvas.wnd.ShowAll();
  EXPECT_TRUE(notes.IsEmpty());
}

TEST_F(Notes, AGroupIsSelectedMovedAndLetGoTogether) {
  Select({L"a", L"c"});
  canvas.wnd.GroupSelected(true);
  canvas.wnd.ClearSelection();
  Click({300, 250});
  EXPECT_EQ(canvas.Selected(), "a c");
  canvas.Drag({300, 250}, {350, 250});
  ExpectBox(canvas.Box(L"c"), {30, 60, 40, 20}, "along with a");
  Click({700, 250}, kCtrl);
  EXPECT_EQ(canvas.Selected(), "a c b");
  Click({360, 450}, kCtrl);
  EXPECT_EQ(canvas.Selected(), "b");
  canvas.Drag({1100, 110}, {440, 260});  // a band that touches a only
  EXPECT_THAT(canvas.Selected(), ::testing::HasSubstr("c"));
  EXPECT_TRUE(canvas.wnd.SelectOnlyAt({360, 450}));
  EXPECT_EQ(canvas.Selected(), "c");
  canvas.wnd.GroupSelected(false);
  Click({360, 250});
  EXPECT_EQ(canvas.Selected(), "a");
  EXPECT_EQ(notes.FreeGroup(), 2);
}

TEST_F(Notes, LinesOfThePageAreSnappedTo) {
  canvas.wnd.SetSmartGuides(true);
  canvas.wnd.SetLines({{}, {93.0}});
  EXPECT_EQ(changes, 1);
  canvas.wnd.SetLines({{}, {94.0}}, true);
  EXPECT_EQ(changes, 1) << "still being dragged";
  canvas.wnd.SetLines({{}, {93.0}});
  canvas.Drag({300, 450}, {300 + 163, 450});  // c, its right edge two pixels short of 93 mm
  EXPECT_DOUBLE_EQ(canvas.Box(L"c").x + canvas.Box(L"c").width, 93.0);
  canvas.wnd.SetLines({});
  EXPECT_TRUE(notes.IsEmpty());
}

TEST_F(Notes, WithoutNotesNothingIsHeld) {
  canvas.wnd.SetNotes(nullptr, {});
  Select({L"a"});
  canvas.wnd.LockSelected(true);
  canvas.wnd.HideSelected();
  canvas.wnd.GroupSelected(true);
  canvas.wnd.SetLines({{1.0}, {}});
  EXPECT_EQ(canvas.Selected(), "a");
  EXPECT_FALSE(canvas.wnd.AreSelectedLocked());
  EXPECT_TRUE(canvas.wnd.Lines().IsEmpty());
}

}  // namespace
}  // namespace xrpt
