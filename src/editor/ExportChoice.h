// What of a report is exported, and as what.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace xrpt {

enum class ExportFormat { Pdf, Png, Svg };

// Page numbers, from 0, ascending.
using PageNumbers = std::vector<std::size_t>;

struct ExportChoice {
  ExportFormat format = ExportFormat::Pdf;
  PageNumbers pages;
  int dpi = 150;  // of pictures made of pixels

  static constexpr int kLeastDpi = 36;
  static constexpr int kMostDpi = 1200;
  bool HasPixels() const { return format == ExportFormat::Png; }
};

PageNumbers AllPages(std::size_t count);
// Pages as people write them, from 1: "1-3, 5", "4-". Nothing for a text that is no such list, names no page, or one
// that a report of `count` pages has not.
std::optional<PageNumbers> PagesFrom(std::wstring_view text, std::size_t count);

}  // namespace xrpt
