// The list of text styles and the dialog that writes one, by hand.
#include <gmock/gmock.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

#include "desktop/DialogTest.h"
#include "desktop/TextIds.h"
#include "desktop/dialogs/StyleDialog.h"
#include "desktop/dialogs/StylesDialog.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/MixedSpinBox.h"
#include "editor/CommandTexts.h"
#include "model/RVCardLabel.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;

class StylesWindow : public WindowTest {
 protected:
  void Make(const std::wstring& name, double size) {
    tagStyleCfg style;
    style.name = name;
    style.font.size = size;
    ASSERT_TRUE(SaveStyle(style, {}));
  }
  static QTreeWidget& List(StylesDialog& dialog) { return *dialog.findChild<QTreeWidget*>(); }
};

TEST_F(StylesWindow, StylesAreMadeChangedAndReachTheOpenReport) {
  for (const tagStyleCfg& style : ListStyles()) RemoveStyles({style.name});
  Make(L"Title", 20.0);
  {
    PageEdit edit = Frame().CurrentPage().Edit({0, 1});
    auto label = std::make_unique<RVCardLabel>();
    label->styleName = L"Title";
    edit.Cards().PushFront(std::move(label));
  }
  StylesDialog dialog(&Window());
  dialog.changed = [this](const std::vector<StyleRenaming>& renamings) { Frame().StylesModified(renamings); };
  dialog.show();
  WhenOpen([](QWidget& style) {
    QTest::keyClicks(style.findChild<QLineEdit*>(), "Heading");
    auto& size = *PartsOf<MixedSpinBox>(style).back();
    size.selectAll();
    QTest::keyClicks(&size, "24");
    QTest::keyClick(&style, Qt::Key_Return);
  });
  List(dialog).setFocus();
  QTest::keyClick(&List(dialog), Qt::Key_Return);
  EXPECT_EQ(List(dialog).topLevelItem(0)->text(0), "Heading");
  EXPECT_EQ(dynamic_cast<const RVCardLabel&>(Page().Page().cards[0]).styleName, L"Heading");

  // A name that is taken by another is asked about; an empty one is refused and the name gets the keyboard.
  WhenOpen([&](QWidget& style) {
    WhenOpen([](QWidget& message) { QTest::keyClick(&message, Qt::Key_Escape); });
    QTest::keyClick(&style, Qt::Key_Return);
    EXPECT_TRUE(style.isVisible());
    EXPECT_EQ(style.focusWidget(), style.findChild<QLineEdit*>());
    QTest::keyClick(&style, Qt::Key_Escape);
  });
  Button(dialog, text::kNewStyleButton).click();
  EXPECT_EQ(List(dialog).topLevelItemCount(), 1);
}

TEST_F(StylesWindow, ButtonsFollowTheSelectionAndKeysWork) {
  for (const tagStyleCfg& style : ListStyles()) RemoveStyles({style.name});
  Make(L"Small", 8.0);
  Make(L"Large", 30.0);
  StylesDialog dialog(nullptr);
  dialog.show();
  List(dialog).selectAll();
  EXPECT_FALSE(Button(dialog, text::kModifyButton).isEnabled());
  EXPECT_TRUE(Button(dialog, text::kRemoveButton).isEnabled());
  Button(dialog, text::kCopy).click();
  Button(dialog, text::kPaste).click();
  EXPECT_EQ(List(dialog).topLevelItemCount(), 4);
  EXPECT_EQ(List(dialog).selectedItems().size(), 2) << "what was pasted";
  List(dialog).clearSelection();
  EXPECT_FALSE(Button(dialog, text::kCopy).isEnabled());
  QTest::mouseClick(List(dialog).header()->viewport(), Qt::LeftButton, {},
                    {List(dialog).header()->sectionViewportPosition(2) + 4, 5});
  EXPECT_EQ(List(dialog).topLevelItem(3)->text(2), QLocale().toString(30.0));
}

}  // namespace
}  // namespace xrpt
