// Whatever can be operated has a name for those who do not see it, and can be reached by keyboard.
#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabBar>

#include "desktop/WindowTest.h"
#include "desktop/dialogs/CommandPalette.h"
#include "desktop/dialogs/ReportListDialog.h"
#include "desktop/dialogs/ShortcutSheet.h"

namespace xrpt {
namespace {

// Parts of another widget (the field inside a spin box, a list's scroll bar) are named by their owner.
bool IsPartOfAnother(const QWidget& widget) {
  for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
    if (qobject_cast<const QAbstractSpinBox*>(above) || qobject_cast<const QComboBox*>(above)) return true;
  }
  return widget.objectName().startsWith(QLatin1String("qt_")) || qobject_cast<const QScrollBar*>(&widget) ||
         qobject_cast<const QTabBar*>(widget.parentWidget()) || qobject_cast<const QLineEdit*>(widget.parentWidget());
}

bool IsOperated(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
         qobject_cast<const QAbstractSpinBox*>(&widget) || qobject_cast<const QAbstractSlider*>(&widget) ||
         qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QPlainTextEdit*>(&widget) ||
         qobject_cast<const QAbstractItemView*>(&widget) || qobject_cast<const QTabBar*>(&widget);
}

std::vector<std::string> Nameless(const QWidget& window) {
  std::vector<std::string> found;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (!IsOperated(*widget) || IsPartOfAnother(*widget)) continue;
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
    if (!accessible || accessible->text(QAccessible::Name).trimmed().isEmpty())
      found.push_back(std::string(widget->metaObject()->className()) + " " + widget->objectName().toStdString() +
                      " in " + widget->parentWidget()->objectName().toStdString());
  }
  return found;
}

class Accessibility : public WindowTest {};

TEST_F(Accessibility, EverythingInTheWindowHasAName) {
  OpenSample();
  EXPECT_THAT(Nameless(Window()), ::testing::IsEmpty());
  Click(MiddleOf(CardWith("text/textStr", L"Informe mensual de energía")));
  EXPECT_THAT(Nameless(Window()), ::testing::IsEmpty());
}

TEST_F(Accessibility, TheCardsOfThePageAreThereWithTheirPlace) {
  OpenSample();
  QAccessibleInterface* page = QAccessible::queryAccessibleInterface(View().viewport());
  ASSERT_EQ(page->childCount(), static_cast<int>(Page().Page().cards.Size()));
  const std::wstring id = CardWith("text/textStr", L"Desde");
  const int index = static_cast<int>(Page().Page().cards.IndexOf(id));
  QAccessibleInterface* card = page->child(index);
  EXPECT_THAT(card->text(QAccessible::Name).toStdString(), ::testing::HasSubstr("Desde"));
  EXPECT_THAT(card->text(QAccessible::Description).toStdString(), ::testing::HasSubstr("mm"));
  EXPECT_TRUE(card->rect().contains(View().viewport()->mapToGlobal(MiddleOf(id))));
  EXPECT_EQ(page->indexOfChild(card), index);
  EXPECT_FALSE(card->state().selected);
  Click(MiddleOf(id));
  EXPECT_TRUE(card->state().selected);
  Run("Delete");
  EXPECT_FALSE(card->isValid()) << "a card that is gone";
  EXPECT_EQ(page->child(page->childCount()), nullptr);
}

TEST_F(Accessibility, EverythingInTheDialogsHasAName) {
  const ReportListDialog open(L"", {}, &Window());
  EXPECT_THAT(Nameless(open), ::testing::IsEmpty());
  auto* palette = new CommandPalette(Window().AllActions(), &Window());
  EXPECT_THAT(Nameless(*palette), ::testing::IsEmpty());
  delete palette;
  auto* sheet = new ShortcutSheet(Window().AllActions().All(), &Window());
  EXPECT_THAT(Nameless(*sheet), ::testing::IsEmpty());
  delete sheet;
}

TEST_F(Accessibility, TabLeavesThePageAfterTheLastCard) {
  OpenSample();
  View().setFocus();
  const auto cards = static_cast<int>(Page().Page().cards.Size());
  for (int i = 0; i < cards; ++i) Key(Qt::Key_Tab);
  EXPECT_TRUE(View().hasFocus());
  EXPECT_EQ(Page().SelectedCardId(), Page().Page().cards[0].id);
  Key(Qt::Key_Tab);
  EXPECT_FALSE(View().hasFocus());
}

}  // namespace
}  // namespace xrpt
