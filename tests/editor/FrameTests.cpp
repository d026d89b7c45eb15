// The flows of the editor's frame: opening, naming and saving, pages, zoom steps, the unsaved-changes question.
#include <gtest/gtest.h>

#include "editor/CDlgEditor.h"
#include "editor/CommandCatalogue.h"
#include "host/TextCatalogue.h"
#include "support/AnsweringPort.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

class FrameTest : public HostTest {
 protected:
  static std::string Report(const std::string& name, int pages = 1) {
    std::string text = "<reportLayout><id>ID-" + name + "</id><name>" + name + "</name>";
    for (int i = 0; i < pages; ++i) text += "<page/>";
    return text + "</reportLayout>";
  }
  std::vector<std::string> Files() {
    std::vector<std::string> names;
    for (const Path& file : host->files->List(host.Cfg(), L".xrpt")) names.push_back(file.filename().string());
    return names;
  }

  AnsweringPort port;
};

TEST_F(FrameTest, ANamelessReportTakesTheLowestFreeNumber) {
  host.WriteCfg("A.report1.xrpt", Report("report1"));
  host.WriteCfg("B.report3.xrpt", Report("report3"));
  RVEditControlWnd frame(port);
  EXPECT_EQ(frame.Caption(), host->texts->Text(32468));
  frame.SetModified(true);
  ASSERT_TRUE(frame.Save());
  EXPECT_EQ(frame.Report().name, L"report2");
  EXPECT_FALSE(frame.IsModified());
  EXPECT_EQ(host->settings->RegistryText(L"LastInforme"), L"report2");
  EXPECT_EQ(Files().size(), 3u);
}

TEST_F(FrameTest, SavingUnderAnotherNameMakesAReportOfItsOwn) {
  host.WriteCfg("ID-one.one.xrpt", Report("one"));
  CDlgEditor editor(port);
  ASSERT_TRUE(editor.Setup(L"one").loaded);
  editor.OnTemplateSaveAs(L"two");
  EXPECT_NE(editor.Frame().Report().id, L"ID-one");
  EXPECT_EQ(Files().size(), 2u);
  editor.OnTemplateRename(L"three");
  EXPECT_EQ(Files().size(), 2u) << "a rename alone writes nothing";
  EXPECT_TRUE(editor.OnCommand(CDlgEditor::kSaveCommand));
  EXPECT_EQ(Files().size(), 3u);
  EXPECT_TRUE(editor.OnCommand(CDlgEditor::kSaveAsCommand));
  EXPECT_EQ(port.passed, std::vector<int>{CDlgEditor::kSaveAsCommand});
  EXPECT_FALSE(editor.OnCommand(1));
}

TEST_F(FrameTest, TheQuestionIsAskedOnlyAboutChangesAndAnsweringNoLetsThemGo) {
  CDlgEditor editor(port);
  editor.Save();
  EXPECT_TRUE(port.asked.empty());
  editor.Frame().SetModified(true);
  editor.Save();
  EXPECT_EQ(port.asked, std::vector<int>{32472});
  EXPECT_FALSE(editor.Frame().IsModified());
  EXPECT_TRUE(Files().empty());
}

TEST_F(FrameTest, OpeningTheReportThatIsOpenDoesNothingAtAll) {
  host.WriteCfg("ID-one.one.xrpt", Report("one", 3));
  host.WriteCfg("plain.xrpt", Report("plain"));
  RVEditControlWnd frame(port);
  frame.Setup(L"one");
  EXPECT_EQ(port.windows, 3);
  frame.SetModified(true);
  port.chosen = L"one";
  EXPECT_FALSE(frame.OpenFromList());
  EXPECT_TRUE(frame.IsModified());
  EXPECT_EQ(frame.PageCount(), 3u);
  port.chosen = L"plain";
  EXPECT_TRUE(frame.OpenFromList());
  EXPECT_EQ(frame.Report().name, L"plain");
  EXPECT_EQ(frame.Report().id, L"ID-plain");
  EXPECT_FALSE(frame.IsModified());
  EXPECT_EQ(port.windows, 1);
}

TEST_F(FrameTest, PagesComeAndGoButOneStays) {
  RVEditControlWnd frame(port);
  EXPECT_FALSE(frame.DeletePage());
  frame.AddPage();
  EXPECT_EQ(frame.CurrentPageIndex(), 1u);
  EXPECT_TRUE(frame.ShowPage(0));
  EXPECT_FALSE(frame.ShowPage(2));
  EXPECT_FALSE(frame.DeletePage()) << "answered with no";
  EXPECT_EQ(port.asked, std::vector<int>{60448});
  port.answer = Answer::Yes;
  EXPECT_TRUE(frame.DeletePage());
  EXPECT_EQ(frame.PageCount(), 1u);
  EXPECT_EQ(port.windows, 1);
}

TEST_F(FrameTest, OneCardEditedMarksTheReportAndSwitchingTheGridKeepsItsStep) {
  RVEditControlWnd frame(port);
  EXPECT_FALSE(frame.IsGridOn());
  EXPECT_TRUE(frame.ToggleGrid());
  EXPECT_DOUBLE_EQ(frame.CurrentPage().Page().properties.xgrid, 3.0);
  EXPECT_TRUE(frame.IsModified());
  frame.ToggleGrid();
  EXPECT_DOUBLE_EQ(frame.CurrentPage().Page().properties.xgrid, -3.0);
}

TEST(ZoomSteps, StepsOfHalfFromAnyZoom) {
  struct Row {
    double zoom, in, out;
  };
  for (const Row& row : {Row{1.0, 1.5, 0.5}, Row{-0.73, 1.0, 0.5}, Row{-0.2, 0.5, 0.2}, Row{-9.9, 10.0, 9.5},
                         Row{-12.0, 12.0, 10.0}, Row{-1.0, 1.5, 0.5}}) {
    EXPECT_DOUBLE_EQ(NextZoomIn(row.zoom), row.in) << row.zoom;
    EXPECT_DOUBLE_EQ(NextZoomOut(row.zoom), row.out) << row.zoom;
  }
}

TEST_F(FrameTest, ZoomIsRefusedPastItsEndsAndTheBoxFollows) {
  RVEditControlWnd frame(port);
  EXPECT_TRUE(frame.SetZoom(10.0));
  EXPECT_FALSE(frame.ZoomIn());
  EXPECT_EQ(frame.ZoomEntry(), 21);
  EXPECT_TRUE(frame.SetZoom(0.5));
  EXPECT_FALSE(frame.ZoomOut());
  EXPECT_EQ(frame.ZoomEntry(), 2);
  frame.FitWidth();
  EXPECT_EQ(frame.ZoomEntry(), RVEditControlWnd::kFitWidthEntry);
  frame.SetZoomEntry(RVEditControlWnd::kFitPageEntry);
  EXPECT_LT(frame.CurrentPage().Zoom(), 0.0);
  EXPECT_EQ(frame.ZoomEntry(), RVEditControlWnd::kFitPageEntry);
}

TEST_F(FrameTest, AFittedPageGoesOnFittingTheSameWay) {
  RVEditControlWnd frame(port, EditingOptions::Comfort());
  const auto resize = [&](double width) { frame.CurrentPage().Edit({0, 0}).Properties().width = width; };
  for (const int entry : {RVEditControlWnd::kFitPageEntry, RVEditControlWnd::kFitWidthEntry}) {
    const auto fits = [&](const char* after) {
      EXPECT_EQ(frame.ZoomEntry(), entry) << after;
      const double zoom = frame.CurrentPage().Zoom();
      frame.SetZoomEntry(entry);
      EXPECT_EQ(frame.CurrentPage().Zoom(), zoom) << after << " the page does not fit";
    };
    frame.SetZoomEntry(entry);
    frame.SetOrientation(0);
    fits("a turn");
    frame.Undo();
    fits("undo of it");
    resize(130.0);
    fits("another width");
    frame.Undo();
    fits("undo of that");
    frame.Redo();
    fits("redo");
    frame.Undo();
  }
}

TEST(CommandCatalogue, NamesAndKeysAreTheirOwnAndEveryTextIsWritten) {
  std::set<std::string> names;
  std::set<std::string> keys;
  for (const Command& command : CommandCatalogue()) {
    EXPECT_TRUE(names.insert(command.name).second) << command.name;
    EXPECT_TRUE(keys.insert(command.keys).second) << command.name << " shares " << command.keys;
    for (const Language language : {Language::English, Language::Spanish}) {
      const TextCatalogue texts(language);
      for (const int id : {command.textId, command.HintTextId(), command.groupTextId}) {
        EXPECT_NE(texts.Text(id).front(), L'#') << command.name << " " << id;
      }
    }
  }
}

}  // namespace
}  // namespace xrpt
