// The ribbon's font group: what it shows of the selected cards, and that each press is one step of the history.
#include <gmock/gmock.h>

#include <QMenu>
#include <QWidgetAction>

#include "desktop/WindowTest.h"
#include "desktop/panels/ColorButton.h"
#include "desktop/panels/MixedSpinBox.h"
#include "desktop/ribbon/FontGroup.h"

namespace xrpt {
namespace {

class Fonts : public WindowTest {
 protected:
  void Open(const wchar_t* report) {
    Window().Open(report);
    Settle();
  }
  void Select(const std::vector<std::size_t>& cards) {
    Page().SelectPlaces(cards);
    Frame().Port().StateChanged();
    Settle();
  }
  // The first card of the page of a kind.
  std::size_t CardOf(std::string_view tag) {
    const CardList& cards = Page().Page().cards;
    for (std::size_t i = 0; i < cards.Size(); ++i) {
      if (tag == cards[i].GetRuntimeClass().tag) return i;
    }
    throw std::runtime_error("no such card: " + std::string(tag));
  }
  std::string TextOf(std::size_t card, const char* field) {
    const RVCardControl& of = Page().Page().cards[card];
    return ToUtf8(FindField(of.GetRuntimeClass().table, field)->text(of));
  }
  FontGroup& Group() { return PartOf<FontGroup>(Window()); }
  ColorButton& ColorOfText() { return PartOf<ColorButton>(Group()); }
  QToolButton& Button(const char* name) {
    for (QToolButton* button : Group().findChildren<QToolButton*>()) {
      if (button->accessibleName() == QLatin1String(name)) return *button;
    }
    throw std::runtime_error(std::string("no such button: ") + name);
  }
  void Press(const char* name) {
    QTest::mouseClick(&Button(name), Qt::LeftButton);
    Settle();
  }
  // Takes a colour of the palette that the button opens.
  void PickColor(const char* name) {
    QTimer::singleShot(0, &Window(), [name] {
      for (auto* swatch : QApplication::activePopupWidget()->findChildren<QToolButton*>()) {
        if (swatch->accessibleName() == QLatin1String(name)) return swatch->click();
      }
      QApplication::activePopupWidget()->close();
    });
    QTest::mouseClick(&ColorOfText(), Qt::LeftButton);
    Settle();
  }
};

TEST_F(Fonts, EachPressIsAStepThatUndoTakesBack) {
  OpenSample();
  const std::size_t card = CardOf("date");
  Select({card});
  ASSERT_EQ(TextOf(card, "font/style"), "NORMAL");
  ASSERT_EQ(TextOf(card, "horizontalAlign"), "RIGHT");
  Press("Italic");
  EXPECT_EQ(TextOf(card, "font/style"), "ITALIC");
  Press("Bold");
  EXPECT_EQ(TextOf(card, "font/style"), "ITALICBOLD");
  Press("Text at the left");
  EXPECT_EQ(TextOf(card, "horizontalAlign"), "LEFT");
  Run("Undo");
  EXPECT_EQ(TextOf(card, "horizontalAlign"), "RIGHT");
  EXPECT_EQ(TextOf(card, "font/style"), "ITALICBOLD");
  Run("Undo");
  EXPECT_EQ(TextOf(card, "font/style"), "ITALIC");
  EXPECT_TRUE(Button("Italic").isChecked());
  EXPECT_FALSE(Button("Bold").isChecked());
  Run("Undo");
  EXPECT_EQ(TextOf(card, "font/style"), "NORMAL");
  EXPECT_FALSE(Frame().IsModified());
}

TEST_F(Fonts, BoldAndItalicOfSeveralCardsLeaveEachOtherAlone) {
  OpenSample();
  const std::size_t date = CardOf("date");
  const std::size_t label = CardOf("label");
  Select({date});
  Press("Bold");
  Select({date, label});
  ASSERT_EQ(TextOf(label, "font/style"), "NORMAL");
  EXPECT_FALSE(Button("Bold").isChecked());
  Press("Italic");
  EXPECT_EQ(TextOf(date, "font/style"), "ITALICBOLD");
  EXPECT_EQ(TextOf(label, "font/style"), "ITALIC");
  EXPECT_TRUE(Button("Italic").isChecked()) << "both are";
  Press("Italic");
  EXPECT_EQ(TextOf(date, "font/style"), "BOLD");
  EXPECT_EQ(TextOf(label, "font/style"), "NORMAL");
  Press("Bold");
  EXPECT_EQ(TextOf(label, "font/style"), "BOLD") << "what one of them lacks, all get";
  Run("Undo");
  EXPECT_EQ(TextOf(label, "font/style"), "NORMAL");
}

TEST_F(Fonts, TheColourOfLettersLeavesAGraphsFrameAlone) {
  Open(L"Line_comparison");
  const std::size_t graph = CardOf("reportGraph");
  const std::size_t label = CardOf("label");
  Select({graph});
  const std::string frame = TextOf(graph, "color");
  PickColor("#a02020");
  EXPECT_EQ(TextOf(graph, "color"), frame);
  EXPECT_EQ(TextOf(graph, "font/color"), "2020A0");
  Select({label});
  PickColor("#a02020");
  EXPECT_EQ(TextOf(label, "color"), "2020A0");
}

TEST_F(Fonts, CardsWithoutLettersHaveNoneToChange) {
  OpenSample();
  Select({CardOf("primitive")});
  EXPECT_FALSE(ColorOfText().isEnabled());
  EXPECT_FALSE(Button("Bold").isEnabled());
  Select({CardOf("primitive"), CardOf("label")});
  EXPECT_FALSE(ColorOfText().isEnabled());
  Select({CardOf("date"), CardOf("label")});
  EXPECT_TRUE(ColorOfText().isEnabled());
}

TEST_F(Fonts, TypedSizesAreOneStepUntilTheKeyboardLeaves) {
  OpenSample();
  const std::size_t card = CardOf("date");
  Select({card});
  const std::string before = TextOf(card, "font/size");
  auto& size = PartOf<MixedSpinBox>(Group());
  size.setFocus();
  size.selectAll();
  QTest::keyClicks(&size, QStringLiteral("12,5"));
  EXPECT_EQ(TextOf(card, "font/size"), "12.50");
  View().setFocus();
  Settle();
  Run("Undo");
  EXPECT_EQ(TextOf(card, "font/size"), before);
}

}  // namespace
}  // namespace xrpt
