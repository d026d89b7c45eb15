// Breaking a text into lines and placing them in a box: pure rules over the font service, in page points.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/Words.h"
#include "platform/Fonts.h"
#include "platform/Geometry.h"

namespace xrpt {

struct TextLine {
  std::wstring text;
  double left = 0.0;      // from the box's left edge
  double baseline = 0.0;  // from its top edge
  double width = 0.0;
};

struct TextLayout {
  std::vector<TextLine> lines;
  RectD bounds;  // of all lines with their ascents and descents
};

struct TextBox {
  SizeD size;
  int horizontalAlign = kAlignCenter;
  int verticalAlign = kAlignCenter;
  bool wrap = true;
};

// Lines end at line breaks and, where a line is wider than the box, at the last word that fits; a word wider than the
// box is broken. A box with no room for a second line keeps its text on one: half a line is worse than a cut one.
// What is larger than the box keeps its beginning in sight, whatever the alignment.
TextLayout LayOutText(FontService& fonts, const Font& font, std::wstring_view text, const TextBox& box);

// The text shortened to the width, ending with an ellipsis when something was cut; empty when not even that fits.
std::wstring FitText(FontService& fonts, const Font& font, std::wstring_view text, double width);

// A text turned counter-clockwise, not by a multiple of 360 degrees. Places count from the middle of the box along the
// turned axes. The turned block stands in the box as the alignments say, in the box's own axes, and is broken so that
// it fits when it can; of what is too large the beginning of the first line stays in sight.
TextLayout LayOutTurnedText(FontService& fonts, const Font& font, std::wstring_view text, const TextBox& box,
                            double degrees);

// How long the line through the middle of a card is, along a direction turned by `degrees` and across it.
SizeD TurnedRoom(SizeD card, double degrees);

}  // namespace xrpt
