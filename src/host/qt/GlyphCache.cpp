#include "host/qt/GlyphCache.h"

#include <QTextLayout>
#include <algorithm>

#include "host/qt/QtFonts.h"

namespace xrpt {
namespace {

constexpr double kUnbroken = 1e7;

QList<QGlyphRun> Shaped(const QFont& font, std::wstring_view text) {
  QTextLayout layout(QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size())), font);
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  layout.setTextOption(option);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(kUnbroken);  // shapes the text; its ascent is known from then on
  line.setPosition({0.0, -line.ascent()});
  layout.endLayout();
  return layout.glyphRuns();
}

}  // namespace

GlyphCache::Face& GlyphCache::FaceOf(const Font& font) {
  const auto isAsked = [&font](const Face& face) { return face.style == font.style && face.name == font.face; };
  const auto found = std::find_if(faces_.begin(), faces_.end(), isAsked);
  if (found == faces_.end()) {
    faces_.push_front({font.face, font.style, ReferenceFont(font), {}});
  } else {
    faces_.splice(faces_.begin(), faces_, found);
  }
  return faces_.front();
}

const QList<QGlyphRun>& GlyphCache::Runs(const Font& font, std::wstring_view text) {
  if (count_ >= kMaxTexts) {
    faces_.clear();
    count_ = 0;
  }
  Face& face = FaceOf(font);
  const auto found = face.texts.find(text);
  if (found != face.texts.end()) return found->second;
  if (text.size() > kLongestText) return long_ = Shaped(face.font, text);
  ++count_;
  return face.texts.emplace(text, Shaped(face.font, text)).first->second;
}

}  // namespace xrpt
