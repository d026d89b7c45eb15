#include "desktop/look/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace xrpt {

namespace {

QString FileOf(const QString& name) { return QStringLiteral(":/icons/%1.svg").arg(name); }

QByteArray ReadDrawing(const QString& name) {
  QFile file(FileOf(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QColor PaletteColor(QIcon::Mode mode) {
  const QPalette palette = QGuiApplication::palette();
  if (mode == QIcon::Disabled) return palette.color(QPalette::Disabled, QPalette::ButtonText);
  return palette.color(QPalette::ButtonText);
}

// Nothing for no size: a button that has no room asks for that.
QPixmap RenderDrawing(QByteArray drawing, const QColor& color, const QSize& size) {
  if (size.isEmpty()) return {};
  drawing.replace("currentColor", color.name().toLatin1());
  QSvgRenderer renderer(drawing);
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  renderer.setAspectRatioMode(Qt::KeepAspectRatio);
  renderer.render(&painter);
  return pixmap;
}

class DrawnIcon final : public QIconEngine {
 public:
  explicit DrawnIcon(const QString& name) : name_(name) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const double scale = painter->device() ? painter->device()->devicePixelRatio() : 1.0;
    painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const QColor color = PaletteColor(mode);
    const QString key = QStringLiteral("%1/%2/%3x%4").arg(name_, color.name()).arg(size.width()).arg(size.height());
    QPixmap found;
    if (QPixmapCache::find(key, &found)) return found;
    found = RenderDrawing(ReadDrawing(name_), color, size);
    QPixmapCache::insert(key, found);
    return found;
  }
  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
    return pixmap(size, mode, state);
  }
  QIconEngine* clone() const override { return new DrawnIcon(name_); }
  QString key() const override { return QStringLiteral("xrpt-drawn"); }

 private:
  QString name_;
};

QCursor DrawnCursor(const QString& name, int hotX, int hotY) {
  const double scale = qGuiApp->devicePixelRatio();
  QPixmap pixmap = RenderDrawing(ReadDrawing(name), Qt::black, QSize(32, 32) * scale);
  pixmap.setDevicePixelRatio(scale);
  return QCursor(pixmap, hotX, hotY);
}

}  // namespace

QIcon ThemedIcon(const QString& name) { return HasIcon(name) ? QIcon(new DrawnIcon(name)) : QIcon(); }

bool HasIcon(const QString& name) { return !name.isEmpty() && QFile::exists(FileOf(name)); }

QIcon ApplicationIcon() {
  QIcon icon;
  for (const int side : {16, 32, 48, 64, 128, 256})
    icon.addPixmap(RenderDrawing(ReadDrawing(QStringLiteral("application")), Qt::black, {side, side}));
  return icon;
}

QCursor ToolkitCursor(Cursor cursor) {
  switch (cursor) {
    case Cursor::SizeWE:
      return Qt::SizeHorCursor;
    case Cursor::SizeNS:
      return Qt::SizeVerCursor;
    case Cursor::SizeNESW:
      return Qt::SizeBDiagCursor;
    case Cursor::SizeNWSE:
      return Qt::SizeFDiagCursor;
    case Cursor::SizeAll:
      return Qt::SizeAllCursor;
    case Cursor::No:
      return Qt::ForbiddenCursor;
    case Cursor::OverCard:
      return DrawnCursor(QStringLiteral("cursor-over-card"), 4, 3);
    case Cursor::Moving:
      return DrawnCursor(QStringLiteral("cursor-moving"), 16, 16);
    case Cursor::Cross:
      return Qt::CrossCursor;
    case Cursor::Arrow:
      break;
  }
  return Qt::ArrowCursor;
}

}  // namespace xrpt
