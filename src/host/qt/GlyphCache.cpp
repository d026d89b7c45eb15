#include "host/qt/GlyphCache.h"

#include <algorithm>

#include "host/qt/QtFonts.h"

namespace xrpt {
namespace {

constexpr std::size_t kMostFaces = 500;

}  // namespace

GlyphCache::Face& GlyphCache::FaceOf(const Font& font) {
  const auto isAsked = [&font](const Face& face) { return face.style == font.style && face.name == font.face; };
  const auto found = std::find_if(faces_.begin(), faces_.end(), isAsked);
  if (found == faces_.end()) {
    if (faces_.size() >= kMostFaces) faces_.pop_back();
    const QFont reference = ReferenceFont(font);
    faces_.push_front({font.face, font.style, reference, QRawFont::fromFont(reference)});
  } else {
    faces_.splice(faces_.begin(), faces_, found);
  }
  return faces_.front();
}

QList<QGlyphRun> GlyphCache::Shaped(const Face& face, const Font& font, std::wstring_view text) const {
  if (fonts_ && text.size() <= QtFonts::kLongestText) {
    const ShapedText shaped = fonts_->Shaped(font, text);
    QGlyphRun run;
    run.setRawFont(face.raw);
    run.setGlyphIndexes(shaped.glyphs);
    run.setPositions(shaped.places);
    if (shaped.isWhole) return {run};
  }
  return GlyphRunsOf(face.font, QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size())));
}

const QList<QGlyphRun>& GlyphCache::Runs(const Font& font, std::wstring_view text) {
  Face& face = FaceOf(font);
  if (text.size() > kLongestText) return long_ = Shaped(face, font, text);
  const QList<QGlyphRun>* known = face.texts.Find(text);
  return known ? *known : face.texts.Keep(text, Shaped(face, font, text));
}

}  // namespace xrpt
