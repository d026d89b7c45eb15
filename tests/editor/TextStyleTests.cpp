// Text styles as files and as clipboard text.
#include <gmock/gmock.h>

#include <cmath>

#include "editor/TextStyles.h"
#include "model/RVCardLabel.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class TextStyles : public HostTest {
 protected:
  static tagStyleCfg Style(const std::wstring& name, double size = 12.0) {
    tagStyleCfg style;
    style.name = name;
    style.font = {L"Times", size, FontStyle::Bold};
    style.orientation = 30.0;
    style.color = 0x0000FF;
    return style;
  }
  std::vector<std::string> FileNames() {
    std::vector<std::string> names;
    for (const Path& file : host->files->List(host.Cfg(), kStyleEnding)) names.push_back(file.filename().string());
    return names;
  }
  std::wstring IdOf(std::wstring_view name) {
    std::wstring id;
    return host->styles->StyleName2Id(name, id) ? id : L"unknown";
  }
  static std::vector<std::string> Listed() {
    std::vector<std::string> names;
    for (const tagStyleCfg& row : ListStyles()) names.push_back(ToUtf8(row.name));
    return names;
  }
};

TEST_F(TextStyles, ComeBackAsTheyWereSaved) {
  EXPECT_TRUE(SaveStyle(Style(L"Title"), {}));
  EXPECT_TRUE(OpenStyle(L"Title") == Style(L"Title"));
  EXPECT_THAT(FileNames(), ElementsAre(ToUtf8(IdOf(L"Title")) + ".Title.XSTY"));
  EXPECT_EQ(ListStyles().at(0).color, 0x0000FFu);
  const std::string xml = TestHost::ReadFile(host.Cfg() / FileNames()[0]);
  EXPECT_THAT(xml, HasSubstr("<version>24.11.17</version>"));
  EXPECT_THAT(xml, HasSubstr("<orientation>30.00</orientation>"));
}

TEST_F(TextStyles, StartFromTheDefaultsWithoutAFile) {
  host.WriteCfg("S.Empty.XSTY", "<style><font/></style>");
  host.WriteCfg("S.Broken.XSTY", "<style>");
  for (const wchar_t* name : {L"", L"None", L"Empty", L"Broken", L"../S.Empty"}) {
    const tagStyleCfg style = OpenStyle(name);
    EXPECT_TRUE(style.font == Font()) << ToUtf8(name);
    EXPECT_EQ(style.color, kBlack);
  }
  EXPECT_THAT(Listed(), ElementsAre("")) << "a file without a font, or unreadable, is not listed";
}

TEST_F(TextStyles, AreCheckedInOrder) {
  SaveStyle(Style(L"Taken"), {});
  struct Row {
    std::wstring name;
    double size;
    StyleEdit edit;
    int message;
  };
  for (const Row& row :
       {Row{L"", 0.0, {}, kStyleNameMissing}, Row{L"a/b", 0.0, {}, kStyleNameNotValid},
        Row{std::wstring(201, L'x'), 9.0, {}, kStyleNameNotValid}, Row{L"New", 0.0, {}, kStyleSizeNotPositive},
        Row{L"Taken", std::nan(""), {}, 725}, Row{L"New", 0.5, {}, 0}, Row{L"Taken", 9.0, {}, kStyleExists},
        Row{L"Taken", 9.0, {L"Old", true, false}, kAskOverwriteStyle}, Row{L"Taken", 9.0, {L"Taken", false, false}, 0},
        Row{L"Taken", 9.0, {L"Taken", true, false}, 0},
        Row{L"Taken", 9.0, {L"Taken", true, true}, kAskOverwriteStyle}}) {
    EXPECT_EQ(CheckStyle(Style(row.name, row.size), row.edit), row.message) << ToUtf8(row.name) << " " << row.size;
  }
}

TEST_F(TextStyles, KeepTheirIdentifierAndWhatElseTheirFileHoldsWhenRenamed) {
  host.WriteCfg("S1.Old.XSTY",
                "<style><id>S1</id><name>Old</name><note>kept</note><font><size>9</size></font></style>");
  RVCardLabel label;
  label.styleName = L"Old";
  EXPECT_TRUE(SaveStyle(Style(L"New"), {L"Old"}));
  EXPECT_THAT(FileNames(), ElementsAre("S1.New.XSTY"));
  EXPECT_THAT(TestHost::ReadFile(host.Cfg() / "S1.New.XSTY"), HasSubstr("<note>kept</note>"));
  EXPECT_EQ(IdOf(L"New"), L"S1");
}

TEST_F(TextStyles, SavedAsNewLeaveTheOldOne) {
  SaveStyle(Style(L"Old"), {});
  EXPECT_TRUE(SaveStyle(Style(L"New"), {L"Old", false, true}));
  EXPECT_EQ(FileNames().size(), 2u);
  EXPECT_NE(IdOf(L"New"), IdOf(L"Old"));
}

TEST_F(TextStyles, RenamedOntoAnotherTakeItsPlace) {
  SaveStyle(Style(L"One"), {});
  SaveStyle(Style(L"Two"), {});
  const std::wstring id = IdOf(L"One");
  EXPECT_TRUE(SaveStyle(Style(L"Two", 20.0), {L"One", true}));
  EXPECT_THAT(FileNames(), ElementsAre(ToUtf8(id) + ".Two.XSTY"));
  EXPECT_EQ(OpenStyle(L"Two").font.size, 20.0);
}

TEST_F(TextStyles, NeverLeaveTheFolder) {
  host.WriteCfg("S1.Evil.XSTY", "<style><id>../../evil</id><name>Evil</name><font/></style>");
  EXPECT_TRUE(SaveStyle(Style(L"Evil"), {L"Evil"}));
  EXPECT_FALSE(std::filesystem::exists(host.Folder().parent_path() / "evil.Evil.XSTY"));
  PasteStyles("<styleClipboard><style><name>../up</name><font/></style></styleClipboard>");
  EXPECT_FALSE(std::filesystem::exists(host.Folder() / "up.XSTY"));
  EXPECT_EQ(RemoveStyles({L"../cfg/S1.Evil"}), 0);
}

TEST_F(TextStyles, ArePastedUnderFreeNames) {
  SaveStyle(Style(L"Title"), {});
  SaveStyle(Style(L"Title_1"), {});
  const std::string text = CopyStyles({L"Title", L"none"});
  EXPECT_THAT(text, HasSubstr("<styleClipboard><style>"));
  EXPECT_EQ(text.find("<?xml"), text.npos);
  const auto names = [](const std::string& clipboard) {
    std::string all;
    for (const std::wstring& name : PasteStyles(clipboard)) all += ToUtf8(name) + " ";
    return all;
  };
  EXPECT_EQ(names(text), "Title_2 ");
  EXPECT_NE(IdOf(L"Title_2"), IdOf(L"Title"));
  EXPECT_EQ(OpenStyle(L"Title_2").font.face, L"Times");
  const std::string declared =
      "<styleClipboard><?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<style><name>Title</name>"
      "<font/></style><?xml version=\"1.0\"?><style><name>Other</name><font/></style>"
      "<note/></styleClipboard>";
  EXPECT_EQ(names(declared + std::string(1, '\0')), "Title_3 Other ");
  for (const char* other : {"", "text", "<controlClipboard><style><name>X</name></style></controlClipboard>"}) {
    EXPECT_EQ(names(other), "") << other;
  }
}

TEST_F(TextStyles, TellTheHostWhenFilesChange) {
  class Counting final : public IdentifierCache {
   public:
    void invalidateGuid(GuidKind kind, bool changed) override {
      count += kind == GuidKind::Styles && changed ? 1 : 100;
    }
    int count = 0;
  };
  auto counting = std::make_unique<Counting>();
  const Counting& told = *counting;
  host->identifiers = std::move(counting);
  SaveStyle(Style(L"A"), {});
  EXPECT_EQ(told.count, 1);
  const std::string text = CopyStyles({L"A"});
  PasteStyles(text);
  EXPECT_EQ(told.count, 2);
  EXPECT_EQ(RemoveStyles({L"A", L"A_1", L"none"}), 2);
  EXPECT_EQ(told.count, 3);
  RemoveStyles({L"none"});
  PasteStyles("");
  EXPECT_EQ(told.count, 3);
  EXPECT_TRUE(FileNames().empty());
}

}  // namespace
}  // namespace xrpt
