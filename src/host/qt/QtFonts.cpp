#include "host/qt/QtFonts.h"

#include <QFontMetricsF>
#include <algorithm>

namespace xrpt {
namespace {

constexpr std::size_t kMaxFaces = 500;

FontMetrics MetricsOf(const QFont& font) {
  const QFontMetricsF metrics(font);
  return {metrics.ascent() / kReferenceEm, metrics.descent() / kReferenceEm, metrics.lineSpacing() / kReferenceEm};
}

}  // namespace

QFont ReferenceFont(const Font& font) {
  QFont reference(QString::fromStdWString(font.face.empty() ? std::wstring(L"Arial") : font.face));
  reference.setPixelSize(kReferenceEm);
  reference.setBold(font.IsBold());
  reference.setItalic(font.IsItalic());
  reference.setHintingPreference(QFont::PreferNoHinting);
  reference.setStyleHint(QFont::SansSerif);
  return reference;
}

QtFonts::Face& QtFonts::FaceOf(const Font& font) {
  const auto isAsked = [&font](const Face& face) { return face.style == font.style && face.name == font.face; };
  const auto found = std::find_if(faces_.begin(), faces_.end(), isAsked);
  if (found != faces_.end()) {
    faces_.splice(faces_.begin(), faces_, found);
    return faces_.front();
  }
  if (faces_.size() >= kMaxFaces) faces_.pop_back();
  const QFont reference = ReferenceFont(font);
  faces_.push_front({font.face, font.style, reference, MetricsOf(reference), {}});
  return faces_.front();
}

FontMetrics QtFonts::Metrics(const Font& font) {
  const std::lock_guard lock(mutex_);
  const FontMetrics& ems = FaceOf(font).metrics;
  const double size = std::max(font.size, 0.0);
  return {ems.ascent * size, ems.descent * size, ems.lineSpacing * size};
}

double QtFonts::Width(const Font& font, std::wstring_view text) {
  const std::lock_guard lock(mutex_);
  Face& face = FaceOf(font);
  auto found = face.widths.find(text);
  if (found == face.widths.end()) {
    if (face.widths.size() >= kMaxWidths) face.widths.clear();
    const QString whole = QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
    found = face.widths.emplace(text, QFontMetricsF(face.font).horizontalAdvance(whole) / kReferenceEm).first;
  }
  return found->second * std::max(font.size, 0.0);
}

}  // namespace xrpt
