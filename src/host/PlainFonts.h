// Text widths without a font engine: the advance widths that the common sans-serif faces share (and 0.6 em for
// monospaced ones). Close enough for a command line to break lines where a screen does; with the toolkit built in, its
// real fonts take this place.
#pragma once

#include "platform/Fonts.h"

namespace xrpt {

class PlainFonts final : public FontService {
 public:
  FontMetrics Metrics(const Font& font) override;
  double Width(const Font& font, std::wstring_view text) override;
};

}  // namespace xrpt
