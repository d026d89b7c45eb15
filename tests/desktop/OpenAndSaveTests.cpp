// What the user is told when a report cannot be read or written, and the question before changes are lost.
#include <gmock/gmock.h>

#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

#include "desktop/FileKeeper.h"
#include "desktop/ProblemsDesk.h"
#include "desktop/TextIds.h"
#include "desktop/WindowTest.h"
#include "desktop/dialogs/RecoveryDialog.h"
#include "desktop/dialogs/ReportListDialog.h"
#include "desktop/look/Texts.h"
#include "desktop/panels/MessageBar.h"
#include "desktop/panels/ProblemsWatch.h"
#include "model/RVCardLabel.h"
#include "platform/FileTexts.h"

namespace xrpt {
namespace {

using ::testing::HasSubstr;

class OpenAndSave : public WindowTest {
 protected:
  std::string Message() { return Window().Messages().Message().toStdString(); }
  // Presses a button of the question that is about to be asked; 0 presses Escape.
  void AnswerWith(int textId) {
    QTimer::singleShot(0, &Window(), [this, textId] {
      QWidget* box = QApplication::activeModalWidget();
      asked_ = box != nullptr;
      if (!box) return;
      if (textId == 0) return QTest::keyClick(box, Qt::Key_Escape);
      for (QPushButton* button : box->findChildren<QPushButton*>()) {
        if (button->text().remove(QLatin1Char('&')) == Translated(textId)) return button->click();
      }
      box->close();
      ADD_FAILURE() << "no such button: " << Translated(textId).toStdString();
    });
  }
  bool asked_ = false;
};

TEST_F(OpenAndSave, WhatCannotBeReadSaysWhyAndLeavesTheOpenReportAlone) {
  OpenSample();
  Run("Landscape");
  std::filesystem::create_directory(host.Cfg() / "folder.xrpt");
  const std::pair<Path, const char*> rows[] = {{host.WriteCfg("1.broken.xrpt", "<reportLayout><page>"), "broken"},
                                               {host.WriteCfg("2.empty.xrpt", ""), "empty"},
                                               {host.WriteCfg("3.other.xrpt", "<svg/>"), "no report"},
                                               {host.Cfg() / "folder.xrpt", "folder"},
                                               {host.Cfg() / "4.missing.xrpt", "No such file"}};
  for (const auto& [file, name] : rows) {
    Window().Open(file.wstring());
    Settle();
    EXPECT_THAT(Message(), HasSubstr(name));
    EXPECT_EQ(Frame().Report().name, kSample) << name;
    EXPECT_TRUE(Frame().IsModified()) << name;
  }
  EXPECT_GE(Window().Problems().Watch().Problems().Count(Severity::Error), 5u);
  Window().Open(kSample);
  Settle();
  EXPECT_EQ(Message(), "");
}

TEST_F(OpenAndSave, AFailedWriteIsShownAndOffersAnotherName) {
  OpenSample();
  Frame().Rename(std::wstring(300, L'x'));
  Settle();
  Run("Save");
  EXPECT_THAT(Message(), HasSubstr("xxx"));
  EXPECT_THAT(Message(), HasSubstr("name too long"));
  const auto buttons = Window().Messages().findChildren<QPushButton*>();
  ASSERT_EQ(buttons.size(), 1);
  EXPECT_EQ(buttons[0]->text().toStdString(), "Save as");
  AnswerWith(text::kSaveAnswer);
  EXPECT_FALSE(Window().close()) << "the work is still there";
}

TEST_F(OpenAndSave, ClosingAsksAboutChangesAndEscapeCancels) {
  OpenSample();
  const Path file = Frame().Report().File();
  const std::string before = TestHost::ReadFile(file);
  const auto close = [&](int answer) {
    Frame().SetModified(true);
    AnswerWith(answer);
    const bool closed = Window().close();
    EXPECT_TRUE(asked_);
    Window().show();
    return closed;
  };
  EXPECT_FALSE(close(text::kCancel));
  EXPECT_FALSE(close(0));
  EXPECT_TRUE(close(text::kDontSave));
  EXPECT_EQ(TestHost::ReadFile(file), before);
  EXPECT_TRUE(close(text::kSaveAnswer));
  EXPECT_NE(TestHost::ReadFile(file), before);
}

TEST_F(OpenAndSave, WhatOthersChangedIsOfferedAndReloaded) {
  OpenSample();
  const Path file = Frame().Report().File();
  Frame().ShowPage(1);
  std::string text = TestHost::ReadFile(file);
  text.replace(text.find("<version>"), 9, "<version>9");
  TestHost::WriteFile(file, text);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !Message().empty(); }, 3000));
  EXPECT_THAT(Message(), HasSubstr(file.filename().string()));
  PartsOf<QPushButton>(Window().Messages()).at(0)->click();
  Settle();
  EXPECT_EQ(Frame().Report().version.substr(0, 1), L"9");
  EXPECT_EQ(Frame().CurrentPageIndex(), 1u);
  EXPECT_EQ(Message(), "");
  Run("Landscape");
  Run("Save");
  QTest::qWait(1600);
  EXPECT_EQ(Message(), "") << "our own save is no news";
  std::filesystem::remove(file);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !Message().empty(); }, 3000));
  EXPECT_TRUE(Frame().IsModified()) << "to be saved anew";
}

TEST_F(OpenAndSave, StylesThatOthersChangeReachTheOpenReport) {
  const Path style =
      host.WriteCfg("S.Loud.XSTY", "<style><id>S</id><name>Loud</name><font><size>10</size></font></style>");
  host.WriteCfg("A.styled.xrpt",
                "<reportLayout><id>A</id><name>styled</name><page><label><id>L</id><style>S</style></label></page></"
                "reportLayout>");
  Window().Open(L"styled");
  Settle();
  QTest::qWait(900);
  TestHost::WriteFile(style, "<style><id>S</id><name>Loud</name><font><size>30</size></font></style>");
  const auto size = [this] { return dynamic_cast<const RVCardLabel&>(Card(L"L")).font.size; };
  EXPECT_TRUE(QTest::qWaitFor([&] { return size() == 30.0; }, 3000)) << size();
}

TEST_F(OpenAndSave, ReportsOfOneNameAreListedWithTheirFiles) {
  host.WriteCfg("A.twin.xrpt", "<reportLayout><id>A</id><name>twin</name></reportLayout>");
  host.WriteCfg("B.twin.xrpt", "<reportLayout><id>B</id><name>twin</name></reportLayout>");
  QTimer::singleShot(0, &Window(), [] {
    auto* dialog = dynamic_cast<ReportListDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(dialog);
    auto* list = dialog->findChild<QTreeWidget*>();
    EXPECT_FALSE(list->isColumnHidden(3));
    list->setCurrentItem(list->findItems(QStringLiteral("B.twin.xrpt"), Qt::MatchExactly, 3).at(0));
    QTest::keyClick(dialog, Qt::Key_Return);
  });
  Run("Open");
  EXPECT_EQ(Frame().Report().id, L"B");
  EXPECT_EQ(Frame().Report().File().filename(), "B.twin.xrpt");
}

TEST_F(OpenAndSave, UnsavedWorkOfACrashIsOfferedBesideTheFile) {
  const auto kept = std::filesystem::path(host.State() / "recovery" / "gone");
  OpenSample();
  const Path file = Frame().Report().File();
  TestHost::WriteFile(kept / "1.xrpt", "<reportLayout><id>A</id><name>mine</name><page/><page/></reportLayout>");
  TestHost::WriteFile(kept / "1.ini", "[report]\nname=mine\nfile=" + file.string() + "\n");
  TestHost::WriteFile(kept / "2.xrpt", "<reportLayout><id>B</id><name>other</name></reportLayout>");
  TestHost::WriteFile(kept / "2.ini", "[report]\nname=other\n");
  QTimer::singleShot(0, &Window(), [] {
    auto* dialog = dynamic_cast<RecoveryDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(dialog);
    auto* list = dialog->findChild<QTreeWidget*>();
    EXPECT_EQ(list->topLevelItemCount(), 2);
    list->setCurrentItem(list->findItems(QStringLiteral("mine"), Qt::MatchExactly).at(0));
    dialog->accept();
  });
  Window().Files().OfferRecovered();
  Settle();
  EXPECT_EQ(Frame().PageCount(), 2u);
  EXPECT_TRUE(Frame().IsModified());
  EXPECT_EQ(Frame().Report().File(), file);
  EXPECT_EQ(PartsOf<QPushButton>(Window().Messages()).size(), 1u) << "the other one is still waiting";
}

TEST_F(OpenAndSave, TheTitleNamesTheReportAndMarksChanges) {
  OpenSample();
  EXPECT_THAT(Window().windowTitle().toStdString(), HasSubstr("Consumo_mensual[*]"));
  EXPECT_FALSE(Window().isWindowModified());
  Run("Landscape");
  EXPECT_TRUE(Window().isWindowModified());
}

}  // namespace
}  // namespace xrpt
