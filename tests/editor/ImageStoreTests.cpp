// The pictures of the store: adding, replacing and deleting them, and where they are used.
#include <gmock/gmock.h>

#include "canvas/PageEdit.h"
#include "editor/EditorTexts.h"
#include "editor/ImageStore.h"
#include "editor/ImageStoreList.h"
#include "editor/RVEditControlWnd.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardImage.h"
#include "support/AnsweringPort.h"
#include "support/OwnFormat.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Hands final : public DialogPort {
 public:
  std::size_t Decide(const Question& question) override {
    questions.push_back(question);
    return answer;
  }
  void TellFailure(const std::wstring& sentences) override { failures.push_back(ToUtf8(sentences)); }

  std::size_t answer = 0;
  std::vector<Question> questions;
  std::vector<std::string> failures;
};

class Store : public HostTest {
 protected:
  Store() { host->pictures = std::make_unique<OwnFormat>(); }
  Path File(const char* name, const char* bytes = "PIC") {
    return TestHost::WriteFile(host.Folder() / "from" / name, bytes);
  }
  bool Has(const char* picture) const { return std::filesystem::exists(host.Images() / picture); }
  void ShowOnPage(const char* name) {
    PageEdit edit = frame.CurrentPage().Edit({0, 1});
    auto image = std::make_unique<RVCardImage>();
    image->AssignPicture(name);
    edit.Cards().PushBack(std::move(image));
  }

  AnsweringPort port;
  RVEditControlWnd frame{port};
  Hands hands;
};

TEST_F(Store, FilesGoToTheFolderShownUnderFreeNames) {
  ImageStoreList list(hands, frame.Report());
  EXPECT_TRUE(list.OnAdd({File("boiler.png"), File("boiler.gif"), File("text.png", "text")}));
  EXPECT_THAT(list.Added(), ElementsAre(L"boiler", L"boiler_1"));
  EXPECT_THAT(hands.failures, ElementsAre(HasSubstr("text.png")));
  list.ShowFolder(L"plant");
  EXPECT_TRUE(list.OnAddBytes("PIC 2", L"a:b"));
  EXPECT_TRUE(Has("plant/a_b.img"));
  EXPECT_THAT(list.Rows(), ElementsAre(L"plant/a_b"));
  EXPECT_THAT(list.Folders(), ElementsAre(L"", L"plant"));
  list.ShowFolder(std::nullopt);
  EXPECT_EQ(list.Rows().size(), 3u);
  list.ShowFolder(L"../up");
  EXPECT_FALSE(list.OnAdd({File("boiler.png")}));
  EXPECT_FALSE(std::filesystem::exists(host.Folder() / "up"));
}

TEST_F(Store, AReplacedPictureKeepsItsName) {
  ImageStoreList list(hands, frame.Report());
  list.OnAdd({File("boiler.png", "PIC old")});
  const std::string before = TestHost::ReadFile(host.Images() / "boiler.img");
  EXPECT_FALSE(list.OnReplace(L"boiler", File("other.png", "no picture")));
  EXPECT_EQ(TestHost::ReadFile(host.Images() / "boiler.img"), before);
  EXPECT_TRUE(list.OnReplace(L"boiler", File("other.png", "PIC new")));
  EXPECT_NE(TestHost::ReadFile(host.Images() / "boiler.img"), before);
  EXPECT_THAT(list.Rows(), ElementsAre(L"boiler"));
}

TEST_F(Store, UsesAreFoundOnPagesInBackgroundsAndInConditionedCards) {
  ASSERT_EQ(AddPictureBytes("PIC", L"a").name, L"a");
  ShowOnPage("a");
  {
    PageEdit edit = frame.CurrentPage().Edit({0, 1});
    edit.Properties().Background().AssignPicture("a");
    auto container = std::make_unique<RVCardConditioned>();
    auto inner = std::make_unique<RVCardImage>();
    inner->AssignPicture("a");
    container->cards.push_back(std::move(inner));
    container->conditions.push_back(L"1 < 2");
    edit.Cards().PushBack(std::move(container));
  }
  const ImageStoreList list(hands, frame.Report());
  ASSERT_EQ(list.UsesOf(L"a").size(), 3u);
  EXPECT_EQ(list.UsesOf(L"a")[0].cardId, L"") << "the background";
  EXPECT_EQ(list.UsesOf(L"a")[2].cardId, frame.CurrentPage().Page().cards[1].id) << "the card that can be selected";
  EXPECT_THAT(list.UsesOf(L"b"), IsEmpty());
}

TEST_F(Store, DeletingAsksAndSaysWhatWillBeEmpty) {
  ImageStoreList list(hands, frame.Report());
  list.OnAdd({File("a.png"), File("b.png")});
  ShowOnPage("a");
  list.UpdateList();
  hands.answer = 1;
  EXPECT_FALSE(list.OnDelete({L"a"}));
  EXPECT_THAT(ToUtf8(hands.questions[0].detail), HasSubstr("1 place"));
  hands.answer = 0;
  EXPECT_TRUE(list.OnDelete({L"a", L"b"}));
  EXPECT_THAT(list.Rows(), IsEmpty());
  EXPECT_FALSE(list.OnDelete({}));
}

TEST_F(Store, UnusedIsWhatNoReportNames) {
  ImageStoreList list(hands, frame.Report());
  list.OnAdd({File("here.png"), File("there.png"), File("nowhere.png")});
  ShowOnPage("here");
  host.WriteCfg("A.x.xrpt",
                "<reportLayout><page><image><image><imageId>there</imageId></image></image></page></reportLayout>");
  const Path broken = host.WriteCfg("B.y.xrpt", "<reportLayout");
  EXPECT_FALSE(list.OnDeleteUnused());
  EXPECT_THAT(hands.failures, ElementsAre(HasSubstr("B.y.xrpt"))) << "it may name any picture";
  std::filesystem::remove(broken);
  EXPECT_TRUE(list.OnDeleteUnused());
  EXPECT_EQ(hands.questions.back().textId, text::kDeleteUnused);
  EXPECT_THAT(list.Rows(), ElementsAre(L"here", L"there"));
  EXPECT_FALSE(list.OnDeleteUnused());
}

}  // namespace
}  // namespace xrpt
