#include "editor/ExportChoice.h"

#include <algorithm>
#include <numeric>
#include <set>

#include "platform/Characters.h"

namespace xrpt {
namespace {

// From 1; nothing for a text that is no number of a page.
std::optional<std::size_t> PageOf(std::wstring_view digits, std::size_t count) {
  std::size_t page = 0;
  for (const wchar_t c : digits) {
    if (!IsDecimalDigit(c)) return std::nullopt;
    page = std::min<std::size_t>(page * 10 + static_cast<std::size_t>(c - L'0'), count + 1);
  }
  return page >= 1 && page <= count ? std::optional(page) : std::nullopt;
}

// "2", "2-4", "-4", "2-".
bool AddRange(std::wstring_view range, std::size_t count, std::set<std::size_t>& pages) {
  const std::size_t dash = range.find(L'-');
  const std::wstring_view from = Trimmed(range.substr(0, dash));
  const std::wstring_view to = dash == range.npos ? from : Trimmed(range.substr(dash + 1));
  if (from.empty() && to.empty()) return false;
  const std::optional<std::size_t> first = from.empty() ? 1 : PageOf(from, count);
  const std::optional<std::size_t> last = to.empty() ? count : PageOf(to, count);
  if (!first || !last || *first > *last) return false;
  for (std::size_t page = *first; page <= *last; ++page) pages.insert(page - 1);
  return true;
}

}  // namespace

PageNumbers AllPages(std::size_t count) {
  PageNumbers pages(count);
  std::iota(pages.begin(), pages.end(), std::size_t{0});
  return pages;
}

std::optional<PageNumbers> PagesFrom(std::wstring_view text, std::size_t count) {
  std::set<std::size_t> pages;
  while (true) {
    const std::size_t end = text.find_first_of(L",;");
    if (!AddRange(Trimmed(text.substr(0, end)), count, pages)) return std::nullopt;
    if (end == text.npos) return PageNumbers(pages.begin(), pages.end());
    text.remove_prefix(end + 1);
  }
}

}  // namespace xrpt
