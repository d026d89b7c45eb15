// The whole road: open a report, move a card by hand, save it, and look at what became of the file.
#include <gmock/gmock.h>

#include "desktop/WindowTest.h"
#include "desktop/panels/PropertyPanel.h"
#include "platform/NamedFiles.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Difference {
  std::wstring cardId;  // empty outside of cards
  std::string element;
  bool operator<(const Difference& other) const {
    return std::tie(cardId, element) < std::tie(other.cardId, other.element);
  }
  bool operator==(const Difference&) const = default;
};

void PrintTo(const Difference& difference, std::ostream* out) {
  *out << ToUtf8(difference.cardId) << "/" << difference.element;
}

// Elements whose text differs; a different shape shows as a difference named after the element.
void Compare(const XmlNode& left, const XmlNode& right, const std::wstring& cardId, std::set<Difference>& found) {
  const std::string tag(left.Tag());
  if (left.Tag() != right.Tag() || left.Size() != right.Size()) {
    found.insert({cardId, tag + " (shape)"});
    return;
  }
  if (left.Size() == 0 && left.Value() != right.Value()) found.insert({cardId, tag});
  const std::wstring own = left.Value("id").empty() ? cardId : left.Value("id");
  auto other = right.begin();
  for (const XmlNode child : left) Compare(child, *other++, own, found);
}

class MoveCard : public WindowTest {
 protected:
  MoveCard() {
    OpenSample();
    file_ = Frame().Report().FilePath();
    before_ = TestHost::ReadFile(file_);
    id_ = CardWith("text/textStr", L"Informe mensual de energía");
  }

  std::vector<Difference> DifferencesAfterSaving() {
    Key(Qt::Key_S, Qt::ControlModifier);
    XmlDocument left;
    XmlDocument right;
    EXPECT_TRUE(left.Parse(before_));
    EXPECT_TRUE(right.Parse(TestHost::ReadFile(file_)));
    std::set<Difference> found;
    Compare(left.Root(), right.Root(), {}, found);
    return {found.begin(), found.end()};
  }
  Difference ReportRevision() { return {Frame().Report().id, "revision"}; }
  CardRect Place() { return RectOf(Card(id_)); }

  Path file_;
  std::string before_;
  std::wstring id_;
};

TEST_F(MoveCard, DraggedAndSavedChangesThatCardsPlaceAlone) {
  ASSERT_FALSE(id_.empty());
  const CardRect before = Place();
  Drag(MiddleOf(id_), {40, 60});
  EXPECT_TRUE(Window().isWindowModified());
  EXPECT_THAT(DifferencesAfterSaving(),
              ::testing::UnorderedElementsAre(Difference{id_, "x"}, Difference{id_, "y"}, ReportRevision()));
  EXPECT_FALSE(Window().isWindowModified());
  // 40 and 60 pixels at 96 dpi, on the page's grid of 5 mm.
  EXPECT_DOUBLE_EQ(Place().x, before.x + 10.0);
  EXPECT_DOUBLE_EQ(Place().y, before.y + 15.0);
}

TEST_F(MoveCard, MovedByKeyboardChangesThatCardsPlaceAlone) {
  View().setFocus();
  for (int cards = 0; Page().SelectedCardId() != id_ && cards < 40; ++cards) Key(Qt::Key_Tab);
  ASSERT_EQ(Page().SelectedCardId(), id_);
  const CardRect before = Place();
  Key(Qt::Key_Right);
  Key(Qt::Key_Down);
  EXPECT_THAT(DifferencesAfterSaving(),
              ::testing::UnorderedElementsAre(Difference{id_, "x"}, Difference{id_, "y"}, ReportRevision()));
  EXPECT_DOUBLE_EQ(Place().x, before.x + 5.0);
  EXPECT_DOUBLE_EQ(Place().y, before.y + 5.0);
}

TEST_F(MoveCard, UndoneAndSavedChangesNothing) {
  const CardRect before = Place();
  Drag(MiddleOf(id_), {40, 60});
  const CardRect moved = Place();
  ASSERT_NE(moved, before);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Place(), before);
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Place(), moved);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(Frame().IsModified());
  EXPECT_THAT(DifferencesAfterSaving(), IsEmpty()) << "there is nothing to save";
}

TEST_F(MoveCard, EscapeEndsADragWithTheCardWhereItWas) {
  const CardRect before = Place();
  const QPoint from = MiddleOf(id_);
  Press(from);
  Move(from + QPoint(50, 50));
  EXPECT_FALSE(Page().DraggingRects().empty());
  Key(Qt::Key_Escape);
  EXPECT_THAT(Page().DraggingRects(), IsEmpty());
  Release(from + QPoint(50, 50));
  EXPECT_EQ(Place(), before);
}

TEST_F(MoveCard, EscapePutsAnInsertToolAway) {
  Run("NewDate");
  EXPECT_TRUE(Window().AllActions().Find("NewDate")->isChecked());
  Key(Qt::Key_Escape);
  EXPECT_TRUE(Window().AllActions().Find("Pointer")->isChecked());
}

TEST_F(MoveCard, EscapeAndAClickBesideThePageDeselect) {
  for (const bool byKey : {true, false}) {
    Click(MiddleOf(id_));
    ASSERT_EQ(Page().SelectedCardId(), id_);
    byKey ? Key(Qt::Key_Escape) : Click({2, 2});
    EXPECT_TRUE(Page().Selection().IsEmpty()) << (byKey ? "Escape" : "a click");
  }
  EXPECT_FALSE(Frame().IsModified());
}

TEST_F(MoveCard, ADrawnRectangleBecomesACardThatIsSelectedAndShown) {
  const std::size_t before = Page().Page().cards.Size();
  Run("NewLabel");
  const PagePlacement place = Page().Placement();
  const QPoint corner(roundi(place.offsetX) + 80, roundi(place.offsetY) + 20);
  Drag(corner, {120, 40});
  ASSERT_EQ(Page().Page().cards.Size(), before + 1);
  EXPECT_EQ(Page().SelectedCardId(), Page().Page().cards[0].id);
  EXPECT_NE(Window().Properties().Find("text/textStr"), nullptr);
}

}  // namespace
}  // namespace xrpt
