// What copying leaves for other programs, and pasting into another window.
#include <gmock/gmock.h>

#include <QImage>

#include "desktop/WindowTest.h"

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
