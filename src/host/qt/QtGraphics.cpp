#include "host/qt/QtGraphics.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>

#include "host/qt/QtFonts.h"

namespace xrpt {
namespace {

constexpr double kFarAway = 1e7;               // beyond it the painter's own arithmetic fails
constexpr qint64 kMaxScaledPixels = 16 << 20;  // larger ones are scaled while they are painted, and clipped

double Bounded(double value) { return std::isnan(value) ? 0.0 : std::clamp(value, -kFarAway, kFarAway); }

QPointF ToQt(PointD p) { return {Bounded(p.x), Bounded(p.y)}; }

QRectF ToQt(const RectD& r) {
  return QRectF(ToQt(PointD{r.left, r.top}), ToQt(PointD{r.right, r.bottom})).normalized();
}

QColor ToQt(Color c) { return QColor(RedOf(c), GreenOf(c), BlueOf(c)); }

QPolygonF ToQt(std::span<const PointD> points) {
  QPolygonF polygon;
  for (const PointD& point : points) polygon << ToQt(point);
  return polygon;
}

QPainterPath RoundPath(const QRectF& rect, double radiusX, double radiusY) {
  QPainterPath path;
  path.addRoundedRect(rect, std::max(radiusX, 0.0), std::max(radiusY, 0.0));
  return path;
}

Qt::PenStyle ToQt(PenStyle style) {
  switch (style) {
    case PenStyle::Dash:
      return Qt::DashLine;
    case PenStyle::Dot:
      return Qt::DotLine;
    case PenStyle::DashDot:
      return Qt::DashDotLine;
    case PenStyle::DashDotDot:
      return Qt::DashDotDotLine;
    case PenStyle::None:
      return Qt::NoPen;
    case PenStyle::Solid:
      break;
  }
  return Qt::SolidLine;
}

QString ToQt(std::wstring_view text) {
  return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

double MeasuredStretch(const TextRun& run, const QFont& font, double scale) {
  const double natural = run.width > 0.0 ? QFontMetricsF(font).horizontalAdvance(ToQt(run.text)) * scale : 0.0;
  return natural > 0.0 ? Bounded(run.width) / natural : 1.0;
}

bool IsOdd(double width) { return width <= 0.0 || std::fmod(std::round(width), 2.0) == 1.0; }

}  // namespace

QtGraphics::QtGraphics(QPainter& painter, PictureCache& cache)
    : painter_(painter),
      cache_(cache),
      isRaster_(painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster) {
  painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
}

QtGraphics::~QtGraphics() {
  while (saved_ > 0) Restore();
}

void QtGraphics::Save() {
  painter_.save();
  ++saved_;
}

void QtGraphics::Restore() {
  if (saved_ == 0) return;
  painter_.restore();
  --saved_;
}

bool QtGraphics::IsOnPixels() const { return isRaster_ && painter_.worldTransform().type() <= QTransform::TxTranslate; }

QPointF QtGraphics::OnPixel(QPointF point) const {
  const QTransform& at = painter_.worldTransform();
  return {std::round(point.x() + at.dx()) - at.dx(), std::round(point.y() + at.dy()) - at.dy()};
}

QRectF QtGraphics::Aligned(const RectD& rect) const {
  const QRectF exact = ToQt(rect);
  return IsOnPixels() ? QRectF(OnPixel(exact.topLeft()), OnPixel(exact.bottomRight())) : exact;
}

void QtGraphics::ClipRect(const RectD& rect) { painter_.setClipRect(Aligned(rect), Qt::IntersectClip); }

void QtGraphics::ClipRoundRect(const RectD& rect, double radiusX, double radiusY) {
  painter_.setClipPath(RoundPath(Aligned(rect), radiusX, radiusY), Qt::IntersectClip);
}

void QtGraphics::Translate(double dx, double dy) { painter_.translate(Bounded(dx), Bounded(dy)); }

void QtGraphics::Rotate(double degrees) { painter_.rotate(-Bounded(degrees)); }

bool QtGraphics::BeginFill(Color color) {
  if (color == kNoColor) return false;
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(ToQt(color));
  return true;
}

void QtGraphics::FillRect(const RectD& rect, Color color) {
  if (color != kNoColor) painter_.fillRect(Aligned(rect), ToQt(color));
}

void QtGraphics::FillRoundRect(const RectD& rect, double radiusX, double radiusY, Color color) {
  if (BeginFill(color)) painter_.drawPath(RoundPath(Aligned(rect), radiusX, radiusY));
}

void QtGraphics::FillEllipse(const RectD& rect, Color color) {
  if (BeginFill(color)) painter_.drawEllipse(ToQt(rect));
}

void QtGraphics::FillPolygon(std::span<const PointD> points, Color color) {
  if (BeginFill(color)) painter_.drawPolygon(ToQt(points));
}

// The painter counts in sixteenths of a degree.
void QtGraphics::FillPie(const RectD& rect, double start, double sweep, Color color) {
  const double bounded = std::clamp(Bounded(sweep), -360.0, 360.0);
  if (BeginFill(color))
    painter_.drawPie(ToQt(rect), roundi(std::fmod(Bounded(start), 360.0) * 16), roundi(bounded * 16));
}

bool QtGraphics::BeginStroke(const Pen& pen, double& shift) {
  shift = 0.0;
  if (pen.style == PenStyle::None || pen.color == kNoColor) return false;
  QPen stroke(ToQt(pen.color), Bounded(std::max(pen.width, 0.0)), ToQt(pen.style), Qt::FlatCap, Qt::MiterJoin);
  stroke.setCosmetic(pen.width <= 0.0);
  painter_.setPen(stroke);
  painter_.setBrush(Qt::NoBrush);
  if (IsOnPixels() && IsOdd(pen.width)) shift = 0.5;
  return true;
}

void QtGraphics::DrawLine(PointD from, PointD to, const Pen& pen) {
  double shift = 0.0;
  if (!BeginStroke(pen, shift)) return;
  QPointF a = ToQt(from);
  QPointF b = ToQt(to);
  if (IsOnPixels() && (a.x() == b.x() || a.y() == b.y())) {
    // The ends of a line along the pixels fall between pixels, and only what is across it is shifted.
    const QPointF across = a.x() == b.x() ? QPointF(shift, 0.0) : QPointF(0.0, shift);
    a = OnPixel(a) + across;
    b = OnPixel(b) + across;
  }
  painter_.drawLine(a, b);
}

void QtGraphics::DrawPolyline(std::span<const PointD> points, const Pen& pen) {
  double shift = 0.0;
  if (BeginStroke(pen, shift)) painter_.drawPolyline(ToQt(points).translated(shift, shift));
}

void QtGraphics::DrawPolygon(std::span<const PointD> points, const Pen& pen) {
  double shift = 0.0;
  if (BeginStroke(pen, shift)) painter_.drawPolygon(ToQt(points).translated(shift, shift));
}

QRectF QtGraphics::StrokeRect(const RectD& rect, double shift) const { return Aligned(rect).translated(shift, shift); }

void QtGraphics::DrawRect(const RectD& rect, const Pen& pen) {
  double shift = 0.0;
  if (!BeginStroke(pen, shift)) return;
  // Smoothing would leave the corners of a frame paler than its sides.
  painter_.setRenderHint(QPainter::Antialiasing, !IsOnPixels());
  painter_.drawRect(Aligned(rect));
  painter_.setRenderHint(QPainter::Antialiasing);
}

void QtGraphics::DrawRoundRect(const RectD& rect, double radiusX, double radiusY, const Pen& pen) {
  double shift = 0.0;
  if (BeginStroke(pen, shift)) painter_.drawPath(RoundPath(StrokeRect(rect, shift), radiusX, radiusY));
}

void QtGraphics::DrawEllipse(const RectD& rect, const Pen& pen) {
  double shift = 0.0;
  if (BeginStroke(pen, shift)) painter_.drawEllipse(StrokeRect(rect, shift));
}

const QFont& QtGraphics::FontOf(const Font& font) {
  const auto [found, isNew] = fonts_.try_emplace({font.face, font.style});
  if (isNew) found->second = ReferenceFont(font);
  return found->second;
}

// Laid out at the reference size and scaled as a whole, so that every letter stands where it was measured. Documents
// get the text itself, which a reader can search; pixels get its glyphs, which need no shaping again.
void QtGraphics::DrawText(const TextRun& run) {
  const double scale = Bounded(run.pixelSize) / kReferenceEm;
  if (run.text.empty() || scale <= 0.0 || run.color == kNoColor) return;
  const Font usual;
  const Font& font = run.font ? *run.font : usual;
  const double stretch = run.stretch > 0.0 ? Bounded(run.stretch) : MeasuredStretch(run, FontOf(font), scale);
  const QTransform kept = painter_.worldTransform();
  const QPointF origin = ToQt(run.origin);
  QTransform placed = kept;
  placed.translate(origin.x(), origin.y());
  // Tiny differences are rounding; ignoring them lets letters of one size share their pixels.
  placed.scale(std::abs(stretch - 1.0) < 1e-3 ? scale : scale * stretch, scale);
  painter_.setWorldTransform(placed);
  painter_.setPen(ToQt(run.color));
  if (isRaster_) {
    for (const QGlyphRun& glyphs : cache_.Glyphs().Runs(font, run.text)) painter_.drawGlyphRun(QPointF(), glyphs);
  } else {
    painter_.setFont(FontOf(font));
    painter_.drawText(QPointF(), ToQt(run.text));
  }
  painter_.setWorldTransform(kept);
}

void QtGraphics::DrawPicture(const PicturePtr& picture, const RectD& target) {
  const QRectF place = Aligned(target);
  if (!picture || place.isEmpty()) return;
  const double dots = painter_.device()->devicePixelRatioF();
  const QSizeF size = place.size() * dots;
  if (IsOnPixels() && size.width() * size.height() <= double(kMaxScaledPixels)) {
    const QImage image =
        cache_.Soon(picture, size.toSize().expandedTo({1, 1}), painter_.worldTransform().mapRect(place));
    if (!image.isNull()) painter_.drawImage(place, image);
  } else if (const QImage whole = cache_.Whole(picture); !whole.isNull()) {
    painter_.drawImage(place, whole);
  }
}

}  // namespace xrpt
