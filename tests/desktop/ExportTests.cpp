// Pages that leave the editor as files: what they are called, what they are, and what is said when they cannot be
// written.
#include <gmock/gmock.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "desktop/WindowTest.h"
#include "desktop/dialogs/ExportDialog.h"
#include "desktop/dialogs/ExportNames.h"
#include "desktop/panels/MessageBar.h"

namespace xrpt {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

TEST(ExportNames, KeepAnEndingOfTheirKindAndGetOneOtherwise) {
  const QStringList endings = {QStringLiteral(".png"), QStringLiteral(".svg")};
  const std::pair<const char*, const char*> rows[] = {
      {"page", "page.png"},       {"page.svg", "page.svg"}, {"page.SVG", "page.SVG"},      {"page.PNG", "page.PNG"},
      {"page.v2", "page.v2.png"}, {"svg", "svg.png"},       {"page.jpeg", "page.jpeg.png"}};
  for (const auto& [typed, name] : rows)
    EXPECT_EQ(WithEnding(QString::fromLatin1(typed), endings).toStdString(), name) << typed;
}

TEST(ExportNames, PagesAreNumberedWhenThereAreSeveral) {
  EXPECT_THAT(PageFiles("/a/page.svg", {2}), ElementsAre(Path("/a/page.svg")));
  EXPECT_THAT(PageFiles("/a/page.v2.png", {0, 2}), ElementsAre(Path("/a/page.v2-1.png"), Path("/a/page.v2-3.png")));
}

class Export : public WindowTest {
 protected:
  Export() { OpenSample(); }
  // Types a name into the file dialog that the command opens, and answers the question that may follow.
  void RunAndType(const char* command, const Path& file, QMessageBox::StandardButton answer = QMessageBox::NoButton) {
    QTimer::singleShot(0, &Window(), [this, file, answer] {
      auto* options = dynamic_cast<ExportDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(options, nullptr);
      if (choose) choose(*options);
      QTimer::singleShot(0, &Window(), [this, file, answer] { TypeName(file, answer); });
      QTest::keyClick(options, Qt::Key_Return);
    });
    Run(command);
  }
  void TypeName(const Path& file, QMessageBox::StandardButton answer) {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QString::fromStdString(file.string()));
    QTimer::singleShot(0, &Window(), [this, answer] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      asked_ = box ? box->text().toStdString() : "";
      if (box) box->button(answer)->click();
    });
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
  }
  std::string Message() { return Window().Messages().Message().toStdString(); }

  std::function<void(ExportDialog&)> choose;  // what is chosen before the file
  std::string asked_;
};

TEST_F(Export, PicturesAreWhatTheirNameSays) {
  RunAndType("ExportImages", host.Folder() / "drawing.svg");
  EXPECT_THAT(TestHost::ReadFile(host.Folder() / "drawing-1.svg"),
              AllOf(HasSubstr("<svg"), HasSubstr("Informe mensual")));
  EXPECT_TRUE(std::filesystem::exists(host.Folder() / "drawing-4.svg"));
  RunAndType("ExportImages", host.Folder() / "picture");
  const QImage picture(QString::fromStdString((host.Folder() / "picture-1.png").string()));
  EXPECT_EQ(picture.size(), QSize(1240, 1754)) << "210 by 297 mm at 150 dots per inch";
  RunAndType("ExportPdf", host.Folder() / "paper");
  EXPECT_THAT(TestHost::ReadFile(host.Folder() / "paper.pdf"), StartsWith("%PDF"));
  EXPECT_EQ(Message(), "");
  EXPECT_FALSE(Frame().IsModified());
}

TEST_F(Export, PagesAndResolutionAreChosen) {
  choose = [](ExportDialog& dialog) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly), "4, 2");
    dialog.findChildren<QSpinBox*>().at(0)->setValue(72);
    EXPECT_THAT(dialog.Choice().pages, ElementsAre(1u, 3u));
  };
  RunAndType("ExportImages", host.Folder() / "some.png");
  EXPECT_FALSE(std::filesystem::exists(host.Folder() / "some-1.png"));
  const QImage picture(QString::fromStdString((host.Folder() / "some-4.png").string()));
  EXPECT_EQ(picture.width(), 595) << "210 mm at 72 dots per inch";
  ExportDialog dialog(ExportFormat::Pdf, 4, 0, &Window());
  auto* range = dialog.findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
  QTest::keyClicks(range, "2-9");
  EXPECT_TRUE(dialog.Choice().pages.empty());
  dialog.findChildren<QRadioButton*>().at(1)->click();
  EXPECT_THAT(dialog.Choice().pages, ElementsAre(0u));
}

TEST_F(Export, ThePreviewShowsEveryPage) {
  QTimer::singleShot(0, &Window(), [] {
    auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    QTest::qWait(50);
    EXPECT_EQ(dialog->findChild<QPrintPreviewWidget*>()->pageCount(), 4);
    dialog->reject();
  });
  Run("PrintPreview");
}

TEST_F(Export, NumberedFilesAreNotReplacedUnasked) {
  const Path there = TestHost::WriteFile(host.Folder() / "picture-2.png", "mine");
  RunAndType("ExportImages", host.Folder() / "picture.png", QMessageBox::No);
  EXPECT_THAT(asked_, HasSubstr("1 of the files"));
  EXPECT_EQ(TestHost::ReadFile(there), "mine");
  EXPECT_FALSE(std::filesystem::exists(host.Folder() / "picture-1.png"));
  RunAndType("ExportImages", host.Folder() / "picture.png", QMessageBox::Yes);
  EXPECT_NE(TestHost::ReadFile(there), "mine");
}

TEST_F(Export, AFailureSaysWhichFileAndWhyInPlainWords) {
  const Path file = host.Folder() / "in the way.pdf";
  std::filesystem::create_directories(file / "full");
  Window().Messages().Dismiss();
  // The dialog would step into the folder; the ending makes another name of it.
  RunAndType("ExportPdf", host.Folder() / "in the way");
  EXPECT_THAT(Message(), AllOf(HasSubstr("in the way.pdf could not be written."), HasSubstr("directory"),
                               Not(HasSubstr("::")), Not(HasSubstr("unsaved"))));
  ASSERT_EQ(Window().Messages().findChildren<QPushButton*>().size(), 1);
  EXPECT_EQ(Window().Messages().findChildren<QPushButton*>()[0]->text().toStdString(), "Try again…");
  EXPECT_EQ(host.logger->Text(4), "") << "nothing of the report is in danger";
}

}  // namespace
}  // namespace xrpt
