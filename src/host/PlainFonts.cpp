#include "host/PlainFonts.h"

#include <array>

namespace xrpt {
namespace {

// Thousandths of an em, characters 32 to 126.
constexpr std::array<short, 95> kRegular = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr std::array<short, 95> kBold = {278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278,
                                         556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611,
                                         975, 722, 722, 722, 722, 667, 611, 778, 722, 278, 556, 722, 611, 833, 722, 778,
                                         667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 333, 278, 333, 584, 556,
                                         333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556, 278, 889, 611, 611,
                                         611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584};

// Accented Latin letters are as wide as the plain one; characters 0xC0 to 0xFF.
constexpr std::string_view kPlainLetter = "AAAAAAACEEEEIIIIDNOOOOO+OUUUUYPsaaaaaaaceeeeiiiidnooooo+ouuuuypy";

constexpr double kMonospaced = 0.6;
constexpr double kWide = 1.0;  // East Asian and pictures
constexpr double kUnknown = 0.556;

bool IsMonospaced(std::wstring_view face) {
  return face.find(L"Courier") != face.npos || face.find(L"Mono") != face.npos || face.find(L"Consol") != face.npos;
}

bool IsCombining(char32_t c) { return (c >= 0x300 && c < 0x370) || (c >= 0x200B && c <= 0x200F) || c < 0x20; }

bool IsWide(char32_t c) { return (c >= 0x1100 && c < 0x1160) || (c >= 0x2E80 && c < 0xFE00) || c >= 0x1F300; }

double EmsOf(char32_t c, const std::array<short, 95>& table) {
  if (c == 0xA0) c = U' ';
  if (c >= 0xC0 && c <= 0xFF) c = static_cast<unsigned char>(kPlainLetter[c - 0xC0]);
  if (c >= 32 && c < 127) return table[c - 32] / 1000.0;
  if (IsCombining(c)) return 0.0;
  return IsWide(c) ? kWide : kUnknown;
}

double EmsOfMonospaced(char32_t c) {
  if (IsCombining(c)) return 0.0;
  return IsWide(c) ? 2 * kMonospaced : kMonospaced;
}

}  // namespace

FontMetrics PlainFonts::Metrics(const Font& font) {
  const double em = std::max(font.size, 0.0);
  return {em * 0.905, em * 0.212, em * 1.149};
}

double PlainFonts::Width(const Font& font, std::wstring_view text) {
  const bool monospaced = IsMonospaced(font.face);
  const std::array<short, 95>& table = font.IsBold() ? kBold : kRegular;
  double ems = 0.0;
  for (wchar_t c : text) {
    const auto code = static_cast<char32_t>(c);
    ems += monospaced ? EmsOfMonospaced(code) : EmsOf(code, table);
  }
  return ems * std::max(font.size, 0.0);
}

}  // namespace xrpt
