// The list of reports to open from: what it holds, what the filter leaves, and what is chosen in the end.
#include <gmock/gmock.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

#include "desktop/DialogTest.h"
#include "desktop/TextIds.h"
#include "desktop/dialogs/ReportListDialog.h"
#include "desktop/dialogs/ReportPreview.h"
#include "desktop/look/Texts.h"
#include "editor/CommandTexts.h"
#include "editor/EditorTexts.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ReportListWindow : public WindowTest {
 protected:
  ReportListWindow() {
    std::filesystem::remove_all(host.Cfg());
    for (const char* name : {"1.Water.xrpt", "2.energy week.xrpt", "3.Energy month.xrpt", "4.Gas.xrpt"})
      host.WriteCfg(name, "<reportLayout/>");
    host.WriteCfg("5.Other.XSTY", "<style/>");
  }
  // What `look` sees of the dialog, and what the dialog gives back.
  template <class Look>
  std::optional<std::wstring> Choose(const std::wstring& current, const Look& look) {
    WhenOpen([&](QWidget& opened) {
      auto* dialog = dynamic_cast<ReportListDialog*>(&opened);
      ASSERT_NE(dialog, nullptr);
      list_ = dialog->findChild<QTreeWidget*>();
      filter_ = dialog->findChild<QLineEdit*>();
      open_ = &Button(*dialog, text::kOpen);
      look(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
    return ReportListDialog::Choose(current, {}, &Window());
  }
  std::vector<std::string> Shown() const {
    std::vector<std::string> names;
    for (int row = 0; row < list_->topLevelItemCount(); ++row) {
      if (!list_->topLevelItem(row)->isHidden()) names.push_back(list_->topLevelItem(row)->text(0).toStdString());
    }
    return names;
  }
  std::string Current() const {
    return list_->currentItem() ? list_->currentItem()->text(0).toStdString() : std::string();
  }
  void Type(const char* text) { QTest::keyClicks(filter_, QString::fromLatin1(text)); }

  QTreeWidget* list_ = nullptr;
  QLineEdit* filter_ = nullptr;
  QAbstractButton* open_ = nullptr;
};

TEST_F(ReportListWindow, HoldsTheReportsByNameWithTheCurrentOneChosen) {
  const auto chosen = Choose(L"Gas", [this](ReportListDialog& dialog) {
    EXPECT_EQ(Shown().size(), 4u);
    EXPECT_EQ(Current(), "Gas");
    EXPECT_EQ(dialog.focusWidget(), filter_);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_EQ(chosen, L"Gas");
}

TEST_F(ReportListWindow, TheFilterLeavesWhatIsMeant) {
  const auto chosen = Choose(L"Water", [this](ReportListDialog& dialog) {
    Type("ENERGY");
    EXPECT_THAT(Shown(), ElementsAre("Energy month", "energy week"));
    Type(" m");
    EXPECT_THAT(Shown(), ElementsAre("Energy month"));
    EXPECT_EQ(Current(), "Energy month") << "what is hidden cannot stay chosen";
    EXPECT_TRUE(open_->isEnabled());
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_EQ(chosen, L"Energy month");
}

TEST_F(ReportListWindow, NothingThatFitsOpensNothing) {
  const auto chosen = Choose(L"Water", [this](ReportListDialog&) {
    Type("zzz");
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_FALSE(open_->isEnabled());
    filter_->clear();
    EXPECT_EQ(Shown().size(), 4u);
    EXPECT_TRUE(open_->isEnabled());
  });
  EXPECT_EQ(chosen, std::nullopt) << "Escape";
}

TEST_F(ReportListWindow, ADoubleClickOpens) {
  const auto chosen = Choose(L"", [this](ReportListDialog&) {
    QTreeWidgetItem* item = list_->findItems(QStringLiteral("Water"), Qt::MatchExactly).at(0);
    const QPoint middle = list_->visualItemRect(item).center();
    QTest::mouseClick(list_->viewport(), Qt::LeftButton, {}, middle);
    QTest::mouseDClick(list_->viewport(), Qt::LeftButton, {}, middle);
  });
  EXPECT_EQ(chosen, L"Water");
}

TEST_F(ReportListWindow, FilesAreRenamedCopiedAndDeletedByHand) {
  Choose(L"Water", [this](ReportListDialog& dialog) {
    list_->setFocus();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    WhenOpen([](QWidget& box) {
      QTest::keyClicks(box.findChild<QLineEdit*>(), "Steam");
      QTest::keyClick(&box, Qt::Key_Return);
    });
    QTest::keyClick(list_, Qt::Key_F2);
    EXPECT_THAT(Shown(), ElementsAre("Energy month", "energy week", "Gas", "Steam"));
    WhenOpen([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    Button(dialog, text::kDuplicateButton).click();
    EXPECT_EQ(Current(), "Steam_1");
    list_->setFocus();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    WhenOpen([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    QTest::keyClick(list_, Qt::Key_Delete);
    EXPECT_EQ(Shown().size(), 5u) << "asked first";
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    WhenOpen([](QWidget& box) { Button(box, text::kDeleteAnswer).click(); });
    QTest::keyClick(list_, Qt::Key_Delete);
    EXPECT_THAT(Shown(), ElementsAre("Energy month", "energy week", "Gas", "Steam"));
  });
  EXPECT_TRUE(std::filesystem::exists(host.Cfg() / "1.Steam.xrpt"));
  EXPECT_FALSE(std::filesystem::exists(host.Cfg() / "1.Water.xrpt"));
}

TEST_F(ReportListWindow, AReportThatCanBeReadIsPreviewed) {
  host.WriteCfg("6.Broken.xrpt", "<reportLayout");
  Choose(L"Gas", [this](ReportListDialog& dialog) {
    auto& preview = PartOf<ReportPreview>(dialog);
    EXPECT_TRUE(QTest::qWaitFor([&] { return preview.HasPicture(); }, 2000));
    Type("Broken");
    QTest::qWait(200);
    EXPECT_FALSE(preview.HasPicture());
    filter_->clear();
    Type("Gas");
    EXPECT_TRUE(preview.HasPicture()) << "known already";
  });
}

}  // namespace
}  // namespace xrpt
