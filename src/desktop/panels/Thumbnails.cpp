#include "desktop/panels/Thumbnails.h"

#include <QImage>
#include <QPainter>
#include <algorithm>

#include "canvas/PagePainter.h"
#include "canvas/RenderPage.h"
#include "host/qt/PictureCache.h"
#include "host/qt/QtGraphics.h"
#include "model/RVReportPage.h"
#include "platform/Xml.h"
#include "platform/XmlWriter.h"

namespace xrpt {

namespace {

// Saving so many would be felt; their first picture stands.
constexpr std::size_t kMostCards = 3000;
constexpr QRgb kEdge = 0xFFB4BAC4;

// The page as text: the worker reads a copy of its own and shares nothing with what is being edited.
std::string TextOf(const RVReportPage& page) {
  std::string text;
  XmlWriter out(text);
  out.Declaration();
  page.SaveTemplate(out);
  return text;
}

QImage PictureOf(const std::string& text, const tagDraw& draw, double scale) {
  XmlDocument document;
  RVReportPage page;
  if (!document.Parse(text) || !page.SetTemplate(document.Root())) return {};
  page.fontFactor = draw.fontFactor;
  QImage picture(draw.clip.Width(), draw.clip.Height(), QImage::Format_RGB32);
  if (picture.isNull()) return {};
  picture.fill(Qt::white);
  PictureCache pictures;
  QPainter painter(&picture);
  {
    QtGraphics graphics(painter, pictures);
    PagePaint how;
    how.surround = false;
    PaintPage(graphics, page, draw, how);
  }
  painter.setPen(QColor(kEdge));
  painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
  painter.end();
  picture.setDevicePixelRatio(scale);
  return picture;
}

}  // namespace

Thumbnails::Thumbnails(QObject* parent) : QObject(parent) { worker_.setMaxThreadCount(1); }

Thumbnails::~Thumbnails() {
  worker_.clear();
  worker_.waitForDone();
}

QPixmap Thumbnails::Of(const RVReportPage& page, std::uint64_t resources, double scale) {
  Entry& entry = entries_[&page];
  const bool isOther = entry.id != page.properties.id;
  if (page.cards.Size() > kMostCards && !entry.picture.isNull() && !isOther) return entry.picture;
  const bool hasOtherCards = entry.state.SetChange(page.cards);
  const bool hasOtherProperties = entry.state.SetChange(page.properties);
  const bool isAsked = !isOther && entry.resources == resources && entry.scale == scale;
  if (isAsked && !hasOtherCards && !hasOtherProperties) return entry.picture;
  if (isOther) entry.picture = QPixmap();
  entry.id = page.properties.id;
  entry.resources = resources;
  entry.scale = scale;
  Ask(page, scale);
  return entry.picture;
}

void Thumbnails::Ask(const RVReportPage& page, double scale) {
  const RVGlobalProperties& properties = page.properties;
  const double longest = std::max(properties.width, properties.height);
  if (!(longest > 0.0)) return;
  const tagDraw draw = OutputDraw(page, kSide * scale * 25.4 / longest);
  worker_.start([this, text = TextOf(page), draw, scale, key = &page, id = properties.id] {
    const QImage picture = PictureOf(text, draw, scale);
    QMetaObject::invokeMethod(
        this, [this, key, id, picture] { Take(key, id, picture); }, Qt::QueuedConnection);
  });
}

void Thumbnails::Take(const RVReportPage* page, const std::wstring& id, const QImage& picture) {
  const auto found = entries_.find(page);
  if (found == entries_.end() || found->second.id != id || picture.isNull()) return;
  found->second.picture = QPixmap::fromImage(picture);
  if (painted) painted();
}

}  // namespace xrpt
