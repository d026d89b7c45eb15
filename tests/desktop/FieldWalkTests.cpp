// Every field of every kind of card, and of the page: its editor is found in the panel, changed by hand, and what was
// changed is in the file and goes back as one named step. And what helps to find a field.
#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include "canvas/UndoTexts.h"
#include "desktop/DialogTest.h"
#include "desktop/TextIds.h"
#include "desktop/WindowTest.h"
#include "desktop/dialogs/StylesDialog.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/AlternativesEditor.h"
#include "desktop/panels/ColorButton.h"
#include "desktop/panels/MixedSpinBox.h"
#include "desktop/panels/PropertyPanel.h"
#include "editor/TextStyles.h"
#include "model/CardRegistry.h"
#include "model/FieldTexts.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDate.h"
#include "model/RVCardLabel.h"

namespace xrpt {
namespace {

class FieldWalk : public WindowTest {
 protected:
  FieldWalk() {
    for (const tagStyleCfg& style : ListStyles()) RemoveStyles({style.name});
    tagStyleCfg style;
    style.name = L"Loud";
    style.font.size = 30.0;
    SaveStyle(style, {});
  }

  PropertyPanel& Panel() { return Window().Properties(); }
  void Put(std::unique_ptr<RVCardControl> card) {
    card->id = L"C";
    card->x = card->y = 20.0;
    card->width = card->height = 40.0;
    Page().Edit({0, 1}).Cards().PushFront(std::move(card));
    Page().SelectControls({L"C"});
    Settle();
  }
  void Empty() {
    Page().SelectControls({});
    Page().Edit({0, 1}).Cards().Remove({0});
    Settle();
  }

  // Does to a widget what a hand would do to change it. False for a kind that nobody knows here.
  bool Change(QWidget& widget) {
    if (auto* box = dynamic_cast<MixedSpinBox*>(&widget)) return Step(*box);
    if (auto* check = qobject_cast<QCheckBox*>(&widget)) return check->click(), true;
    if (auto* button = dynamic_cast<ColorButton*>(&widget)) return Pick(*button);
    auto* combo = qobject_cast<QComboBox*>(&widget);
    if (combo && !combo->isEditable()) return StepIn(*combo);
    auto* line = qobject_cast<QLineEdit*>(&widget);
    auto* lines = qobject_cast<QPlainTextEdit*>(&widget);
    if (!line && !lines) line = widget.findChild<QLineEdit*>();
    if (!line && !lines) lines = widget.findChild<QPlainTextEdit*>();
    if (line) return Type(*line);
    return lines && Type(*lines);
  }

  static bool Step(MixedSpinBox& box) {
    box.setFocus();
    QTest::keyClick(&box, box.value() < box.maximum() ? Qt::Key_Up : Qt::Key_Down);
    return true;
  }
  static bool StepIn(QComboBox& combo) {
    combo.setFocus();
    QTest::keyClick(&combo, combo.currentIndex() + 1 < combo.count() ? Qt::Key_Down : Qt::Key_Up);
    return true;
  }
  template <class Field>
  static bool Type(Field& field) {
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("1"));
    QTest::keyClick(&field, Qt::Key_Tab);
    return true;
  }
  // Takes a colour that it does not have from the board that it opens.
  static bool Pick(ColorButton& button) {
    QTimer::singleShot(0, &button, [&button] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      for (auto* swatch : menu->findChildren<QToolButton*>()) {
        if (swatch->accessibleName() != button.toolTip()) return swatch->click();
      }
    });
    button.click();
    return true;
  }

  // Nothing of it in the file, or none of it that the panel could change at once.
  static bool IsLeftOut(const FieldRow& row) { return row.panel.editor == FieldEditor::None; }

  std::string Saved() const {
    std::string text = const_cast<FieldWalk*>(this)->Frame().Report().TemplateText();
    const std::size_t from = text.find("<revision>");
    const std::size_t to = text.find("</revision>");
    return text.erase(from, to - from);
  }

  // `find` gives a field's widget by name, `object` the card or page as it is now.
  template <class Row, class Find, class Object>
  void Try(const std::string& what, const Row& row, const Find& find, const Object& object) {
    const auto text = [&] { return row.text(object()); };
    SCOPED_TRACE(what + " " + row.FullName() + " (" + Translated(row.panel.textId).toStdString() + ")");
    QWidget* widget = find(row.FullName());
    ASSERT_NE(widget, nullptr);
    const std::wstring before = text();
    const std::string saved = Saved();
    const std::size_t steps = Frame().History().DoneNames().size();
    ASSERT_TRUE(Change(*widget)) << widget->metaObject()->className();
    Panel().Commit();
    Settle();
    EXPECT_NE(text(), before);
    // A movement is written once there is one.
    const bool isWritten = !row.isWritten || row.isWritten(object());
    const bool isInFile = isWritten && (row.name || row.panel.editor == FieldEditor::Picture);
    EXPECT_TRUE(!isInFile || Saved() != saved);
    ASSERT_EQ(Frame().History().DoneNames().size(), steps + 1);
    EXPECT_NE(UndoText(Frame().History().NextUndoName()), L"");
    Run("Undo");
    EXPECT_EQ(text(), before);
    EXPECT_EQ(Saved(), saved);
  }
};

TEST_F(FieldWalk, EveryFieldOfEveryCardIsEditedByHandSavedAndTakenBack) {
  for (const RegistryRow& kind : CardRegistry()) {
    if (!kind.onPage) continue;
    Put(kind.kind().Create());
    SelectedFields fields(Frame());
    for (const FieldState& state : fields.Fields()) {
      if (IsLeftOut(*state.row)) continue;
      const auto& row = static_cast<const CardRow&>(*state.row);
      Try(
          kind.kind().tag, row, [this](const std::string& name) { return Panel().Find(name); },
          [this]() -> const RVCardControl& { return Card(L"C"); });
      Page().SelectControls({L"C"});
      Settle();
    }
    Empty();
  }
}

TEST_F(FieldWalk, EveryFieldOfAnAlternativeToo) {
  for (const RegistryRow& kind : CardRegistry()) {
    if (!kind.inConditioned) continue;
    auto container = std::make_unique<RVCardConditioned>();
    container->cards.push_back(kind.kind().Create());
    container->conditions.push_back(L"1 < 2");
    Put(std::move(container));
    SelectedFields fields(Frame(), FieldsOf::Alternative);
    for (const FieldState& state : fields.Fields()) {
      if (IsLeftOut(*state.row)) continue;
      const auto& row = static_cast<const CardRow&>(*state.row);
      Try(
          std::string("inner ") + kind.kind().tag, row,
          [this](const std::string& name) { return Panel().Alternatives().Find(name); },
          [this]() -> const RVCardControl& { return *dynamic_cast<const RVCardConditioned&>(Card(L"C")).cards[0]; });
      Page().SelectControls({L"C"});
      Settle();
    }
    Empty();
  }
}

// A card keeps its own angle; all else of a style reaches the cards that use it, as one step.
TEST_F(FieldWalk, EveryFieldOfAStyleReachesItsFileAndTheCardsThatUseIt) {
  auto label = std::make_unique<RVCardLabel>();
  label->GetStyleFromFile(label->styleName = L"Loud");
  Put(std::move(label));
  StylesDialog dialog(&Window());
  dialog.changed = [this](const std::vector<StyleRenaming>& renamings) { Frame().StylesModified(renamings); };
  dialog.show();
  auto& list = *dialog.findChild<QTreeWidget*>();
  ForEachField(tagStyleCfg::Table(), [&](const FieldOf<tagStyleCfg>& row) {
    SCOPED_TRACE(row.FullName());
    const std::wstring before = row.text(ListStyles().front());
    const std::string saved = Saved();
    const std::size_t steps = Frame().History().DoneNames().size();
    WhenOpen([&](QWidget& style) {
      auto* widget = style.findChild<QWidget*>(QString::fromStdString(row.FullName()));
      ASSERT_NE(widget, nullptr);
      ASSERT_TRUE(Change(*widget));
      QTest::keyClick(&style, Qt::Key_Return);
    });
    dialog.activateWindow();
    list.setFocus();
    list.setCurrentItem(list.topLevelItem(0));
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_NE(row.text(ListStyles().front()), before);
    const bool isCardsOwn = row.panel.editor == FieldEditor::Angle;
    EXPECT_EQ(Saved() == saved, isCardsOwn);
    ASSERT_EQ(Frame().History().DoneNames().size(), isCardsOwn ? steps : steps + 1);
    if (isCardsOwn) return;
    Run("Undo");
    EXPECT_EQ(Saved(), saved);
    Run("Redo");
  });
}

TEST_F(FieldWalk, EveryFieldOfThePage) {
  SelectedFields fields(Frame());
  Settle();
  for (const FieldState& state : fields.Fields()) {
    if (IsLeftOut(*state.row)) continue;
    const auto& row = static_cast<const PageRow&>(*state.row);
    Try(
        "page", row, [this](const std::string& name) { return Panel().Find(name); },
        [this]() -> const RVGlobalProperties& { return Page().Page().properties; });
  }
}

// --- Finding a field ---

TEST_F(FieldWalk, AFilterFindsAFieldAndASectionFolds) {
  Put(std::make_unique<RVCardLabel>());
  QWidget* size = Panel().Find("font/size");
  QWidget* x = Panel().Find("x");
  ASSERT_TRUE(size->isVisible() && x->isVisible());
  auto* filter = Panel().findChild<QLineEdit*>(QStringLiteral("filter"));
  QTest::keyClicks(filter, Translated(text::kFontFace));
  EXPECT_TRUE(size->isVisible());
  EXPECT_FALSE(x->isVisible());
  filter->clear();
  EXPECT_TRUE(x->isVisible());

  QToolButton* title = nullptr;
  for (auto* button : Panel().findChildren<QToolButton*>(QStringLiteral("sectionTitle"))) {
    if (button->text().startsWith(Translated(text::kGroupGeometry))) title = button;
  }
  ASSERT_NE(title, nullptr);
  title->click();
  EXPECT_FALSE(x->isVisible());
  EXPECT_TRUE(size->isVisible());
  QTest::keyClicks(filter, Translated(text::kWidth));
  EXPECT_TRUE(Panel().Find("width")->isVisible()) << "what is found is shown, folded or not";
  filter->clear();
  Empty();
  Put(std::make_unique<RVCardDate>());
  EXPECT_FALSE(Panel().Find("x")->isVisible()) << "the section stays folded";
}

TEST_F(FieldWalk, DatesAreChosenByTheirNames) {
  Put(std::make_unique<RVCardDate>());
  auto* choice = qobject_cast<QComboBox*>(Panel().Find("field"));
  ASSERT_NE(choice, nullptr);
  EXPECT_EQ(choice->currentText(), Translated(text::kNoField));
  choice->setFocus();
  QTest::keyClick(choice, Qt::Key_End);
  Settle();
  EXPECT_EQ(Card(L"C").field, L"END_DATE");
  EXPECT_EQ(choice->currentText(), Translated(32532));
  Empty();
  Put(std::make_unique<RVCardLabel>());
  EXPECT_EQ(qobject_cast<QComboBox*>(Panel().Find("field")), nullptr) << "a variable of the plant";
}

TEST_F(FieldWalk, ColoursOfTheReportStandFirst) {
  auto label = std::make_unique<RVCardLabel>();
  label->color = Rgb(1, 2, 3);
  Put(std::move(label));
  auto* button = dynamic_cast<ColorButton*>(Panel().Find("color"));
  ASSERT_NE(button, nullptr);
  std::string first;
  QTimer::singleShot(0, button, [&first] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    first = menu->findChildren<QToolButton*>().front()->accessibleName().toStdString();
    menu->close();
  });
  button->click();
  EXPECT_EQ(first, "#010203");
}

}  // namespace
}  // namespace xrpt
