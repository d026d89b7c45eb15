// Text measured with the system's fonts at one large reference size, unhinted, so that every device agrees.
#pragma once

#include <QFont>
#include <list>
#include <mutex>
#include <unordered_map>

#include "host/qt/TextHash.h"
#include "platform/Fonts.h"

namespace xrpt {

// The em in which everything is measured, and in which `QtGraphics` draws before it scales.
inline constexpr int kReferenceEm = 1024;

// The font at the reference size.
QFont ReferenceFont(const Font& font);

class QtFonts final : public FontService {
 public:
  static constexpr std::size_t kMaxWidths = 20'000;  // texts remembered of each face

  FontMetrics Metrics(const Font& font) override;
  double Width(const Font& font, std::wstring_view text) override;
  FacePresence Presence(std::wstring_view face) override;

 private:
  // A face in one style, everything in ems.
  struct Face {
    std::wstring name;
    FontStyle style;
    QFont font;
    FontMetrics metrics;
    TextMap<double> widths;
  };
  Face& FaceOf(const Font& font);

  std::mutex mutex_;
  std::list<Face> faces_;  // last used first
};

}  // namespace xrpt
