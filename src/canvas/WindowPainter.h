// What a page window looks like, in two layers: the page itself, painted when the window says that it changed, and what
// lies over it (frames, guides, outlines of what is dragged), laid over a copy of it every time. Frames that stand
// still are part of that copy, so that a tick of the selection's timer costs little more than copying; while texts
// move, their places are painted and copied and nothing else.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "canvas/CardNotes.h"
#include "canvas/CardsInSight.h"
#include "canvas/FrameOverlay.h"
#include "canvas/PagePainter.h"
#include "canvas/RVSelection.h"
#include "canvas/SmartGuides.h"
#include "platform/Color.h"
#include "platform/Graphics.h"
#include "platform/PixelBuffer.h"

namespace xrpt {

class RVEditTemplateWnd;

// `pixels` are the ones that `graphics` paints into: the grid goes there.
void PaintWindowPage(Graphics& graphics, PixelBuffer& pixels, RVEditTemplateWnd& window, const Rect& client);

// The cards that the window shows there: all but those its user has hidden, which come back in a preview.
CardsInSight SightOf(const RVEditTemplateWnd& window, const Rect& client);
PagePart PartAt(const CardsInSight& sight, const Rect& rect);
// Where cards in sight move.
std::vector<PagePart> MovingParts(const RVEditTemplateWnd& window, const CardsInSight& sight);
// Paints one part of the page anew, over what was there.
void PaintWindowPart(Graphics& graphics, PixelBuffer& pixels, const RVEditTemplateWnd& window, const PagePart& part);

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
  // The same when the page's picture changed inside `moved` since, always the same places of one painting. `shown`
  // still holds what was filled in last; the places alone are filled in anew when nothing else has changed.
  void PaintMoved(PixelBuffer& shown, const PixelBuffer& page, int painting, const RVEditTemplateWnd& window,
                  const Rect& client, const OverlayColors& colors, std::span<const Rect> moved);
  // The page's picture changed inside `parts`, wherever they are; `Paint` is next.
  void TakeParts(const PixelBuffer& page, const RVEditTemplateWnd& window, std::span<const Rect> parts);

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
  // What lies over the frames: nothing in a preview.
  struct Laid {
    PageLines lines;
    std::vector<Rect> marks;  // round selected cards in sight
    std::vector<GuideLine> guides;
    std::vector<Rect> outlines;  // of what is dragged, which take themselves away when they are drawn twice
    bool operator==(const Laid&) const = default;
  };
  static Laid LaidOver(const RVEditTemplateWnd& window, const Rect& client);

  // False when nothing had to be made.
  bool MakeFrames(const PixelBuffer& page, int painting, const RVEditTemplateWnd& window, const Rect& client);
  void Build(const PixelBuffer& page, const RVEditTemplateWnd& window);
  void Hover(const PixelBuffer& page, const RVEditTemplateWnd& window, std::optional<std::uint32_t> hovered);
  void RebuildCard(const PixelBuffer& page, const RVEditTemplateWnd& window, std::uint32_t place);
  void Rebuild(const PixelBuffer& page, const RVEditTemplateWnd& window, const Rect& part);
  void Compose(PixelBuffer& shown, const RVEditTemplateWnd& window, Laid laid, const Rect& client,
               const OverlayColors& colors);
  void Lay(PixelBuffer& shown, const PagePlacement& place, const Rect& client, const OverlayColors& colors) const;

  CardsInSight sight_;
  std::vector<CardFrame> cardFrames_;  // of the cards in sight
  FrameOverlay frames_;
  bool isWatching_ = false;
  Scene scene_;
  std::optional<std::uint32_t> hovered_;  // among the cards in sight
  int phase_ = 0;                         // of what is shown
  Laid laid_;                             // over what is shown
};

}  // namespace xrpt
