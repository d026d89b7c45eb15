// The list of reports to open from: what it holds, what the filter leaves, and what is chosen in the end.
#include <gmock/gmock.h>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "desktop/WindowTest.h"
#include "desktop/dialogs/OpenDialog.h"

namespace xrpt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OpenList : public WindowTest {
 protected:
  OpenList() {
    std::filesystem::remove_all(host.Cfg());
    for (const char* name : {"1.Water.xrpt", "2.energy week.xrpt", "3.Energy month.xrpt", "4.Gas.xrpt"})
      host.WriteCfg(name, "<reportLayout/>");
    host.WriteCfg("5.Other.XSTY", "<style/>");
  }
  // What `look` sees of the dialog, and what the dialog gives back.
  template <class Look>
  std::optional<std::wstring> Choose(const std::wstring& current, const Look& look) {
    QTimer::singleShot(0, &Window(), [&] {
      auto* dialog = dynamic_cast<OpenDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      list_ = dialog->findChild<QTreeWidget*>();
      filter_ = dialog->findChild<QLineEdit*>();
      open_ = dialog->findChild<QDialogButtonBox*>()->buttons().at(0);
      look(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
    return OpenDialog::Choose(current, &Window());
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

TEST_F(OpenList, HoldsTheReportsByNameWithTheCurrentOneChosen) {
  const auto chosen = Choose(L"Gas", [this](OpenDialog& dialog) {
    EXPECT_EQ(Shown().size(), 4u);
    EXPECT_EQ(Current(), "Gas");
    EXPECT_EQ(dialog.focusWidget(), filter_);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_EQ(chosen, L"Gas");
}

TEST_F(OpenList, TheFilterLeavesWhatIsMeant) {
  const auto chosen = Choose(L"Water", [this](OpenDialog& dialog) {
    Type("ENERGY");
    EXPECT_THAT(Shown(), ::testing::UnorderedElementsAre("energy week", "Energy month"));
    Type(" m");
    EXPECT_THAT(Shown(), ElementsAre("Energy month"));
    EXPECT_EQ(Current(), "Energy month") << "what is hidden cannot stay chosen";
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_EQ(chosen, L"Energy month");
}

TEST_F(OpenList, NothingThatFitsOpensNothing) {
  const auto chosen = Choose(L"Water", [this](OpenDialog&) {
    Type("zzz");
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_FALSE(open_->isEnabled());
    filter_->clear();
    EXPECT_EQ(Shown().size(), 4u);
    EXPECT_TRUE(open_->isEnabled());
  });
  EXPECT_EQ(chosen, std::nullopt) << "Escape";
}

TEST_F(OpenList, ADoubleClickOpens) {
  const auto chosen = Choose(L"", [this](OpenDialog&) {
    QTreeWidgetItem* item = list_->findItems(QStringLiteral("Water"), Qt::MatchExactly).at(0);
    const QPoint middle = list_->visualItemRect(item).center();
    QTest::mouseClick(list_->viewport(), Qt::LeftButton, {}, middle);
    QTest::mouseDClick(list_->viewport(), Qt::LeftButton, {}, middle);
  });
  EXPECT_EQ(chosen, L"Water");
}

}  // namespace
}  // namespace xrpt
