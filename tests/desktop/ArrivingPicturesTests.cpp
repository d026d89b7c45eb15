// A page is shown before its pictures are decoded, and edited, undone and looked at otherwise meanwhile: in the end it
// looks as if it had been painted at once.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "desktop/WindowTest.h"
#include "desktop/page/PageImage.h"
#include "host/qt/QtPictures.h"
#include "model/RVCardImage.h"
#include "model/RVCardLabel.h"

namespace xrpt {
namespace {

// Whoever does not paint decodes only while the gate is open: what is on its way stays so as long as a test wants.
class GatedPictures final : public PictureService {
 public:
  PicturePtr Decode(std::string_view bytes) override {
    Wait();
    return pictures_.Decode(bytes);
  }
  PicturePtr Outline(std::string_view bytes) override { return pictures_.Outline(bytes); }
  PicturePtr DecodeScaled(std::string_view bytes, int width, int height) override {
    Wait();
    return pictures_.DecodeScaled(bytes, width, height);
  }
  void Open(bool on) {
    const std::lock_guard guard(mutex_);
    isOpen_ = on;
    opened_.notify_all();
  }

 private:
  void Wait() {
    std::unique_lock guard(mutex_);
    opened_.wait(guard, [this] { return isOpen_ || std::this_thread::get_id() == painter_; });
  }

  QtPictures pictures_;
  const std::thread::id painter_ = std::this_thread::get_id();
  std::mutex mutex_;
  std::condition_variable opened_;
  bool isOpen_ = false;
};

struct LateImage : PageImage {
  LateImage() {
    LoadPicturesApart([] {});
  }
};

class ArrivingPictures : public WindowTest {
 protected:
  static constexpr std::chrono::seconds kPatience{60};

  ArrivingPictures() {
    auto gated = std::make_unique<GatedPictures>();
    gate = gated.get();
    host->pictures = std::move(gated);
    OpenSample();
    Page().SetNotes(&notes, {});
    PageEdit edit = Page().Edit({});
    for (int i = 0; i < 4; ++i) {
      const std::string id = "p" + std::to_string(i);
      Store(id, QColor::fromHsv(90 * i, 200, 200));
      auto card = std::make_unique<RVCardImage>();
      card->id = FromUtf8(id);
      card->LoadOriginalImage(FromUtf8(id), L"./");
      card->x = 10.0 + 22.0 * i;
      card->y = 20.0 + 9.0 * i;
      card->width = 30.0;
      card->height = 25.0;
      edit.Cards().PushFront(std::move(card));
    }
    auto moving = std::make_unique<RVCardLabel>();
    moving->id = L"moving";
    moving->text = L"Energy of the month";
    moving->x = 15.0;
    moving->y = 35.0;
    moving->width = 60.0;
    moving->animation.behavior = Behavior::Scroll;
    edit.Cards().PushFront(std::move(moving));
  }
  ~ArrivingPictures() override {
    gate->Open(true);  // nobody is kept waiting when a test ends early
    CloseWindow();
  }

  void Store(const std::string& id, QColor color) {
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(color);
    QPainter(&image).fillRect(20, 30, 100, 90, Qt::black);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    ASSERT_TRUE(image.save(&bytes, "png"));
    TestHost::WriteFile(host.Images() / (id + ".img"), bytes.data().toBase64().toStdString());
  }

  QImage Shown(PageImage& image) { return image.Paint(Page(), View().viewport()->size(), 1.0).copy(); }
  // The page painted at once, which waits for every picture.
  QImage AtOnce() {
    PageImage image;
    return Shown(image);
  }
  // Lets them come. Only their places are painted, and only what is told to be shown anew changes.
  void CheckAllArrive(PageImage& image, const char* what) {
    QImage before = Shown(image);
    const int paintings = image.Paintings();
    const QImage expected = AtOnce();
    gate->Open(true);
    QRegion changed;
    QImage shown = before;
    const auto start = std::chrono::steady_clock::now();
    while (shown != expected && std::chrono::steady_clock::now() - start < kPatience) {
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
      changed += image.PaintArrived(Page());
      shown = Shown(image);
    }
    EXPECT_EQ(shown, expected) << what;
    EXPECT_EQ(image.Paintings(), paintings) << what;
    for (QImage* picture : {&before, &shown}) {
      QPainter painter(picture);
      painter.setClipRegion(changed);
      painter.fillRect(picture->rect(), Qt::black);
    }
    EXPECT_EQ(before, shown) << what << ": something changed that is not shown";
  }
  void Resize(const std::wstring& id, double width) {
    PageEdit edit = Page().Edit({});
    edit.Card(id)->width = width;
  }

  GatedPictures* gate = nullptr;
  CardNotes notes;
};

TEST_F(ArrivingPictures, ThePageIsShownBeforeThem) {
  LateImage image;
  EXPECT_NE(Shown(image), AtOnce());
  Page().SelectControls({L"p1", L"moving"});
  Page().SetLines({{40.0}, {30.0}});
  CheckAllArrive(image, "under frames, handles and lines");
  gate->Open(false);
  EXPECT_EQ(Shown(image), AtOnce()) << "what has arrived stays";
}

TEST_F(ArrivingPictures, EditsGoOnMeanwhile) {
  LateImage image;
  Shown(image);
  Resize(L"p0", 44.0);
  Shown(image);
  Page().Edit({}).Cards().Remove({Page().Page().cards.IndexOf(L"p2")});
  CheckAllArrive(image, "one wanted larger, one gone");
}

TEST_F(ArrivingPictures, UndoneWhileTheyArrive) {
  LateImage image;
  Shown(image);
  gate->Open(true);
  for (int turn = 0; turn < 5; ++turn) {
    Resize(L"p1", 40.0 + turn);
    Shown(image);
    image.PaintArrived(Page());
    Page().ControlUndo();
    image.PaintArrived(Page());  // with nothing painted since
    Shown(image);
    Page().ControlRedo();
    Shown(image);
  }
  Page().ControlUndo();
  CheckAllArrive(image, "undone");
}

TEST_F(ArrivingPictures, HiddenOnesComeForReadersOnly) {
  Page().HideCard(Page().Page().cards.IndexOf(L"p1"), true);
  LateImage image;
  CheckAllArrive(image, "one is hidden");
  const QImage without = Shown(image);
  gate->Open(false);
  Page().SetPreview(true);
  CheckAllArrive(image, "readers see it");
  EXPECT_NE(Shown(image), without);
  Page().SetPreview(false);
  EXPECT_EQ(Shown(image), without);
}

TEST_F(ArrivingPictures, TextsMoveOnOverThem) {
  LateImage image;
  Shown(image);
  Page().SetAnimationTime(400);
  image.PaintMoving(Page());
  Shown(image);
  Page().SetAnimationTime(800);
  image.PaintMoving(Page());
  CheckAllArrive(image, "a tick and arrivals");
  Page().SetAnimationTime(1200);
  image.PaintMoving(Page());
  EXPECT_EQ(Shown(image), AtOnce()) << "a tick afterwards";
}

// The view hears of arrivals by itself.
TEST_F(ArrivingPictures, TheViewShowsThem) {
  View().SetAnimated(false);
  const QPoint at = MiddleOf(L"p3");
  const auto shown = [&] { return View().viewport()->grab().toImage().pixel(at); };
  const QRgb before = shown();
  const QRgb expected = AtOnce().pixel(at);
  EXPECT_NE(before, expected);
  gate->Open(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == expected; }, 60'000));
}

}  // namespace
}  // namespace xrpt
