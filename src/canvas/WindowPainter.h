// What a page window looks like, in two layers: the page itself, painted when the window says that it changed, and what
// lies over it (frames, guides, outlines of what is dragged), laid over a copy of it every time.
#pragma once

#include "platform/Color.h"
#include "platform/Graphics.h"
#include "platform/PixelBuffer.h"

namespace xrpt {

class RVEditTemplateWnd;

// `pixels` are the ones that `graphics` paints into: the grid goes there.
void PaintWindowPage(Graphics& graphics, PixelBuffer& pixels, RVEditTemplateWnd& window, const Rect& client);

void PaintWindowOverlay(PixelBuffer& pixels, RVEditTemplateWnd& window, const Rect& client, Color guideColor);

}  // namespace xrpt
