// The property panel: what it shows of one card, of several and of the page, and what becomes of an edit.
#include <gmock/gmock.h>

#include <QComboBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "canvas/UndoTexts.h"
#include "desktop/WindowTest.h"
#include "desktop/dialogs/formulas/ExpressionEdit.h"
#include "desktop/dialogs/formulas/ExpressionField.h"
#include "desktop/panels/MixedSpinBox.h"
#include "desktop/panels/PropertyPanel.h"
#include "desktop/panels/TypedNumber.h"
#include "model/RVAnalogBar.h"
#include "model/RVCardDate.h"

namespace xrpt {
namespace {

class Panel : public WindowTest {
 protected:
  Panel() {
    OpenSample();
    title_ = CardWith("text/textStr", L"Informe mensual de energía");
    from_ = CardWith("text/textStr", L"Desde");
  }
  void Select(const std::vector<std::wstring>& ids) {
    Page().SelectControls(ids);
    Frame().SetModified(Frame().IsModified());
    Settle();
  }
  template <class Widget>
  Widget& Field(const char* name) {
    auto* widget = dynamic_cast<Widget*>(Window().Properties().Find(name));
    if (!widget) throw std::runtime_error(std::string("no such field: ") + name);
    return *widget;
  }
  std::wstring TextOf(const std::wstring& id, const char* field) {
    return FindField(Card(id).GetRuntimeClass().table, field)->text(Card(id));
  }

  std::wstring title_;
  std::wstring from_;
};

TEST_F(Panel, FillingIsNoEdit) {
  const std::size_t steps = Page().UndoCount();
  Select({title_});
  EXPECT_EQ(Field<MixedSpinBox>("x").value(), Card(title_).x);
  EXPECT_EQ(Field<QPlainTextEdit>("text/textStr").toPlainText().toStdWString(), L"Informe mensual de energía");
  Select({from_});
  EXPECT_EQ(Field<QPlainTextEdit>("text/textStr").toPlainText().toStdWString(), L"Desde");
  Window().Properties().Commit();
  EXPECT_FALSE(Frame().IsModified());
  EXPECT_EQ(Page().UndoCount(), steps);
}

TEST_F(Panel, EditsAreSeenAtOnceAndBecomeOneStepWhenTheUserPauses) {
  Select({title_});
  Page().AddUndoInfo(false);
  const std::size_t steps = Page().UndoCount();
  const double before = Card(title_).x;
  auto& x = Field<MixedSpinBox>("x");
  x.setFocus();
  for (int i = 0; i < 3; ++i) QTest::keyClick(&x, Qt::Key_Up);
  EXPECT_DOUBLE_EQ(Card(title_).x, before + 3.0);
  EXPECT_TRUE(Frame().IsModified());
  EXPECT_EQ(Page().UndoCount(), steps + 1);
  QTest::qWait(700);
  QTest::keyClick(&x, Qt::Key_Up);
  EXPECT_EQ(Page().UndoCount(), steps + 2) << "after a pause";
  Run("Undo");
  EXPECT_DOUBLE_EQ(Card(title_).x, before + 3.0);
  Run("Undo");
  EXPECT_DOUBLE_EQ(Card(title_).x, before);
  EXPECT_DOUBLE_EQ(Field<MixedSpinBox>("x").value(), before);
}

TEST_F(Panel, UndoRightAfterTypingTakesBackWhatWasTyped) {
  Select({title_});
  Page().AddUndoInfo(false);
  QTest::keyClicks(&Field<QPlainTextEdit>("text/textStr"), QStringLiteral("abc"));
  Settle();
  ASSERT_EQ(TextOf(title_, "text/textStr"), L"abcInforme mensual de energía");
  Run("Undo");
  EXPECT_EQ(TextOf(title_, "text/textStr"), L"Informe mensual de energía");
}

class FieldUndo : public Panel, public ::testing::WithParamInterface<const char*> {
 protected:
  FieldUndo() {
    Select({title_});
    Page().AddUndoInfo(false);
    field_ = Window().Properties().Find(GetParam());
    field_->setFocus();
  }
  std::wstring Now() { return TextOf(title_, GetParam()); }
  void Type(const char* keys) {
    Press(Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field_, QString::fromLatin1(keys));
    Settle();
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers held) {
    QTest::keyClick(field_, key, held);
    Settle();
  }
  QWidget* field_;
};

TEST_P(FieldUndo, TakesBackWhatIsBeingTypedThenWhatTheReportHas) {
  const std::wstring before = Now();
  Type("7");
  ASSERT_NE(Now(), before);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Now(), before);
  Type("8");
  const std::wstring typed = Now();
  Window().Properties().Commit();
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Now(), before);
  EXPECT_TRUE(Page().IsActionRedoEnabled());
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Now(), typed);
}

INSTANTIATE_TEST_SUITE_P(Fields, FieldUndo, ::testing::Values("x", "font/size", "text/textStr"));

TEST_F(Panel, AnExpressionIsJudgedAsItIsTypedAndTakenBack) {
  Frame().ShowPage(1);
  const std::wstring id = CardWith("value", L"[BLR1.STEAM]");
  Select({id});
  auto& field = Field<ExpressionField>("value");
  auto& edit = field.Edit();
  edit.setFocus();
  edit.selectAll();
  QTest::keyClicks(&edit, QStringLiteral("2 * 21"));
  Settle();
  field.Judge();
  EXPECT_EQ(TextOf(id, "value"), L"2 * 21");
  EXPECT_TRUE(field.Line().startsWith(QStringLiteral("42"))) << field.Line().toStdString();
  QTest::keyClicks(&edit, QStringLiteral(" +"));
  field.Judge();
  EXPECT_FALSE(field.Judgement().accepted);
  EXPECT_EQ(TextOf(id, "value"), L"2 * 21 +") << "what is wrong is kept, and said";
  Window().Properties().Commit();
  QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
  Settle();
  EXPECT_EQ(TextOf(id, "value"), L"[BLR1.STEAM]") << "the report's history is reached from the field";
}

TEST_F(Panel, ATypedFontFaceCountsWhenACommandOrTheEndOfTheWindowComes) {
  Select({title_});
  auto& face = Field<QFontComboBox>("font/name");
  face.setFocus();
  face.lineEdit()->selectAll();
  QTest::keyClicks(&face, QStringLiteral("Verdana"));
  EXPECT_EQ(TextOf(title_, "font/name"), L"Arial");
  Run("Grid");
  EXPECT_EQ(TextOf(title_, "font/name"), L"Verdana");
  face.setFocus();
  QTest::keyClicks(&face, QStringLiteral("x"));
  CloseWindow();
}

TEST_F(Panel, SeveralCardsShowWhatTheyShareAndChangeTogether) {
  Select({title_, from_});
  EXPECT_TRUE(Field<MixedSpinBox>("width").IsMixed());
  EXPECT_EQ(Field<MixedSpinBox>("width").text().toStdString(), "");
  EXPECT_EQ(Field<QComboBox>("horizontalAlign").currentData().toString().toStdString(), "LEFT");
  const double title = Card(title_).width;
  const double from = Card(from_).width;
  ASSERT_NE(title, from);
  auto& size = Field<MixedSpinBox>("font/size");
  size.setFocus();
  size.selectAll();
  QTest::keyClicks(&size, QStringLiteral("17"));
  EXPECT_EQ(TextOf(title_, "font/size"), L"17.00");
  EXPECT_EQ(TextOf(from_, "font/size"), L"17.00");
  EXPECT_EQ(Card(title_).width, title);
  EXPECT_EQ(Card(from_).width, from);
}

TEST_F(Panel, CardsOfDifferentKindsShareTheFieldsOfTheirCommonKind) {
  Select({title_, Page().Page().cards[Page().Page().cards.Size() - 1].id});  // a label and a picture
  EXPECT_NE(Window().Properties().Find("x"), nullptr);
  EXPECT_EQ(Window().Properties().Find("font/size"), nullptr);
  EXPECT_EQ(Window().Properties().Find("text/textStr"), nullptr);
}

TEST_F(Panel, NoCardSelectedShowsThePage) {
  Select({});
  auto& name = Field<QLineEdit>("name");
  name.setFocus();
  name.selectAll();
  QTest::keyClicks(&name, QStringLiteral("Tapa"));
  Window().Properties().Commit();
  EXPECT_EQ(Page().Page().properties.name, L"Tapa");
  EXPECT_TRUE(Frame().IsModified());
  auto& width = Field<MixedSpinBox>("width");
  const double before = Page().Placement().pageWidthPx;
  width.setFocus();
  QTest::keyClick(&width, Qt::Key_Up);
  Window().Properties().Commit();
  EXPECT_GT(Page().Placement().pageWidthPx, before);
}

TEST(TypedNumbers, CommaAndPointAreBothDecimal) {
  const std::pair<const char*, double> rows[] = {{"12,5", 12.5},
                                                 {"12.5", 12.5},
                                                 {"-0,25", -0.25},
                                                 {".5", 0.5},
                                                 {"7.", 7.0},
                                                 {"1.234,5", 1234.5},
                                                 {"1,234.5", 1234.5},
                                                 {"1.234.567", 1234567.0},
                                                 {"1,234,567", 1234567.0},
                                                 {"1 234,5", 1234.5},
                                                 {"+3", 3.0},
                                                 {"\u2212"
                                                  "4,5",
                                                  -4.5},
                                                 {"1.234.567,8", 1234567.8},
                                                 {"12,345", 12.345}};
  for (const auto& [text, value] : rows) {
    ASSERT_TRUE(NumberTyped(QString::fromUtf8(text))) << text;
    EXPECT_DOUBLE_EQ(*NumberTyped(QString::fromUtf8(text)), value) << text;
  }
  for (const char* text : {"", "-", ",", "1e3", "0x10", "inf", "nan", "5-", "--5", "abc"})
    EXPECT_FALSE(NumberTyped(QString::fromUtf8(text))) << text;
  for (const char* text : {"", "-", "12,", ","}) EXPECT_TRUE(MayBecomeNumber(QString::fromUtf8(text))) << text;
  for (const char* text : {"1e", "5-", "a"}) EXPECT_FALSE(MayBecomeNumber(QString::fromUtf8(text))) << text;
}

// What is typed is what is meant, whichever of the two stands on the keyboard.
TEST_F(Panel, NumbersTakeCommaAndPointInEveryLanguage) {
  for (const QLocale& locale : {QLocale(QLocale::English), QLocale(QLocale::Spanish), QLocale(QLocale::German)}) {
    QLocale::setDefault(locale);
    CloseWindow();
    OpenSample();
    Select({title_});
    for (const char* typed : {"12,5", "12.5"}) {
      Select({from_});
      Select({title_});
      auto& x = Field<MixedSpinBox>("x");
      x.setLocale(locale);
      x.setFocus();
      x.selectAll();
      QTest::keyClicks(&x, QString::fromLatin1(typed));
      EXPECT_DOUBLE_EQ(Card(title_).x, 12.5) << typed << " in " << locale.name().toStdString();
      QTest::keyClick(&x, Qt::Key_Return);
      EXPECT_DOUBLE_EQ(x.value(), 12.5) << typed << " in " << locale.name().toStdString();
      EXPECT_EQ(x.text(), locale.toString(12.5, 'f', 2));
    }
  }
  QLocale::setDefault(QLocale::c());
}

TEST_F(Panel, AThresholdIsANumberOrNothing) {
  auto bar = std::make_unique<RVAnalogBar>();
  bar->id = L"B";
  Page().Edit({0, 1}).Cards().PushFront(std::move(bar));
  Settle();
  Select({L"B"});
  auto& threshold = Field<QLineEdit>("alarmMaxValue");
  threshold.setFocus();
  QTest::keyClicks(&threshold, QStringLiteral("1x2,5.7"));
  EXPECT_EQ(threshold.text(), QStringLiteral("12.57"));
  QTest::keyClick(&threshold, Qt::Key_Home);
  QTest::keyClicks(&threshold, QStringLiteral("-a3"));
  EXPECT_EQ(static_cast<const RVAnalogBar&>(Card(L"B")).alarmMaxValue, L"-312.57");
}

// A card that shows a value has a text in its file that nobody sees.
TEST_F(Panel, OnlyWhatShowsItsTextOffersIt) {
  Select({title_});
  EXPECT_NE(Window().Properties().Find("text/textStr"), nullptr);
  auto date = std::make_unique<RVCardDate>();
  date->id = L"D";
  Page().Edit({0, 1}).Cards().PushFront(std::move(date));
  Settle();
  Select({L"D"});
  EXPECT_EQ(Window().Properties().Find("text/textStr"), nullptr);
  Select({L"D", title_});
  EXPECT_NE(Window().Properties().Find("text/textStr"), nullptr);
}

TEST_F(Panel, NumbersBeyondTheRangeComeToItsEnd) {
  Select({title_});
  auto& size = Field<MixedSpinBox>("font/size");
  size.setFocus();
  size.selectAll();
  QTest::keyClicks(&size, QStringLiteral("9999"));
  EXPECT_DOUBLE_EQ(size.value(), 99.0);
  QTest::keyClick(&size, Qt::Key_Return);
  EXPECT_DOUBLE_EQ(size.value(), size.maximum());
  size.selectAll();
  QTest::keyClicks(&size, QStringLiteral("x7y"));
  EXPECT_DOUBLE_EQ(size.value(), 7.0);
}

TEST_F(Panel, ACardStaysOnThePageWhateverIsTyped) {
  Select({title_});
  const CardRect before = RectOf(Card(title_));
  const auto type = [this](const char* name, const char* keys) {
    auto& field = Field<MixedSpinBox>(name);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, QString::fromLatin1(keys));
    Settle();
    return field.text().toStdString();
  };
  EXPECT_EQ(type("x", "500"), "500") << "the text is the user's until it is finished";
  EXPECT_EQ(Card(title_).x, 210.0 - before.width);
  QTest::keyClick(&Field<MixedSpinBox>("x"), Qt::Key_Return);
  Settle();
  EXPECT_DOUBLE_EQ(Field<MixedSpinBox>("x").value(), 210.0 - before.width);
  EXPECT_EQ(type("height", "0,8"), "0,8");
  EXPECT_DOUBLE_EQ(Card(title_).height, 0.8);
  type("height", "0");
  View().setFocus();
  Settle();
  EXPECT_DOUBLE_EQ(Card(title_).height, 0.5);
  EXPECT_DOUBLE_EQ(Field<MixedSpinBox>("height").value(), 0.5);
  for (int step = 0; step < 4; ++step) Run("Undo");
  EXPECT_EQ(RectOf(Card(title_)), before);
}

// Where a bar's number stands is above or below, or left and right, as the bar lies.
TEST_F(Panel, ChoicesFollowTheFieldTheyHangOn) {
  Window().Open(L"Power_quality");
  Settle();
  std::size_t bar = 0;
  while (std::string_view(Page().Page().cards[bar].GetRuntimeClass().tag) != "analogBar") ++bar;
  const std::wstring id = Page().Page().cards[bar].id;
  Select({id});
  const auto offered = [this] {
    std::vector<std::string> words;
    auto& list = Field<QComboBox>("positionValue");
    for (int i = 0; i < list.count(); ++i) words.push_back(list.itemData(i).toString().toStdString());
    return words;
  };
  const std::vector<std::string> before = offered();
  EXPECT_EQ(before.size(), 2u);
  for (int way = 0; way < 2; ++way) {
    auto& lies = Field<QComboBox>("orientation");
    QTest::keyClick(&lies, lies.currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
    Settle();
    EXPECT_EQ(offered() == before, way == 1);
    EXPECT_GE(Field<QComboBox>("positionValue").currentIndex(), 0);
  }
}

TEST_F(Panel, LostCardsAreBroughtBackByCommand) {
  EXPECT_FALSE(Window().AllActions().Find("BringBack")->isEnabled());
  const CardRect before = RectOf(Card(title_));
  SetRect(*Page().Edit({}).Card(title_), {900.0, -400.0, before.width, 0.0});
  Settle();
  EXPECT_TRUE(Window().AllActions().Find("BringBack")->isEnabled());
  Run("BringBack");
  EXPECT_EQ(UndoText(Frame().History().NextUndoName()), L"Bring card back");
  EXPECT_EQ(RectOf(Card(title_)), CardRect({210.0 - before.width, 0.0, before.width, 0.5}));
  EXPECT_EQ(Page().SelectedCardId(), title_);
  EXPECT_FALSE(Window().AllActions().Find("BringBack")->isEnabled());
  Run("Undo");
  EXPECT_EQ(Card(title_).x, 900.0);
}

TEST_F(Panel, TheWheelChangesNothingUnlessTheFieldHasTheKeyboard) {
  Select({title_});
  View().setFocus();
  auto& x = Field<MixedSpinBox>("x");
  const double before = Card(title_).x;
  QWheelEvent turn(QPointF(5, 5), x.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&x, &turn);
  EXPECT_EQ(Card(title_).x, before);
  x.setFocus();
  QApplication::sendEvent(&x, &turn);
  EXPECT_EQ(Card(title_).x, before + 1.0);
}

}  // namespace
}  // namespace xrpt
