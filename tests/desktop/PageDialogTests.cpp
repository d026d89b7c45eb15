// The page properties by hand.
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QTimer>

#include "desktop/TextIds.h"
#include "desktop/WindowTest.h"
#include "desktop/dialogs/PageDialog.h"
#include "desktop/panels/MixedSpinBox.h"
#include "model/RVCardImage.h"

namespace xrpt {
namespace {

class PageWindow : public WindowTest {
 protected:
  // What is done to the dialog that the command opens.
  void Configure(std::function<void(PageDialog&)> act) {
    QTimer::singleShot(0, &Window(), [act = std::move(act)] {
      auto* dialog = dynamic_cast<PageDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      act(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
    Run("Config");
  }
  static void Type(QWidget& dialog, const char* field, const char* number) {
    auto* box = dynamic_cast<MixedSpinBox*>(dialog.findChild<QDoubleSpinBox*>(QLatin1String(field)));
    ASSERT_NE(box, nullptr) << field;
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, number);
  }
};

TEST_F(PageWindow, PaperGridAndBackgroundAreOneStep) {
  OpenSample();
  const RVGlobalProperties before = Page().Page().properties;
  Configure([](PageDialog& dialog) {
    auto* format = dialog.findChild<QComboBox*>();
    EXPECT_EQ(dialog.focusWidget(), format);
    QTest::keyClick(format, Qt::Key_Home);
    EXPECT_EQ(dialog.findChild<QDoubleSpinBox*>(QStringLiteral("height"))->value(), 420.0);
    Type(dialog, "rounded", "7.5");
    Type(dialog, "xgrid", "12");
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_EQ(Page().Page().properties.width, 297.0);
  EXPECT_EQ(Page().Page().properties.rounded, 7.5);
  EXPECT_EQ(std::abs(Page().Page().properties.xgrid), 12.0);
  Run("Undo");
  EXPECT_TRUE(Page().Page().properties.HasSameRows(before));
}

TEST_F(PageWindow, AnOwnSizeIsNoFormatAndEscapeChangesNothing) {
  OpenSample();
  Configure([](PageDialog& dialog) {
    auto* format = dialog.findChild<QComboBox*>();
    Type(dialog, "width", "123");
    EXPECT_EQ(format->currentIndex(), format->count() - 1);
    dialog.findChildren<QRadioButton*>().at(1)->click();
    EXPECT_EQ(dialog.findChild<QDoubleSpinBox*>(QStringLiteral("height"))->value(), 123.0);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_EQ(Page().Page().properties.width, 210.0);
  EXPECT_FALSE(Frame().IsModified());
}

}  // namespace
}  // namespace xrpt
