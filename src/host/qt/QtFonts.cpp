#include "host/qt/QtFonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>
#include <optional>

namespace xrpt {
namespace {

constexpr std::size_t kMaxFaces = 500;

FontMetrics MetricsOf(const QFont& font) {
  const QFontMetricsF metrics(font);
  return {metrics.ascent() / kReferenceEm, metrics.descent() / kReferenceEm, metrics.lineSpacing() / kReferenceEm};
}

// Faces made to the measures of widespread ones, so that a text keeps its lines when they stand in.
struct SameWidths {
  const char* face;
  const char* standIns[4];
};
constexpr SameWidths kSameWidths[] = {
    {"Arial", {"Liberation Sans", "Arimo", "Helvetica", "Nimbus Sans"}},
    {"Helvetica", {"Liberation Sans", "Arimo", "Arial", "Nimbus Sans"}},
    {"Arial Narrow", {"Liberation Sans Narrow"}},
    {"Times New Roman", {"Liberation Serif", "Tinos", "Times", "Nimbus Roman"}},
    {"Times", {"Liberation Serif", "Tinos", "Times New Roman", "Nimbus Roman"}},
    {"Courier New", {"Liberation Mono", "Cousine", "Courier", "Nimbus Mono PS"}},
    {"Courier", {"Liberation Mono", "Cousine", "Courier New", "Nimbus Mono PS"}},
    {"Calibri", {"Carlito"}},
    {"Cambria", {"Caladea"}},
    {"Georgia", {"Gelasio"}},
};

bool IsFace(const char* name, const QString& face) {
  return face.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

bool HasSameWidths(const QString& face, const QString& shown) {
  for (const SameWidths& row : kSameWidths) {
    if (!IsFace(row.face, face)) continue;
    return std::any_of(std::begin(row.standIns), std::end(row.standIns),
                       [&shown](const char* standIn) { return standIn && IsFace(standIn, shown); });
  }
  return false;
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
  faces_.push_front({font.face, font.style, reference, std::this_thread::get_id(), MetricsOf(reference)});
  return faces_.front();
}

FontMetrics QtFonts::Metrics(const Font& font) {
  const std::lock_guard lock(mutex_);
  const FontMetrics& ems = FaceOf(font).metrics;
  const double size = std::max(font.size, 0.0);
  return {ems.ascent * size, ems.descent * size, ems.lineSpacing * size};
}

double QtFonts::Width(const Font& font, std::wstring_view text) {
  const double size = std::max(font.size, 0.0) / kReferenceEm;
  {
    const std::lock_guard lock(mutex_);
    if (const ShapedText* known = FaceOf(font).texts.Find(text)) return known->width * size;
  }
  return Shaped(font, text).width * size;
}

// Threads that shape one text at the same time do it twice; none waits for another.
ShapedText QtFonts::Shaped(const Font& font, std::wstring_view text) {
  std::optional<QFont> own;
  {
    const std::lock_guard lock(mutex_);
    Face& face = FaceOf(font);
    if (const ShapedText* known = face.texts.Find(text)) return *known;
    if (face.owner == std::this_thread::get_id()) own = face.font;
  }
  ++shapings_;
  const QString whole = QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
  const QFont reference = own ? *own : ReferenceFont(font);
  if (text.size() > kLongestText) return {QFontMetricsF(reference).horizontalAdvance(whole), {}, {}, false};
  const ShapedText shaped = ShapeText(reference, whole);
  const std::lock_guard lock(mutex_);
  return FaceOf(font).texts.Keep(text, shaped);
}

FacePresence QtFonts::Presence(std::wstring_view face) {
  const QString name = QString::fromWCharArray(face.data(), static_cast<qsizetype>(face.size()));
  if (QFontDatabase::hasFamily(name)) return FacePresence::Installed;
  return HasSameWidths(name, QFontInfo(QFont(name)).family()) ? FacePresence::StandIn : FacePresence::Missing;
}

}  // namespace xrpt
