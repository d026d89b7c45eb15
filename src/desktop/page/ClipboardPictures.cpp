#include "desktop/page/ClipboardPictures.h"

#include <unordered_set>

#include "canvas/RenderPage.h"
#include "host/SvgGraphics.h"
#include "host/qt/PageSurfaces.h"

namespace xrpt {

namespace {

constexpr double kPictureDpi = 192.0;
constexpr double kVectorDpi = 720.0;

// Back to front, as they are painted.
std::vector<const RVCardControl*> CardsOf(const RVReportPage& page, const std::vector<std::wstring>& ids) {
  const std::unordered_set<std::wstring> wanted(ids.begin(), ids.end());
  std::vector<const RVCardControl*> cards;
  for (std::size_t i = page.cards.Size(); i-- > 0;) {
    if (wanted.count(page.cards[i].id) > 0) cards.push_back(&page.cards[i]);
  }
  return cards;
}

RectD Surrounding(const std::vector<const RVCardControl*>& cards) {
  RectD all(1e9, 1e9, -1e9, -1e9);
  for (const RVCardControl* card : cards) {
    all = {std::min(all.left, card->x), std::min(all.top, card->y), std::max(all.right, card->x + card->width),
           std::max(all.bottom, card->y + card->height)};
  }
  return all;
}

void PaintAll(Graphics& graphics, const RVReportPage& page, const std::vector<const RVCardControl*>& cards, double dpi,
              const RectD& area) {
  const tagDraw draw = OutputDraw(page, dpi, area);
  for (const RVCardControl* card : cards) PaintCard(graphics, *card, draw);
}

}  // namespace

void AddPictures(const RVReportPage& page, const std::vector<std::wstring>& ids, ClipboardContent& content) {
  const std::vector<const RVCardControl*> cards = CardsOf(page, ids);
  const RectD area = Surrounding(cards);
  if (!(area.Width() > 0.0) || !(area.Height() > 0.0)) return;
  const double scale = kPictureDpi / 25.4;
  PngSurface surface(roundi(std::ceil(area.Width() * scale)), roundi(std::ceil(area.Height() * scale)), kPictureDpi);
  if (!surface.IsValid()) return;
  PaintAll(surface.Graphics(), page, cards, kPictureDpi, area);
  content.png = surface.Finish();
  const double units = kVectorDpi / 25.4;
  SvgGraphics drawing({area.Width() * units, area.Height() * units}, {area.Width(), area.Height()});
  PaintAll(drawing, page, cards, kVectorDpi, area);
  content.svg = drawing.Finish();
}

}  // namespace xrpt
