#include "host/qt/QtPictures.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>

#include "host/qt/SvgCheck.h"

namespace xrpt {
namespace {

constexpr int kMaxSide = 32767;

bool IsCompressed(const QByteArray& bytes) { return bytes.startsWith("\x1F\x8B"); }

bool IsTolerable(const QSize& size) {
  if (!size.isValid()) return true;  // a format that does not tell; the allocation limit still holds
  if (size.isEmpty() || size.width() > kMaxSide || size.height() > kMaxSide) return false;
  return qint64(size.width()) * size.height() <= QtPictures::kMaxPixels;
}

bool IsOpaque(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    const uchar* row = image.constScanLine(y);
    for (int x = 0; x < image.width(); ++x) {
      if (row[4 * x + 3] != 255) return false;
    }
  }
  return true;
}

// Four bytes a pixel into the two planes.
void SplitPlanes(const QImage& rgba, Picture& picture) {
  picture.rgb.resize(picture.RowBytes() * static_cast<std::size_t>(picture.height));
  if (!IsOpaque(rgba)) picture.alpha.resize(picture.rgb.size() / 3);
  std::uint8_t* rgb = picture.rgb.data();
  std::uint8_t* alpha = picture.alpha.empty() ? nullptr : picture.alpha.data();
  for (int y = 0; y < rgba.height(); ++y) {
    const uchar* row = rgba.constScanLine(y);
    for (int x = 0; x < rgba.width(); ++x, row += 4) {
      rgb = std::copy_n(row, 3, rgb);
      if (alpha) *alpha++ = row[3];
    }
  }
}

void CopyRows(const QImage& rgb, Picture& picture) {
  picture.rgb.reserve(picture.RowBytes() * static_cast<std::size_t>(picture.height));
  for (int y = 0; y < rgb.height(); ++y) {
    const uchar* row = rgb.constScanLine(y);
    picture.rgb.insert(picture.rgb.end(), row, row + picture.RowBytes());
  }
}

bool MayBeRead(const QByteArray& bytes) {
  return !IsCompressed(bytes) && (!LooksLikeSvg(bytes) || IsSelfContainedSvg(bytes));
}

QByteArray InPlace(std::string_view bytes) {
  return QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

// A reader on bytes that it may see; otherwise one that reads nothing.
class BoundedReader {
 public:
  explicit BoundedReader(std::string_view bytes) {
    if (bytes.empty() || bytes.size() > QtPictures::kMaxBytes) return;
    const QByteArray encoded = InPlace(bytes);
    if (!MayBeRead(encoded)) return;
    buffer_.setData(encoded);
    reader_.setDevice(&buffer_);
    reader_.setAutoTransform(true);
    const bool isSvg = reader_.format().startsWith("svg");
    mayRead_ = (!isSvg || LooksLikeSvg(encoded)) && IsTolerable(reader_.size());
  }
  // As it is shown: a camera's picture may lie on its side.
  QSize Size() const { return mayRead_ ? Turned(reader_.size()) : QSize(); }
  QImage Read(QSize size) {
    if (!mayRead_) return {};
    if (!size.isEmpty() && size != Size()) reader_.setScaledSize(Turned(size));
    return reader_.read();
  }

 private:
  QSize Turned(QSize size) const {
    return reader_.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed() : size;
  }

  QBuffer buffer_;
  QImageReader reader_;
  bool mayRead_ = false;
};

}  // namespace

// Four bytes for each pixel of the largest picture allowed.
QtPictures::QtPictures() { QImageReader::setAllocationLimit(static_cast<int>(kMaxPixels * 4 >> 20)); }

PicturePtr QtPictures::DecodeScaled(std::string_view bytes, int width, int height) {
  const QImage image = BoundedReader(bytes).Read({width, height});
  return image.isNull() ? nullptr : FromImage(image, bytes.size(), LooksLikeSvg(InPlace(bytes)));
}

PicturePtr QtPictures::Outline(std::string_view bytes) {
  const QSize size = BoundedReader(bytes).Size();
  if (size.isEmpty()) return nullptr;
  auto picture = std::make_shared<Picture>();
  picture->width = size.width();
  picture->height = size.height();
  picture->encodedSize = bytes.size();
  picture->isDrawing = LooksLikeSvg(InPlace(bytes));
  return picture;
}

PicturePtr FromImage(const QImage& image, std::size_t encodedSize, bool isDrawing) {
  auto picture = std::make_shared<Picture>();
  picture->width = image.width();
  picture->height = image.height();
  picture->encodedSize = encodedSize;
  picture->isDrawing = isDrawing;
  if (image.hasAlphaChannel()) {
    SplitPlanes(image.convertToFormat(QImage::Format_RGBA8888), *picture);
  } else {
    CopyRows(image.convertToFormat(QImage::Format_RGB888), *picture);
  }
  return picture;
}

QImage ToImage(const Picture& picture) {
  const auto pixels = static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
  if (picture.width <= 0 || picture.height <= 0 || picture.rgb.size() < 3 * pixels) return {};
  const bool hasAlpha = picture.alpha.size() >= pixels;
  QImage image(picture.width, picture.height, hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto* out = reinterpret_cast<QRgb*>(image.scanLine(y));
    const std::uint8_t* rgb = picture.Row(y);
    const std::uint8_t* alpha =
        hasAlpha ? picture.alpha.data() + static_cast<std::ptrdiff_t>(y) * picture.width : nullptr;
    for (int x = 0; x < image.width(); ++x, rgb += 3) out[x] = qRgba(rgb[0], rgb[1], rgb[2], alpha ? alpha[x] : 255);
  }
  return image;
}

}  // namespace xrpt
