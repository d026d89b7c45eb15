// The editor as a host embeds it: when its frame comes, what it does on the host's messages and commands, and that
// nothing thrown inside gets out.
#include <gmock/gmock.h>

#include <stdexcept>

#include "canvas/PageEdit.h"
#include "editor/CDlgEditor.h"
#include "editor/CDlgGlobalProperties.h"
#include "editor/CommandCatalogue.h"
#include "model/RVCardLabel.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class EmbeddedEditor : public HostTest {
 protected:
  AnsweringPort port;
};

TEST_F(EmbeddedEditor, HasNoWindowsBeforeItsViewIsThereAndRemembersItsBars) {
  {
    CDlgEditor editor(port);
    EXPECT_EQ(port.windows, 0);
    EXPECT_TRUE(port.barSections.empty());
    editor.OnInitialUpdate();
    editor.OnInitialUpdate();
    EXPECT_EQ(port.windows, 1);
    EXPECT_THAT(port.barSections, ElementsAre(L"+ReportRibbonBars"));
  }
  EXPECT_EQ(port.windows, 0);
  EXPECT_THAT(port.barSections, ElementsAre(L"+ReportRibbonBars", L"-ReportRibbonBars"));
}

TEST_F(EmbeddedEditor, OffersTheDatesOfTheReport) {
  CDlgEditor editor(port);
  editor.OnInitialUpdate();
  const XmlNode fields = editor.DatabaseFields().Root();
  EXPECT_EQ(fields.Tag(), "fields");
  ASSERT_EQ(fields.Size(), 3u);
  editor.CreateDatabaseFields();
  EXPECT_EQ(editor.DatabaseFields().Root().Size(), 3u) << "made anew, not added to";
  const std::vector<NamedValue>& offered = editor.Frame().Properties().DatabaseFields();
  ASSERT_EQ(offered.size(), 3u);
  EXPECT_EQ(offered[1].value, L"BEGIN_DATE");
  EXPECT_EQ(offered[1].name, HostText(32531));
}

TEST_F(EmbeddedEditor, CarriesOutEveryCommandUnderItsName) {
  CDlgEditor editor(port);
  EXPECT_FALSE(editor.OnUpdateUndo());
  EXPECT_TRUE(editor.OnAddPage());
  EXPECT_TRUE(editor.OnUpdatePreviousPage());
  EXPECT_TRUE(editor.OnChangeComboBoxPage(0));
  EXPECT_FALSE(editor.OnChangeComboBoxPage(9));
  EXPECT_EQ(editor.Frame().CurrentPageIndex(), 0u);
  EXPECT_TRUE(editor.OnChangeComboBoxZoom(4));
  EXPECT_EQ(editor.Frame().CurrentPage().Zoom(), 1.5);
  EXPECT_TRUE(editor.OnNewLabel());
  EXPECT_TRUE(editor.OnSelectControls());
  EXPECT_FALSE(editor.OnAlignLeft()) << "nothing is selected";
  EXPECT_FALSE(editor.RunCommand("NoSuchCommand"));
  tagEditMenuState menu;
  editor.OnEditMenuGetState(menu);
  port.editPage = [](CDlgGlobalProperties& page) { page.properties.rounded = 5.0; };
  EXPECT_TRUE(editor.OnConfig());
  EXPECT_EQ(editor.Frame().CurrentPage().Page().properties.rounded, 5.0);
  EXPECT_TRUE(editor.OnUpdateSave());
  EXPECT_TRUE(editor.OnUndo());
}

TEST_F(EmbeddedEditor, ChangesFromOutsideCountAndTheTimerWaitsItsTurn) {
  CDlgEditor editor(port);
  editor.OnInitialUpdate();
  editor.OnCtrlHasChanged();
  EXPECT_TRUE(editor.Frame().IsModified());
  editor.OnTimerStateChange(0);
  editor.OnTimerStateChange(1);
  EXPECT_TRUE(port.timers.empty());
  editor.Deliver();
  EXPECT_THAT(port.timers, ElementsAre(false, true));
}

TEST_F(EmbeddedEditor, LetsNothingThrownOut) {
  CDlgEditor editor(port);
  editor.OnInitialUpdate();
  port.throwing = true;
  editor.Frame().OnCtrlHasChanged();
  EXPECT_NO_THROW({
    editor.Save();
    EXPECT_FALSE(editor.OnConfig());
    EXPECT_FALSE(editor.OnCommand(CDlgEditor::kSaveAsCommand));
    editor.OnTimerStateChange(1);
    editor.Deliver();
  });
  EXPECT_THAT(host.logger->Text(4), HasSubstr("CDlgEditor::Deliver(): the host's window is gone"));
  port.throwing = false;
  EXPECT_TRUE(editor.OnAddPage()) << "it goes on working";
}

}  // namespace
}  // namespace xrpt
