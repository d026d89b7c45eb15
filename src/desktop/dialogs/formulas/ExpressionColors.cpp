#include "desktop/dialogs/formulas/ExpressionColors.h"

#include <QTextDocument>

#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"

namespace xrpt {

namespace {

constexpr int kLongestColoured = 20000;  // characters; longer texts stay plain

struct PartColors {
  QRgb name, variable, number;
};
constexpr PartColors kLight{0x7B3FA0, 0x2B7A33, 0xA0520A};
constexpr PartColors kDark{0xC79BE8, 0x82CB8C, 0xE2A765};

const PartColors& Colors() { return IsDarkTheme() ? kDark : kLight; }

void Underline(QTextCharFormat& format, QTextCharFormat::UnderlineStyle style) {
  format.setUnderlineStyle(style);
  format.setUnderlineColor(CurrentTheme().wrong);
}

}  // namespace

TextPlaces::TextPlaces(const QString& text) : wide_(text.toStdWString()) {
  if (wide_.size() == static_cast<std::size_t>(text.size())) return;
  int at = 0;
  for (const wchar_t c : wide_) {
    offsets_.push_back(at);
    at += c > 0xFFFF ? 2 : 1;
  }
  offsets_.push_back(at);
}

int TextPlaces::ToToolkit(std::size_t position) const {
  const std::size_t inside = std::min(position, wide_.size());
  return offsets_.empty() ? static_cast<int>(inside) : offsets_[inside];
}

std::size_t TextPlaces::FromToolkit(int position) const {
  if (offsets_.empty()) return std::min(static_cast<std::size_t>(position), wide_.size());
  const auto at = std::lower_bound(offsets_.begin(), offsets_.end(), position);
  return std::min(static_cast<std::size_t>(at - offsets_.begin()), wide_.size());
}

void ExpressionColors::SetKnownNames(std::set<std::wstring, std::less<>> names) {
  names_ = std::move(names);
  read_ = QString();
  parts_.clear();
  rehighlight();
}

void ExpressionColors::ReadTokens() {
  const QString text = document()->toPlainText();
  if (text == read_ && isDark_ == IsDarkTheme()) return;
  read_ = text;
  isDark_ = IsDarkTheme();
  parts_.clear();
  if (text.size() > kLongestColoured) return;
  const TextPlaces places(text);
  for (const RVToken& token : CurrentHost().expressions->TokenProducer().Tokens(places.Wide())) {
    parts_.push_back(
        {places.ToToolkit(token.Position()), places.ToToolkit(token.Position() + token.Length()), FormatOf(token)});
  }
}

QTextCharFormat ExpressionColors::FormatOf(const RVToken& token) const {
  QTextCharFormat format;
  switch (token.GetType()) {
    case kTokenFunction:
      format.setForeground(CurrentTheme().accent);
      break;
    case kTokenName:
      format.setForeground(QColor(Colors().name));
      if (!names_.contains(token.GetText())) Underline(format, QTextCharFormat::DotLine);
      break;
    case kTokenDriverVariable:
    case kTokenModule:
      format.setForeground(QColor(Colors().variable));
      break;
    case kTokenNumber:
      format.setForeground(QColor(Colors().number));
      break;
    case kTokenWrong:
      format.setForeground(CurrentTheme().wrong);
      break;
    default:
      break;
  }
  return format;
}

void ExpressionColors::highlightBlock(const QString& block) {
  ReadTokens();
  const int begin = currentBlock().position();
  const int end = begin + static_cast<int>(block.size());
  for (const Part& part : parts_) {
    const int from = std::max(part.begin, begin);
    const int to = std::min(part.end, end);
    if (from < to) setFormat(from - begin, to - from, part.format);
  }
}

}  // namespace xrpt
