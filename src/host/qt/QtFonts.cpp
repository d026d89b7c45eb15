#include "host/qt/QtFonts.h"

#include <QFontMetricsF>

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
  if (faces_.size() > kMaxFaces) faces_.clear();
  const auto [found, isNew] = faces_.try_emplace({font.face, font.style});
  if (isNew) {
    found->second.font = ReferenceFont(font);
    found->second.metrics = MetricsOf(found->second.font);
  }
  return found->second;
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
  if (face.widths.size() > kMaxWidths) face.widths.clear();
  const auto [found, isNew] = face.widths.try_emplace(std::wstring(text));
  if (isNew) {
    const QString whole = QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
    found->second = QFontMetricsF(face.font).horizontalAdvance(whole) / kReferenceEm;
  }
  return found->second * std::max(font.size, 0.0);
}

}  // namespace xrpt
