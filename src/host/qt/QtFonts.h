// Text measured with the system's fonts at one large reference size, unhinted, so that every device agrees. Each text
// is shaped once: what was measured is remembered with its glyphs for whoever paints it, in whatever thread.
#pragma once

#include <QFont>
#include <atomic>
#include <list>
#include <mutex>
#include <thread>

#include "host/qt/ShapedText.h"
#include "host/qt/TextHash.h"
#include "platform/Fonts.h"

namespace xrpt {

// The em in which everything is measured, and in which `QtGraphics` draws before it scales.
inline constexpr int kReferenceEm = 1024;

// The font at the reference size.
QFont ReferenceFont(const Font& font);

class QtFonts final : public FontService {
 public:
  static constexpr std::size_t kMostTexts = 20'000;  // remembered of each face, up to twice as many
  static constexpr std::size_t kLongestText = 200;   // longer ones are measured each time

  FontMetrics Metrics(const Font& font) override;
  double Width(const Font& font, std::wstring_view text) override;
  FacePresence Presence(std::wstring_view face) override;

  // The text in the face and style, whatever the size.
  ShapedText Shaped(const Font& font, std::wstring_view text);
  // How many texts were shaped so far.
  int Shapings() const { return shapings_; }

 private:
  // A face in one style, everything in ems.
  struct Face {
    std::wstring name;
    FontStyle style;
    QFont font;  // of the thread that came first; others make their own
    std::thread::id owner;
    FontMetrics metrics;
    RecentTexts<ShapedText> texts{kMostTexts};
  };
  Face& FaceOf(const Font& font);

  std::mutex mutex_;       // not held while a text is shaped
  std::list<Face> faces_;  // last used first
  std::atomic<int> shapings_ = 0;
};

}  // namespace xrpt
