// What a page window looks like, in two layers: the page itself, painted when the window says that it changed, and what
// lies over it (frames, guides, outlines of what is dragged), laid over a copy of it every time. Frames that stand
// still are part of that copy, so that a tick of the selection's timer costs little more than copying.
#pragma once

#include <vector>

#include "canvas/FrameOverlay.h"
#include "canvas/RVSelection.h"
#include "platform/Color.h"
#include "platform/Graphics.h"
#include "platform/PixelBuffer.h"

namespace xrpt {

class RVEditTemplateWnd;

// `pixels` are the ones that `graphics` paints into: the grid goes there.
void PaintWindowPage(Graphics& graphics, PixelBuffer& pixels, RVEditTemplateWnd& window, const Rect& client);

// Where cards in sight move, in canvas pixels.
std::vector<Rect> MovingCards(const RVEditTemplateWnd& window, const Rect& client);
// Paints one part of the page anew, over what was there.
void PaintWindowPart(Graphics& graphics, PixelBuffer& pixels, const RVEditTemplateWnd& window, const Rect& part);

// Colours of what an application lays over the page in colours of its own.
struct OverlayColors {
  OverlayColors(Color guides, Color marks = Rgb(0x1A, 0x73, 0xE8)) : guide(guides), selection(marks) {}
  Color guide;
  Color selection;
};

class WindowOverlay {
 public:
  // Fills `shown` with the page's picture and all that lies over it. `painting` tells one picture of the page from the
  // next; both are of one size.
  void Paint(PixelBuffer& shown, const PixelBuffer& page, int painting, const RVEditTemplateWnd& window,
             const Rect& client, const OverlayColors& colors);

 private:
  // What the frames are made from, the phase aside.
  struct Scene {
    const RVEditTemplateWnd* window = nullptr;
    int painting = -1;
    Point pointer;
    CardKey picked = 0;
    RVSelection selection;
    bool operator==(const Scene&) const = default;
  };
  static Scene SceneOf(const RVEditTemplateWnd& window, int painting);

  FrameOverlay frames_;
  Scene scene_;
  const RVCardControl* hovered_ = nullptr;  // told from others only, never looked into
};

}  // namespace xrpt
