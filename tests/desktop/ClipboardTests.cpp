// What copying leaves for other programs, and pasting into another window.
#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "desktop/WindowTest.h"
#include "desktop/panels/MessageBar.h"
#include "host/qt/QtPictures.h"
#include "model/RVCardImage.h"

namespace xrpt {
namespace {

class Clipboard : public WindowTest {};

class AskedClipboard final : public ClipboardService {
 public:
  bool PutToClipboard(const ClipboardContent&) override { return true; }
  std::string GetFromClipboard(std::size_t) override {
    ++asked;
    return {};
  }
  int asked = 0;
};

TEST_F(Clipboard, CopiedCardsAreAPictureAndADrawingToOthers) {
  OpenSample();
  const std::wstring id = CardWith("text/textStr", L"Informe mensual de energía");
  Click(MiddleOf(id));
  Run("Copy");
  const ClipboardContent& content = host.clipboard->Content();
  EXPECT_THAT(content.text, ::testing::HasSubstr("controlClipboard"));
  EXPECT_THAT(content.svg, ::testing::HasSubstr("Informe mensual"));
  EXPECT_THAT(content.svg, ::testing::Not(::testing::HasSubstr("Consumo, autoconsumo")));
  const QImage picture = QImage::fromData(QByteArray::fromStdString(content.png));
  // 170 by 15 mm at 192 dots per inch.
  EXPECT_EQ(picture.size(), QSize(1286, 114));
}

TEST_F(Clipboard, CardsArePastedOnAnotherReport) {
  OpenSample();
  Run("SelectAll");
  const std::size_t copied = Page().Selection().Size();
  Run("Copy");
  Run("NewReport");
  ASSERT_TRUE(Page().Page().cards.IsEmpty());
  View().setFocus();
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Page().Page().cards.Size(), copied);
  EXPECT_TRUE(Frame().IsModified());
}

// One that cannot be read changes nothing and says so.
TEST_F(Clipboard, APictureOfAnotherProgramIsStoredAndShownAsOneStep) {
  host->pictures = std::make_unique<QtPictures>();
  OpenSample();
  View().setFocus();
  const std::size_t before = Page().Page().cards.Size();
  QImage picture(60, 30, QImage::Format_RGB32);
  picture.fill(Qt::red);
  QGuiApplication::clipboard()->setImage(picture);
  Settle();
  Key(Qt::Key_V, Qt::ControlModifier);
  ASSERT_EQ(Page().Page().cards.Size(), before + 1);
  const auto& card = dynamic_cast<const RVCardImage&>(Page().Page().cards[0]);
  ASSERT_TRUE(card.GetPicture());
  EXPECT_EQ(card.GetPicture()->width, 60);
  EXPECT_GT(card.width, card.height);
  Run("Undo");
  EXPECT_EQ(Page().Page().cards.Size(), before);
  auto broken = std::make_unique<QMimeData>();
  broken->setData(QStringLiteral("image/png"), "no picture");
  QGuiApplication::clipboard()->setMimeData(broken.release());
  Settle();
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Page().Page().cards.Size(), before);
  EXPECT_TRUE(PartOf<MessageBar>(Window()).isVisible());
  QGuiApplication::clipboard()->clear();
}

// The answer may have to come from another program, which takes its time.
TEST_F(Clipboard, AClickAsksOnceAtMost) {
  auto made = std::make_unique<AskedClipboard>();
  AskedClipboard& clipboard = *made;
  host->clipboard = std::move(made);
  OpenSample();
  const QPoint title = MiddleOf(CardWith("text/textStr", L"Informe mensual de energía"));
  clipboard.asked = 0;
  Click(title);
  EXPECT_FALSE(Page().Selection().IsEmpty());
  EXPECT_LE(clipboard.asked, 1);
}

}  // namespace
}  // namespace xrpt
