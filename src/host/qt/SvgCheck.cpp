#include "host/qt/SvgCheck.h"

#include <QXmlStreamReader>

namespace xrpt {
namespace {

constexpr qsizetype kMaxBytes = 8 << 20;
constexpr int kMaxDepth = 256;

// Formats that hold pixels and nothing else, by the bytes they begin with.
bool IsPixelFormat(const QByteArray& bytes) {
  for (const char* start : {"\x89PNG", "\xFF\xD8\xFF", "GIF8", "BM", "RIFF"}) {
    if (bytes.startsWith(start)) return true;
  }
  return false;
}

// "#name" within the document, or a picture's own bytes.
bool IsInside(QStringView reference) {
  const QByteArray text = reference.trimmed().toUtf8();
  if (text.isEmpty() || text.startsWith('#')) return true;
  const qsizetype comma = text.indexOf(',');
  if (!text.startsWith("data:image/") || comma < 0 || !text.left(comma).endsWith(";base64")) return false;
  return IsPixelFormat(QByteArray::fromBase64(text.mid(comma + 1)));
}

bool HasOutsideReference(const QXmlStreamAttributes& attributes) {
  for (const QXmlStreamAttribute& attribute : attributes) {
    if (attribute.name() == QLatin1String("href") && !IsInside(attribute.value())) return true;
  }
  return false;
}

// Links lead elsewhere when clicked, which a picture never is; everything else is fetched.
bool IsHarmless(const QXmlStreamReader& reader) {
  if (reader.isProcessingInstruction()) return reader.processingInstructionTarget() != QLatin1String("xml-stylesheet");
  if (!reader.isStartElement() || reader.name() == QLatin1String("a")) return true;
  return !HasOutsideReference(reader.attributes());
}

}  // namespace

bool LooksLikeSvg(const QByteArray& bytes) {
  const QByteArray head = bytes.left(4096);
  return head.contains("<svg") || head.contains(":svg") || head.trimmed().startsWith("<?xml") ||
         head.trimmed().startsWith("<!DOCTYPE");
}

bool IsSelfContainedSvg(const QByteArray& bytes) {
  if (bytes.size() > kMaxBytes) return false;
  QXmlStreamReader reader(bytes);
  int depth = 0;
  while (!reader.atEnd()) {
    reader.readNext();
    if (reader.isStartElement()) ++depth;
    if (reader.isEndElement()) --depth;
    if (depth > kMaxDepth || !IsHarmless(reader)) return false;
  }
  return !reader.hasError();
}

}  // namespace xrpt
