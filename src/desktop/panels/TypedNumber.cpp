#include "desktop/panels/TypedNumber.h"

#include <algorithm>

namespace xrpt {

namespace {

constexpr QChar kMinus(0x2212);

bool IsSeparator(QChar character) { return character == QLatin1Char(',') || character == QLatin1Char('.'); }

// Without the blanks some write between thousands, and with the minus that programs read.
QString Plain(const QString& text) {
  QString plain;
  for (const QChar character : text) {
    if (!character.isSpace()) plain += character == kMinus ? QLatin1Char('-') : character;
  }
  return plain;
}

bool HasOnlyNumberCharacters(const QString& plain) {
  for (qsizetype at = 0; at < plain.size(); ++at) {
    const bool isSign = at == 0 && (plain[at] == QLatin1Char('-') || plain[at] == QLatin1Char('+'));
    const bool isDigit = plain[at] >= QLatin1Char('0') && plain[at] <= QLatin1Char('9');
    if (!isSign && !isDigit && !IsSeparator(plain[at])) return false;
  }
  return true;
}

// Where the decimals begin; -1 when there are none.
qsizetype DecimalSeparatorOf(const QString& plain) {
  const auto last = std::find_if(plain.rbegin(), plain.rend(), IsSeparator);
  if (last == plain.rend()) return -1;
  const bool repeats = plain.count(*last) > 1;
  return repeats ? -1 : plain.size() - 1 - (last - plain.rbegin());
}

}  // namespace

std::optional<double> NumberTyped(const QString& text) {
  const QString plain = Plain(text);
  if (!HasOnlyNumberCharacters(plain)) return std::nullopt;
  const qsizetype decimals = DecimalSeparatorOf(plain);
  QString number;
  for (qsizetype at = 0; at < plain.size(); ++at) {
    if (at == decimals) number += QLatin1Char('.');
    if (!IsSeparator(plain[at])) number += plain[at];
  }
  bool isNumber = false;
  const double value = number.toDouble(&isNumber);
  return isNumber ? std::optional(value) : std::nullopt;
}

bool MayBecomeNumber(const QString& text) { return HasOnlyNumberCharacters(Plain(text)); }

}  // namespace xrpt
