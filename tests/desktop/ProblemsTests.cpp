// The list of problems in the window: it follows the report, leads to the cards, and puts right what can be.
#include <QAction>
#include <QClipboard>
#include <QHelpEvent>
#include <QMenu>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>

#include "desktop/ProblemTexts.h"
#include "desktop/ProblemsDesk.h"
#include "desktop/WindowTest.h"
#include "desktop/look/Texts.h"
#include "desktop/page/PageFrame.h"
#include "desktop/panels/ProblemCounts.h"
#include "desktop/panels/ProblemsModel.h"
#include "desktop/panels/ProblemsPanel.h"
#include "desktop/panels/ProblemsWatch.h"
#include "editor/ProblemMarks.h"

namespace xrpt {
namespace {

class ProblemsWindow : public WindowTest {
 protected:
  ProblemsPanel& Panel() { return Window().Problems().Panel(); }
  QTreeView& List() { return Panel().List(); }
  const ProblemList& Problems() { return Window().Problems().Watch().Problems(); }

  // Until what was changed last is checked and shown.
  void WaitForCheck() {
    Settle();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Window().Problems().Watch().IsDone(); }, 10000));
    Settle();
  }
  void OpenText(const std::string& cards, const std::string& more = {}) {
    const std::string text = "<reportLayout><id>R</id><name>r</name><page><id>p</id>" + cards +
                             "</page><page><id>q</id>"
                             "</page>" +
                             more + "</reportLayout>";
    Window().Open(host.WriteCfg("r.xrpt", text).wstring());
    if (!Panel().isVisible()) Run("ProblemsPanel");
    WaitForCheck();
  }
  static std::string Formule(const std::string& id, const std::string& value, int y = 20) {
    return "<formule><id>" + id + "</id><x>20</x><y>" + std::to_string(y) +
           "</y><width>40</width><height>8</height><value>" + value + "</value></formule>";
  }
  std::vector<std::wstring> Codes() {
    std::vector<std::wstring> codes;
    for (std::size_t row = 0; row < Problems().Size(); ++row) {
      const Problem* problem = Problems().ProblemOf(row);
      codes.emplace_back(problem ? problem->finding.code->name : L"notice");
    }
    return codes;
  }
  QString Text(int row, int column) { return List().model()->index(row, column).data().toString(); }
  void DoubleClick(int row) {
    const QPoint at = List().visualRect(List().model()->index(row, 0)).center();
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, at);
    Settle();
  }
  std::vector<CardMark> Marks() {
    const QSize size = View().viewport()->size();
    return PlaceMarks(Page(), Problems(), {0, 0, size.width(), size.height()}, 16);
  }
  // The colour at a mark's ground.
  QColor At(const CardMark& mark) {
    const QImage view = View().viewport()->grab().toImage();
    return view.pixelColor((QPoint(mark.rect.left, mark.rect.top) + QPoint(3, 8)) * view.devicePixelRatio());
  }

  using Strings = std::vector<std::wstring>;
};

TEST_F(ProblemsWindow, FollowsTheReportUnsavedToo) {
  OpenText(Formule("a", "1") + Formule("b", "", 40));
  EXPECT_EQ(Codes(), Strings{L"FORMULECTRL_FORMULE_EMPTY"});
  EXPECT_EQ(Text(0, ProblemsModel::kPage), "1");
  EXPECT_FALSE(Text(0, ProblemsModel::kCard).isEmpty());
  Page().SelectControls({L"b"});
  Key(Qt::Key_Delete);
  WaitForCheck();
  EXPECT_EQ(Codes(), Strings());
  EXPECT_EQ(List().model()->rowCount(), 1) << "a line says that there is nothing";
  EXPECT_FALSE(Text(0, 0).isEmpty());
  Run("Undo");
  WaitForCheck();
  EXPECT_EQ(Codes().size(), 1u);
  EXPECT_FALSE(Frame().IsModified());
}

TEST_F(ProblemsWindow, LeadsToTheCard) {
  OpenText(Formule("a", "1") + Formule("b", "", 250));
  Frame().ShowPage(1);
  Frame().SetZoom(5.0);
  Settle();
  DoubleClick(0);
  EXPECT_EQ(Frame().CurrentPageIndex(), 0u);
  EXPECT_EQ(Page().SelectedCardId(), L"b");
  Frame().SetZoom(5.0);
  Page().ScrollTo(0, 0);
  Page().ClearSelection();
  List().setFocus();
  QTest::keyClick(&List(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(Page().SelectedCardId(), L"b");
  EXPECT_TRUE(View().viewport()->rect().contains(MiddleOf(L"b"))) << "scrolled into sight";
}

TEST_F(ProblemsWindow, StepsFromProblemToProblem) {
  OpenText(Formule("a", "") + Formule("b", "1 +", 40) + Formule("c", "", 60));
  ASSERT_EQ(Problems().Size(), 3u);
  std::vector<std::wstring> visited;
  for (int i = 0; i < 4; ++i) {
    Run("NextProblem");
    visited.push_back(Page().SelectedCardId());
  }
  EXPECT_EQ(visited, (Strings{L"a", L"b", L"c", L"a"}));
  Run("PreviousProblem");
  EXPECT_EQ(Page().SelectedCardId(), L"c");
}

TEST_F(ProblemsWindow, PutsRightAsOneStep) {
  OpenText("<label><id>a</id><x>300</x><y>20</y><width>40</width><height>8</height></label>");
  ASSERT_EQ(Codes(), Strings{L"CARD_OUTSIDE_PAGE"});
  EXPECT_FALSE(Panel().PutRightButton().isEnabled());
  List().setCurrentIndex(List().model()->index(0, 0));
  ASSERT_TRUE(Panel().PutRightButton().isEnabled());
  QTest::mouseClick(&Panel().PutRightButton(), Qt::LeftButton);
  WaitForCheck();
  EXPECT_EQ(Codes(), Strings());
  EXPECT_EQ(Card(L"a").x, 170.0);
  EXPECT_FALSE(Panel().PutRightButton().isEnabled());
  Run("Undo");
  WaitForCheck();
  EXPECT_EQ(Card(L"a").x, 300.0);
  ASSERT_EQ(Codes().size(), 1u);

  QTimer::singleShot(0, &List(), [] {
    auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 3);
    menu->actions().at(1)->trigger();
    menu->close();
  });
  emit List().customContextMenuRequested(List().visualRect(List().model()->index(0, 0)).center());
  WaitForCheck();
  EXPECT_EQ(Card(L"a").x, 170.0);
}

TEST_F(ProblemsWindow, FiltersBySeverity) {
  OpenText(Formule("a", "") + "<label><id>l</id><x>300</x><y>20</y><width>40</width><height>8</height></label>",
           "<formules><formule><name>SPARE</name><text>1</text></formule></formules>");
  ASSERT_EQ(Problems().Size(), 3u);
  EXPECT_EQ(Panel().Filter(Severity::Error).text(), "1");
  QTest::mouseClick(&Panel().Filter(Severity::Warning), Qt::LeftButton);
  EXPECT_EQ(Codes(), (Strings{L"FORMULECTRL_FORMULE_EMPTY", L"FORMULA_UNUSED"}));
  EXPECT_EQ(Marks().size(), 1u);
  QTest::mouseClick(&Panel().Filter(Severity::Error), Qt::LeftButton);
  QTest::mouseClick(&Panel().Filter(Severity::Information), Qt::LeftButton);
  EXPECT_EQ(Problems().Size(), 0u);
  EXPECT_EQ(Text(0, 0), Translated(text::kHiddenProblems, "3"));
  EXPECT_EQ(Problems().CountAll(), 3u);
}

TEST_F(ProblemsWindow, MarksCardsInTheViewAlone) {
  OpenText(Formule("a", ""));
  Frame().FitPage();
  Settle();
  ASSERT_EQ(Marks().size(), 1u);
  const CardMark mark = Marks()[0];
  const QColor red(0xC6, 0x2D, 0x2D);
  EXPECT_EQ(At(mark), red);
  QHelpEvent help(QEvent::ToolTip, {mark.rect.left + 8, mark.rect.top + 8},
                  View().viewport()->mapToGlobal(QPoint(mark.rect.left + 8, mark.rect.top + 8)));
  QApplication::sendEvent(View().viewport(), &help);
  EXPECT_EQ(QToolTip::text(), Text(0, 0));
  EXPECT_TRUE(Window().Problems().Counts().isVisible());
  EXPECT_TRUE(Window().Problems().Counts().accessibleName().contains(Translated(text::kNotes + 2, "1")));
  Run("ProblemMarks");
  EXPECT_NE(At(mark), red);
  EXPECT_FALSE(Window().Problems().Counts().isVisible());
  Run("Validate");
  EXPECT_EQ(At(mark), red) << "who asks for a check wants to see what comes of it";
  Frame().ShowMarks(false);  // as the host asks
  Settle();
  EXPECT_NE(At(mark), red);
}

TEST_F(ProblemsWindow, TheCountsOpenTheList) {
  OpenText(Formule("a", ""));
  Run("ProblemsPanel");
  EXPECT_FALSE(Panel().isVisible());
  QTest::mouseClick(&Window().Problems().Counts(), Qt::LeftButton);
  Settle();
  EXPECT_TRUE(Panel().isVisible());
}

TEST_F(ProblemsWindow, TheMessageHasMostOfTheRoom) {
  OpenText(Formule("a", ""));
  for (const int width : {240, 900, 1600}) {
    Panel().resize(width, 150);
    EXPECT_GT(List().columnWidth(ProblemsModel::kMessage), width * 4 / 10) << width;
    EXPECT_EQ(List().isColumnHidden(ProblemsModel::kCard), width == 240) << width;
  }
}

// The row that was chosen stays chosen when other problems come and go.
TEST_F(ProblemsWindow, KeepsWhatWasChosen) {
  OpenText(Formule("a", "") + Formule("b", "", 40));
  List().setCurrentIndex(List().model()->index(1, 0));
  Page().SelectControls({L"a"});
  Key(Qt::Key_Delete);
  WaitForCheck();
  ASSERT_EQ(Problems().Size(), 1u);
  EXPECT_EQ(List().currentIndex().row(), 0);
}

}  // namespace
}  // namespace xrpt
