// Reports as files: names, identities, revisions, what is kept and what gives way.
#include <cmath>

#include "CardSupport.h"
#include "model/RVCardImage.h"
#include "model/RVCardLabel.h"
#include "platform/NamedFiles.h"

namespace xrpt {
namespace {

class ReportFiles : public HostTest {
 protected:
  // A report file of the configuration folder with these elements in its root.
  Path Write(const std::string& fileName, const std::string& elements) {
    return host.WriteCfg(fileName, "<?xml version=\"1.0\"?><reportLayout>" + elements + "</reportLayout>");
  }
  std::vector<std::string> FileNames() {
    std::vector<std::string> names;
    for (const Path& file : host->files->List(host.Cfg(), kReportEnding)) names.push_back(file.filename().string());
    return names;
  }
  static std::string ValueOf(const std::string& xml, const std::string& name) {
    const std::size_t from = xml.find("<" + name + ">") + name.size() + 2;
    return xml.substr(from, xml.find("</" + name + ">") - from);
  }
};

TEST_F(ReportFiles, WithoutAPageLoadAsOneNewPage) {
  for (const char* elements : {"", "<id>A</id>", "<pages/>"}) {
    RVReport report;
    EXPECT_TRUE(report.LoadFile(Write("A.x.xrpt", elements)).loaded);
    ASSERT_EQ(report.pages.size(), 1u) << elements;
    EXPECT_EQ(report.pages[0]->properties.width, 210.0);
    EXPECT_EQ(report.pages[0]->properties.xgrid, -3.0);
  }
}

TEST_F(ReportFiles, ThatCannotBeReadOpenAsNewAndSayWhy) {
  for (const char* bytes : {"", "<reportLayout>", "<a/><b/>", "no xml", "<a>\xFF</a>"}) {
    RVReport report;
    report.name = L"former";
    const LoadResult result = report.LoadFile(host.WriteCfg("A.bad.xrpt", bytes));
    EXPECT_FALSE(result.loaded) << bytes;
    EXPECT_FALSE(result.error.message.empty()) << bytes;
    EXPECT_EQ(report.name, L"");
    EXPECT_EQ(report.pages.size(), 1u);
  }
}

TEST_F(ReportFiles, OpenByNameOrPathAndTakeTheAskedName) {
  const Path file = Write("A.Energy.xrpt", "<id>A</id><name>Energy</name>");
  Write("B.Other.Energy.xrpt", "<id>B</id><name>Other.Energy</name>");
  struct Row {
    std::wstring asked;
    std::wstring name;
    bool keepsId;
  };
  const Path copy = Write("A.Copy.xrpt", "<id>A</id><name>Energy</name>");
  for (const Row& row : {Row{L"Energy", L"Energy", true}, Row{FromUtf8(file.string()), L"Energy", true},
                         Row{L"Copy", L"Copy", false}, Row{FromUtf8(copy.string()), L"Copy", false},
                         Row{L"../cfg/A.Energy", L"", false}, Row{L"nothing", L"", false}}) {
    RVReport report;
    report.Load(row.asked);
    EXPECT_EQ(report.name, row.name) << ToUtf8(row.asked);
    EXPECT_EQ(report.id == L"A", row.keepsId) << ToUtf8(row.asked);
  }
}

TEST_F(ReportFiles, ARenamedFileIsSavedBesideTheOldOne) {
  Write("A.Copy.xrpt", "<id>A</id><name>Energy</name>");
  RVReport report;
  report.Load(L"Copy");
  EXPECT_TRUE(report.Save());
  const std::vector<std::string> names = FileNames();
  ASSERT_EQ(names.size(), 2u);
  EXPECT_EQ(names[0], ToUtf8(report.id) + ".Copy.xrpt");
  EXPECT_EQ(names[1], "A.Copy.xrpt");
}

TEST_F(ReportFiles, ANamelessReportTakesTheFirstFreeName) {
  Write("X.report1.xrpt", "");
  RVReport report;
  EXPECT_TRUE(report.Save());
  EXPECT_EQ(report.name, L"report2");
  EXPECT_EQ(host->settings->RegistryText(L"LastInforme"), L"report2");
  EXPECT_FALSE(report.modified);
  report.name = L"../escape";
  EXPECT_EQ(report.Save().outcome, SaveOutcome::BadName);
  EXPECT_EQ(FileNames().size(), 2u);
}

TEST_F(ReportFiles, AFailedSaveSaysWhyAndLeavesTheReportModified) {
  RVReport report;
  const Path folder = host.Cfg() / "taken.xrpt";
  std::filesystem::create_directories(folder);
  const SaveResult failed = report.SaveTo(folder);
  EXPECT_EQ(failed.outcome, SaveOutcome::Failed);
  EXPECT_NE(failed.reason, "");
  EXPECT_EQ(TestHost::ReadFile(failed.kept).find("<?xml"), 0u) << failed.kept;
  EXPECT_NE(TextOf(failed).find(L"taken.xrpt"), std::wstring::npos);
  EXPECT_TRUE(report.modified);
  EXPECT_TRUE(report.SaveTo(host.Cfg() / "free.xrpt"));
  EXPECT_FALSE(report.modified);
}

TEST_F(ReportFiles, GoBackToTheFileTheyWereReadFrom) {
  const SaveRules back{true, true};
  const Path elsewhere = TestHost::WriteFile(host.Folder() / "other" / "copy.xrpt",
                                             "<reportLayout><id>A</id><name>Energy</name></reportLayout>");
  RVReport report;
  report.LoadFile(elsewhere);
  EXPECT_TRUE(report.Save(back));
  EXPECT_EQ(FileNames().size(), 0u);
  EXPECT_EQ(report.File(), elsewhere);
  report.name = L"Renamed";
  EXPECT_TRUE(report.Save(back));
  EXPECT_EQ(FileNames(), std::vector<std::string>{"A.Renamed.xrpt"});
  EXPECT_TRUE(report.Save(back)) << "its own file by now";
  EXPECT_EQ(FilesOfName(*host->files, host.Cfg(), L"Renamed", kReportEnding).size(), 1u);
  Write("B.Renamed.xrpt", "");
  Write("C.Not.Renamed.xrpt", "");
  EXPECT_EQ(FilesOfName(*host->files, host.Cfg(), L"Renamed", kReportEnding).size(), 2u);
}

TEST_F(ReportFiles, AskBeforeTheyReplaceWhatOthersWrote) {
  const SaveRules asking{true, true};
  const Path file = Write("A.Energy.xrpt", "<id>A</id><name>Energy</name>");
  RVReport report;
  report.Load(L"Energy");
  EXPECT_FALSE(report.HasChangedOnDisk());
  Write("A.Energy.xrpt", "<id>A</id><name>Energy</name><version>2</version>");
  EXPECT_TRUE(report.HasChangedOnDisk());
  const SaveResult changed = report.Save(asking);
  EXPECT_EQ(changed.outcome, SaveOutcome::Changed);
  EXPECT_EQ(changed.file, file);
  EXPECT_TRUE(report.modified);
  EXPECT_TRUE(report.Save({true, false})) << "the user said so";
  EXPECT_TRUE(report.Save(asking)) << "nobody wrote since";
  std::filesystem::remove(file);
  EXPECT_EQ(report.Save(asking).outcome, SaveOutcome::Changed) << "gone";
  Write("A.Taken.xrpt", "");
  report.name = L"Taken";
  EXPECT_EQ(report.Save(asking).outcome, SaveOutcome::Taken);
  EXPECT_NE(TextOf(report.Save(asking)).find(L"A.Taken.xrpt"), std::wstring::npos);
}

TEST_F(ReportFiles, NoIdentifierLeadsOutOfTheFolder) {
  for (const char* id : {"../../out", "/etc/x", "..", "a/../../b", "c:\\d"}) {
    RVReport report;
    report.LoadFile(Write("A.x.xrpt", "<id>" + std::string(id) + "</id><name>x</name>"));
    ASSERT_TRUE(report.Save()) << id;
    EXPECT_EQ(report.File().parent_path(), host.Cfg()) << id;
    EXPECT_EQ(ValueOf(TestHost::ReadFile(report.File()), "id"), id) << "the identifier itself stays";
  }
}

TEST_F(ReportFiles, EvidentlyAnotherDocumentIsRefused) {
  const std::pair<const char*, bool> rows[] = {{"<svg><g/></svg>", false},
                                               {"<style><id>1</id><name>Title</name><font/></style>", false},
                                               {"<devices><device><id>D</id></device></devices>", false},
                                               {"<controlClipboard><label/></controlClipboard>", false},
                                               {"<reportLayout/>", true},
                                               {"<layout><page/></layout>", true},
                                               {"<layout><formules/></layout>", true},
                                               {"<layout><name>n</name></layout>", true},
                                               {"<style><page/></style>", true}};
  for (const auto& [bytes, isReport] : rows) {
    RVReport report;
    const LoadResult result = report.LoadFile(host.WriteCfg("A.x.xrpt", bytes));
    EXPECT_EQ(result.loaded, isReport) << bytes;
    EXPECT_EQ(result.error.message.empty(), isReport) << bytes;
    EXPECT_EQ(report.File().empty(), !isReport) << "it will not be saved over " << bytes;
  }
}

TEST_F(ReportFiles, ReferencesToUnknownStylesAreCounted) {
  host.WriteCfg("KNOWN.Title.XSTY", "<style><id>KNOWN</id><name>Title</name><font/></style>");
  const std::string gone = "<style>GONE</style>";
  RVReport report;
  const LoadResult result = report.LoadFile(Write(
      "A.x.xrpt", "<page><label><style>KNOWN</style></label><label>" + gone + "</label><date/><label><style/></label>" +
                      "<reportGraph>" + gone + "</reportGraph><conditioned><control><condition/><label>" + gone +
                      "</label></control></conditioned></page><page><formule>" + gone + "</formule></page>"));
  EXPECT_EQ(result.lostStyles, 4);
  EXPECT_EQ(report.LoadFile(Write("A.x.xrpt", "<page/>")).lostStyles, 0);
}

TEST_F(ReportFiles, WhatCouldNotBeOpenedAgainIsNotWritten) {
  RVReport report;
  XmlNode node = report.formules.Root();
  for (int level = 0; level < XmlDocument::kMaxDepth; ++level) node = node.NewChild("formule");
  const Path file = host.WriteCfg("A.x.xrpt", "old");
  EXPECT_EQ(report.SaveTo(file).reason, XmlDocument::kTooDeep);
  EXPECT_EQ(TestHost::ReadFile(file), "old");
}

TEST_F(ReportFiles, TwoSavesDifferInTheirRevisionOnly) {
  RVReport report;
  report.LoadFile(
      Write("A.x.xrpt", "<id>A</id><name>x</name><version>1</version><page><label><id>L</id></label></page>"));
  std::string first = report.TemplateText();
  const std::string second = report.TemplateText();
  EXPECT_NE(ValueOf(first, "revision"), ValueOf(second, "revision"));
  const std::size_t at = first.find(ValueOf(first, "revision"));
  first.replace(at, ValueOf(first, "revision").size(), ValueOf(second, "revision"));
  EXPECT_EQ(first, second);
  EXPECT_EQ(ValueOf(second, "version"), "1");
}

TEST_F(ReportFiles, VirtualListsAreLoadedOnlyWhenSwitchedOn) {
  const std::string lists =
      "<virtualDevices><virtualDevice><id>D</id></virtualDevice><other/></virtualDevices>"
      "<goBackVariables><goBackVariable><id>G</id></goBackVariable></goBackVariables>";
  struct Row {
    const char* enabled;
    std::size_t devices;
    const char* written;
  };
  for (const Row& row :
       {Row{"<virtualEnabled>T</virtualEnabled>", 1, "T"}, Row{"<virtualEnabled>F</virtualEnabled>", 0, "F"},
        Row{"", 0, "F"}, Row{"<virtualEnabled>t</virtualEnabled>", 0, "F"}}) {
    RVReport report;
    report.LoadFile(Write("A.x.xrpt", row.enabled + lists));
    EXPECT_EQ(report.virtualDevices.Root().Size(), row.devices) << row.enabled;
    EXPECT_EQ(report.goBackVariables.Root().Size(), row.devices) << row.enabled;
    EXPECT_EQ(ValueOf(report.TemplateText(), "virtualEnabled"), row.written) << row.enabled;
    report.virtualDevices.Root().NewChild("virtualDevice");
    EXPECT_EQ(ValueOf(report.TemplateText(), "virtualEnabled"), "T") << "a file with devices says so";
  }
}

TEST_F(ReportFiles, FontsKeepTheSizeTheyWereLaidOutAt) {
  host.screen->SetDpi(144, 144);
  for (const auto& [dpi, factor] : {std::pair("96", 1.5), {"144", 1.0}, {"0", 1.0}, {"-96", 1.0}, {"x", 1.0}}) {
    RVReport report;
    report.LoadFile(Write("A.x.xrpt", "<dpiFont>" + std::string(dpi) + "</dpiFont><page/>"));
    EXPECT_EQ(report.fontFactor, factor) << dpi;
    EXPECT_EQ(report.pages[0]->fontFactor, factor) << dpi;
    EXPECT_EQ(ValueOf(report.TemplateText(), "dpiFont"), std::to_string(report.dpiFont));
  }
}

TEST_F(ReportFiles, PagesSkipWhatMayNotStandOnThem) {
  RVReport report;
  report.LoadFile(Write("A.x.xrpt",
                        "<page><button/><dynamicImage/><forceValues/><Label/><label><id>1</id></label><note/>"
                        "<conditioned><id>2</id></conditioned><primitive><id>3</id></primitive></page>"));
  const CardList& cards = report.pages[0]->cards;
  ASSERT_EQ(cards.Size(), 3u);
  EXPECT_EQ(cards[0].id + cards[1].id + cards[2].id, L"123") << "front to back";
  EXPECT_EQ(cards[2].GetParent(), report.pages[0].get());
}

TEST_F(ReportFiles, FormulasSurviveWhateverTheyHold) {
  RVReport report;
  report.LoadFile(Write(
      "A.x.xrpt", "<formules><formule type=\"n\"><id>F</id><![CDATA[a<b]]></formule>mixed &amp; text</formules>"));
  const std::string once = report.TemplateText();
  EXPECT_NE(once.find("a&lt;b"), once.npos) << once;
  EXPECT_NE(once.find("type=\"n\""), once.npos) << once;
  EXPECT_NE(once.find("mixed &amp; text"), once.npos) << once;
  RVReport again;
  again.LoadFile(host.WriteCfg("B.y.xrpt", once));
  EXPECT_EQ(again.formules.Text(), report.formules.Text());
}

TEST_F(ReportFiles, PagesCompareButForTheGridAndKeepTheirScreen) {
  RVGlobalProperties page;
  page.screen.scale = 3.0;
  RVGlobalProperties other = page;
  EXPECT_EQ(other.screen.scale, 1.0);
  other.xgrid = 7.0;
  EXPECT_TRUE(other == page);
  other.rounded = 7.0;
  EXPECT_FALSE(other == page);
  other = page;
  other.lists[2].push_back(L"x");
  EXPECT_FALSE(other == page);
  other = page;
  other.Background().LoadOriginalImage(L"logo", L"./");
  EXPECT_FALSE(other == page);
  page.width = std::nan("");
  EXPECT_FALSE(page == RVGlobalProperties(page));
}

// A picture of one pixel, as the host's decoder would give it.
class OnePixel final : public PictureService {
 public:
  PicturePtr Decode(std::string_view bytes) override {
    if (bytes != "picture") return nullptr;
    ++decoded;
    auto picture = std::make_shared<Picture>();
    picture->width = picture->height = 1;
    picture->rgb = {1, 2, 3};
    return picture;
  }
  int decoded = 0;
};

class Pictures : public ReportFiles {
 protected:
  Pictures() {
    auto service = std::make_unique<OnePixel>();
    pictures = service.get();
    host->pictures = std::move(service);
    TestHost::WriteFile(host.Images() / "logo.img", "cGljdHVyZQ==");
    TestHost::WriteFile(host.Images() / "sub" / "logo.img", "cGljdHVy\nZQ&#61;&#61;");
    TestHost::WriteFile(host.Folder() / "outside.img", "cGljdHVyZQ==");
  }
  OnePixel* pictures;
};

TEST_F(Pictures, AHundredCardsShareOneOfThem) {
  {
    std::vector<RVCardImage> cards(100);
    for (RVCardImage& card : cards) card.LoadOriginalImage(L"logo", L"./");
    const std::vector<RVCardImage> copies = cards;
    for (const RVCardImage& card : copies) EXPECT_EQ(card.GetPicture(), cards[0].GetPicture());
    EXPECT_TRUE(cards[0].GetPicture());
    EXPECT_EQ(pictures->decoded, 1);
    EXPECT_EQ(host->pictureStore.Count(), 1u);
    cards[1].LoadOriginalImage(L"logo", L"sub");
    EXPECT_EQ(host->pictureStore.Count(), 2u) << "another folder is another picture";
    EXPECT_TRUE(cards[1].GetPicture());
    EXPECT_FALSE(cards[1] == cards[0]);
    RVCardImage::ReLoadAllOriginalImages();
    EXPECT_TRUE(cards[0].GetPicture() && cards[1].GetPicture());
    EXPECT_EQ(pictures->decoded, 4);
  }
  EXPECT_EQ(host->pictureStore.Count(), 0u);
}

TEST_F(Pictures, NeverLeaveTheirFolder) {
  struct Row {
    const wchar_t* id;
    const wchar_t* path;
    bool found;
  };
  for (const Row& row :
       {Row{L"logo", L"./", true}, Row{L"logo", L"", true}, Row{L"logo", L"sub/", true}, Row{L"outside", L"../", false},
        Row{L"../outside", L"./", false}, Row{L"outside", L"sub/../..", false}, Row{L"sub/logo", L"./", false},
        Row{L"", L"./", false}, Row{L"logo", L"..\\", false}, Row{L"logo", L"/", false}, Row{L"none", L"./", false}}) {
    RVCardImage card;
    card.LoadOriginalImage(row.id, row.path);
    EXPECT_EQ(card.GetPicture() != nullptr, row.found) << ToUtf8(row.id) << " in " << ToUtf8(row.path);
    EXPECT_EQ(card.ImageId(), row.id) << "what the file says is kept";
  }
}

TEST_F(Pictures, OfButtonsAreComparedByTwoRows) {
  const auto make = [](std::uint8_t top, std::uint8_t second, std::uint8_t middle, std::size_t size = 9) {
    auto picture = std::make_shared<Picture>();
    picture->width = 1;
    picture->height = 4;
    picture->encodedSize = size;
    picture->rgb = {top, top, top, second, second, second, middle, middle, middle, 0, 0, 0};
    return picture;
  };
  const PicturePtr picture = make(1, 2, 3);
  EXPECT_TRUE(EqualSampled(picture, make(1, 9, 3)));
  EXPECT_FALSE(EqualSampled(picture, make(9, 2, 3)));
  EXPECT_FALSE(EqualSampled(picture, make(1, 2, 9)));
  EXPECT_FALSE(EqualSampled(picture, make(1, 2, 3, 8)));
  EXPECT_FALSE(EqualSampled(picture, nullptr));
  EXPECT_TRUE(EqualSampled(nullptr, nullptr));
}

TEST_F(Pictures, OfButtonsKeepWhatTheyShowAndLoseTheirFolderInCopies) {
  RVCardButton button = Read<RVCardButton>(
      "<visualization>IMAGE</visualization><image><imageId>logo</imageId><imagePath>sub</imagePath></image>");
  EXPECT_TRUE(button.GetPicture());
  button.imageId = L"none";
  button.LoadImage();
  EXPECT_TRUE(button.GetPicture()) << "a picture that cannot be read leaves the one before";
  const RVCardButton copy = button;
  EXPECT_EQ(copy.imagePath.value, L"");
  EXPECT_TRUE(copy == button);
  EXPECT_EQ(button.imagePath.value, L"sub");
}

// An hour of opening, changing, saving and closing in small; the address sanitizer counts what is left behind.
TEST_F(Pictures, OpeningAndClosingManyReportsLeavesNothing) {
  std::string page =
      "<page><backgroundImage><image><imageId>logo</imageId><imagePath>./</imagePath></image></backgroundImage>";
  for (const auto& card : OneOfEachKind()) page += XmlOf(*card).substr(8);
  const std::size_t end = page.rfind("</holder>");
  for (std::size_t at = page.find("</holder>"); at != page.npos; at = page.find("</holder>")) page.erase(at, 9);
  ASSERT_NE(end, page.npos);
  const Path file = Write("A.x.xrpt", "<name>x</name>" + page + "</page>");
  for (int i = 0; i < 150; ++i) {
    RVReport report;
    ASSERT_TRUE(report.LoadFile(file).loaded);
    CardList& cards = report.pages[0]->cards;
    ASSERT_GT(cards.Size(), 5u);
    const SharedCards snapshot = cards.Share();
    cards.Edit(0).x = i;
    EXPECT_EQ(cards.Equals(snapshot), cards[0].x == snapshot[0]->x);
    cards.Restore(snapshot);
    report.SaveTo(file);
  }
  EXPECT_EQ(host->pictureStore.Count(), 0u);
  EXPECT_EQ(host.logger->Text(4), "");
}

}  // namespace
}  // namespace xrpt
