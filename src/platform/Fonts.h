// Measuring text, once, at one reference resolution, so that every device breaks and places lines alike.
#pragma once

#include <string>
#include <string_view>

namespace xrpt {

// 0 to 3 as the files' words "NORMAL", "BOLD", "ITALIC", "ITALICBOLD".
enum class FontStyle { Normal = 0, Bold = 1, Italic = 2, ItalicBold = 3 };

struct Font {
  std::wstring face = L"Arial";
  double size = 10.0;  // points
  FontStyle style = FontStyle::Normal;
  bool operator==(const Font&) const = default;

  bool IsBold() const { return style == FontStyle::Bold || style == FontStyle::ItalicBold; }
  bool IsItalic() const { return style == FontStyle::Italic || style == FontStyle::ItalicBold; }
};

// In points, all positive.
struct FontMetrics {
  double ascent = 0.0;
  double descent = 0.0;
  double lineSpacing = 0.0;
};

// Whether a text in a face looks as it was laid out.
enum class FacePresence {
  Unknown,    // this host cannot tell
  Installed,  // the face itself
  StandIn,    // another one of the same widths
  Missing,    // one of other widths
};

class FontService {
 public:
  virtual ~FontService() = default;
  virtual FontMetrics Metrics(const Font& font) = 0;
  // Advance width of a run in points, unhinted: independent of any device.
  virtual double Width(const Font& font, std::wstring_view text) = 0;
  virtual FacePresence Presence(std::wstring_view) { return FacePresence::Unknown; }
};

}  // namespace xrpt
