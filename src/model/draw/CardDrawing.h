// What every kind of card draws with: its ground, a text in a box, a picture, the stand-in for a missing one.
#pragma once

#include <string_view>

#include "model/CommonRows.h"
#include "model/draw/DrawScale.h"
#include "model/draw/PicturePlacement.h"
#include "model/draw/TextLayout.h"
#include "platform/Graphics.h"

namespace xrpt {

struct TextStyle {
  const Font& font;
  Color color = kBlack;
  std::int32_t horizontalAlign = kAlignCenter;
  std::int32_t verticalAlign = kAlignCenter;
  double orientation = 0.0;  // degrees, counter-clockwise about the card's centre
  Animation animation;
};

// The card's rectangle in the colour; nothing for kNoColor.
void DrawGround(Graphics& graphics, const CardArea& area, Color color);

// The path of a stroke that keeps inside the rectangle.
RectD StrokedInside(const RectD& rect, double penWidth);

// A text inside the card, clipped to it. `time` is the animation's; at 0 the text stands still and breaks into lines,
// on its way it is a single line as far as it moves sideways.
void DrawTextBox(Graphics& graphics, const CardArea& area, const TextStyle& style, std::wstring_view text,
                 std::int32_t time);

// A picture inside the card, clipped to it. Without one the editor's user sees the stand-in with `name`, a reader of
// the report nothing.
void DrawPictureBox(Graphics& graphics, const CardArea& area, const PicturePtr& picture, const PictureFit& fit,
                    std::wstring_view name, const Animation& animation, std::int32_t time);

// A frame with crossed lines and the name of what is missing.
void DrawPlaceholder(Graphics& graphics, const CardArea& area, std::wstring_view name);

// One line of text, placed in page points from the card's corner, all moved by `shift`.
void DrawTextLine(Graphics& graphics, const CardArea& area, const Font& pageFont, Color color, const TextLine& line,
                  PointD shift = {});

}  // namespace xrpt
