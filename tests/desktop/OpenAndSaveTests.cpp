// What the user is told when a report cannot be read or written, and the question before changes are lost.
#include <gmock/gmock.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "desktop/ProblemsDesk.h"
#include "desktop/WindowTest.h"
#include "desktop/panels/MessageBar.h"
#include "desktop/panels/ProblemsWatch.h"

namespace xrpt {
namespace {

using ::testing::HasSubstr;

class OpenAndSave : public WindowTest {
 protected:
  std::string Message() { return Window().Messages().Message().toStdString(); }
  // Presses a button of the question that is about to be asked.
  void AnswerWith(QMessageBox::StandardButton button) {
    QTimer::singleShot(0, &Window(), [this, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      asked_ = box != nullptr;
      if (box) box->button(button)->click();
    });
  }
  bool asked_ = false;
};

TEST_F(OpenAndSave, WhatCannotBeReadSaysWhyAndOpensAsANewReport) {
  std::filesystem::create_directory(host.Cfg() / "folder.xrpt");
  const std::pair<Path, const char*> rows[] = {{host.WriteCfg("1.broken.xrpt", "<reportLayout><page>"), "broken"},
                                               {host.WriteCfg("2.empty.xrpt", ""), "empty"},
                                               {host.Cfg() / "folder.xrpt", "folder"},
                                               {host.Cfg() / "3.missing.xrpt", "missing"}};
  for (const auto& [file, name] : rows) {
    Window().Open(file.wstring());
    Settle();
    EXPECT_THAT(Message(), HasSubstr(name));
    EXPECT_THAT(Message(), HasSubstr("this is a new report")) << name;
    EXPECT_EQ(Frame().PageCount(), 1u) << name;
    EXPECT_FALSE(Frame().IsModified()) << name;
  }
  EXPECT_EQ(Window().Problems().Watch().Problems().Count(Severity::Error), 4u);
  OpenSample();
  EXPECT_EQ(Message(), "");
}

TEST_F(OpenAndSave, AFailedWriteIsShownAndOffersAnotherName) {
  OpenSample();
  const Path file = Frame().Report().FilePath();
  std::filesystem::remove(file);
  std::filesystem::create_directories(file / "in the way");
  Frame().SetModified(true);
  Settle();
  Run("Save");
  EXPECT_THAT(Message(), HasSubstr(file.filename().string()));
  const auto buttons = Window().Messages().findChildren<QPushButton*>();
  ASSERT_EQ(buttons.size(), 1);
  EXPECT_EQ(buttons[0]->text().toStdString(), "Save as");
}

TEST_F(OpenAndSave, ClosingAsksAboutChanges) {
  OpenSample();
  const Path file = Frame().Report().FilePath();
  const std::string before = TestHost::ReadFile(file);
  const auto close = [&](QMessageBox::StandardButton answer) {
    Frame().SetModified(true);
    AnswerWith(answer);
    const bool closed = Window().close();
    EXPECT_TRUE(asked_);
    Window().show();
    return closed;
  };
  EXPECT_FALSE(close(QMessageBox::Cancel));
  EXPECT_TRUE(close(QMessageBox::No));
  EXPECT_EQ(TestHost::ReadFile(file), before);
  EXPECT_TRUE(close(QMessageBox::Yes));
  EXPECT_NE(TestHost::ReadFile(file), before);
}

TEST_F(OpenAndSave, AWindowStaysOpenWhenItsReportCannotBeWritten) {
  OpenSample();
  const Path file = Frame().Report().FilePath();
  std::filesystem::remove(file);
  std::filesystem::create_directories(file / "in the way");
  Frame().SetModified(true);
  AnswerWith(QMessageBox::Yes);
  EXPECT_FALSE(Window().close());
}

TEST_F(OpenAndSave, TheLastReportOpensAgain) {
  OpenSample();
  Frame().SetModified(true);
  Run("Save");
  CloseWindow();
  Window().OpenLast();
  Settle();
  EXPECT_EQ(Frame().Report().name, kSample);
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
