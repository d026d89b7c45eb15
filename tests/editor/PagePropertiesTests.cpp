// The properties of a page while they are edited, and the one step that becomes of them.
#include <gmock/gmock.h>

#include "canvas/UndoTexts.h"
#include "editor/CDlgGlobalProperties.h"
#include "editor/RVEditControlWnd.h"
#include "model/RVCardImage.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

class PageProperties : public HostTest {
 protected:
  // What the user does to the page's properties, and OK.
  bool Edit(std::function<void(CDlgGlobalProperties&)> act) {
    port.editPage = std::move(act);
    return frame.OnConfig();
  }
  const RVGlobalProperties& Page(std::size_t index = 0) { return frame.Page(index).Page().properties; }

  AnsweringPort port;
  RVEditControlWnd frame{port};
};

TEST_F(PageProperties, FormatsAreKnownWhicheverWayThePaperLies) {
  RVGlobalProperties page;
  CDlgGlobalProperties dialog(page);
  EXPECT_STREQ(CDlgGlobalProperties::Formats()[dialog.Format()].name, "A4");
  dialog.SetLandscape(true);
  EXPECT_STREQ(CDlgGlobalProperties::Formats()[dialog.Format()].name, "A4");
  for (std::size_t format = 0; format < CDlgGlobalProperties::Formats().size(); ++format) {
    dialog.SetFormat(format);
    EXPECT_EQ(dialog.Format(), format);
    EXPECT_TRUE(dialog.IsLandscape()) << "it goes on lying as it did";
  }
  dialog.properties.width = 100.0;
  EXPECT_EQ(dialog.Format(), CDlgGlobalProperties::kOwnFormat);
  dialog.SetFormat(CDlgGlobalProperties::kOwnFormat);
  EXPECT_EQ(dialog.properties.width, 100.0);
}

TEST_F(PageProperties, AHiddenGridKeepsItsSteps) {
  RVGlobalProperties page;
  page.xgrid = 5.0;
  page.ygrid = 0.0;
  CDlgGlobalProperties dialog(page);
  EXPECT_TRUE(dialog.IsGridShown());
  dialog.ShowGrid(false);
  EXPECT_EQ(dialog.GridX(), 5.0);
  EXPECT_LT(dialog.properties.xgrid, 0.0);
  dialog.SetGrid(2.5, -4.0);
  EXPECT_FALSE(dialog.IsGridShown());
  dialog.ShowGrid(true);
  EXPECT_EQ(dialog.properties.xgrid, 2.5);
  EXPECT_EQ(dialog.properties.ygrid, 4.0);
}

TEST_F(PageProperties, ACoveringPictureFollowsThePaper) {
  RVGlobalProperties page;
  CDlgGlobalProperties dialog(page);
  EXPECT_FALSE(dialog.HasPicture());
  dialog.SetPicture("plant/boiler");
  EXPECT_EQ(dialog.Picture(), L"plant/boiler");
  dialog.SetFormat(0);
  dialog.SetLandscape(true);
  EXPECT_TRUE(dialog.CoversPage());
  EXPECT_EQ(dialog.properties.Background().width, 420.0);
  dialog.properties.Background().x = 10.0;
  dialog.SetFormat(1);
  EXPECT_EQ(dialog.properties.Background().width, 420.0) << "it did not cover any more";
  dialog.CoverPage();
  EXPECT_TRUE(dialog.CoversPage());
}

TEST_F(PageProperties, OkIsOneStepOverAllPagesThatGetThePaper) {
  frame.AddPage();
  frame.ShowPage(0);
  frame.SetModified(false);
  const std::size_t steps = frame.History().DoneNames().size();
  EXPECT_TRUE(Edit([](CDlgGlobalProperties& page) {
    page.SetFormat(0);
    page.properties.name = L"Cover";
    page.samePaperForAll = true;
  }));
  EXPECT_EQ(frame.History().DoneNames().size(), steps + 1);
  EXPECT_EQ(frame.History().NextUndoName().textId, text::kChangePage);
  EXPECT_TRUE(frame.IsModified());
  EXPECT_EQ(Page(0).width, 297.0);
  EXPECT_EQ(Page(1).width, 297.0);
  EXPECT_NE(Page(1).name, L"Cover");
  frame.Undo();
  EXPECT_EQ(Page(0).width, 210.0);
  EXPECT_EQ(Page(1).width, 210.0);
}

TEST_F(PageProperties, CancelAndNoChangeAreNoStep) {
  const std::size_t steps = frame.History().DoneNames().size();
  EXPECT_FALSE(Edit([](CDlgGlobalProperties&) {}));
  EXPECT_FALSE(frame.OnConfig()) << "cancelled";
  EXPECT_EQ(frame.History().DoneNames().size(), steps);
  EXPECT_FALSE(frame.IsModified());
  EXPECT_TRUE(Edit([](CDlgGlobalProperties& page) { page.ShowGrid(true); }));
  EXPECT_TRUE(frame.IsModified()) << "a grid is saved";
}

}  // namespace
}  // namespace xrpt
