// The image store by hand: what comes over the clipboard and by dropping, and what is shown of it.
#include <QClipboard>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

#include "desktop/DialogTest.h"
#include "desktop/TextIds.h"
#include "desktop/dialogs/ImageStoreDialog.h"
#include "desktop/dialogs/PictureChooser.h"
#include "desktop/look/Texts.h"
#include "editor/EditorTexts.h"
#include "editor/ImageStore.h"
#include "host/qt/QtPictures.h"
#include "model/RVCardImage.h"

namespace xrpt {
namespace {

class ImageStoreWindow : public WindowTest {
 protected:
  ImageStoreWindow() { host->pictures = std::make_unique<QtPictures>(); }
  static QImage Blue() {
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    return image;
  }
  // The folders are a list, too.
  static QListView& Pictures(const ImageStoreDialog& dialog) {
    for (auto* view : dialog.findChildren<QListView*>()) {
      if (dynamic_cast<PicturesModel*>(view->model())) return *view;
    }
    throw std::out_of_range("no pictures");
  }
  static int Shown(const ImageStoreDialog& dialog) { return Pictures(dialog).model()->rowCount(); }
};

TEST_F(ImageStoreWindow, PicturesComeByClipboardAndDropAndGoAfterAQuestion) {
  ImageStoreDialog dialog(Frame().Report(), &Window());
  int told = 0;
  dialog.changed = [&told] { ++told; };
  dialog.show();
  QGuiApplication::clipboard()->setImage(Blue());
  Button(dialog, text::kPasteButton).click();
  EXPECT_EQ(ListPictures(), std::vector<std::wstring>{L"picture"});

  const QString file = QString::fromStdString((host.Folder() / "boiler.png").string());
  ASSERT_TRUE(Blue().save(file));
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(file), QUrl(QStringLiteral("https://example.org/x.png"))});
  QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&dialog, &enter);
  QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&dialog, &drop);
  EXPECT_EQ(Shown(dialog), 2);
  EXPECT_EQ(told, 2);
  EXPECT_EQ(PartsOf<QLabel>(dialog).size(), 2u);
  EXPECT_TRUE(Button(dialog, text::kReplaceButton).isEnabled()) << "what was added is selected";

  WhenOpen([](QWidget& box) { Button(box, text::kDeleteAnswer).click(); });
  Button(dialog, text::kDeleteButton).click();
  EXPECT_EQ(ListPictures(), std::vector<std::wstring>{L"picture"});

  QGuiApplication::clipboard()->setText(QStringLiteral("words"));
  WhenOpen([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  Button(dialog, text::kPasteButton).click();
  EXPECT_EQ(Shown(dialog), 1);
}

TEST_F(ImageStoreWindow, FoldersNarrowTheListAndUsesLeadToTheCard) {
  std::filesystem::copy(Path(XRPT_EXAMPLES) / "images", host.Images(), std::filesystem::copy_options::recursive);
  OpenSample();
  std::wstring chosen = L"none";
  ImageStoreDialog dialog(Frame().Report(), &Window());
  dialog.useChosen = [&chosen](const PictureUse& use) { chosen = use.cardId; };
  dialog.show();
  auto* folders = dialog.findChildren<QListWidget*>().at(0);
  const int all = Shown(dialog);
  folders->setCurrentRow(folders->count() - 1);
  EXPECT_LT(Shown(dialog), all);
  folders->setCurrentRow(0);
  const PictureUses uses = UsesOfPictures(Frame().Report());
  ASSERT_FALSE(uses.empty());
  auto* pictures = &Pictures(dialog);
  const auto* model = dynamic_cast<const PicturesModel*>(pictures->model());
  pictures->setCurrentIndex(model->index(model->RowOf(uses.begin()->first)));
  auto* list = dialog.findChildren<QListWidget*>().at(1);
  ASSERT_EQ(static_cast<std::size_t>(list->count()), uses.begin()->second.size());
  list->setCurrentRow(0);
  emit list->itemDoubleClicked(list->item(0));
  EXPECT_EQ(chosen, uses.begin()->second[0].cardId);
}

}  // namespace
}  // namespace xrpt
