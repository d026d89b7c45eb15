#include "host/TextCatalogue.h"

#include <algorithm>
#include <cstdlib>

namespace xrpt {
namespace {

// In the order of their ids, which the look-up needs.
// clang-format off
constexpr TextRow kEnglish[] = {
#include "host/texts/en/system.inc"
#include "host/texts/en/fields.inc"
#include "host/texts/en/undo.inc"
#include "host/texts/en/desktop.inc"
#include "host/texts/en/cli.inc"
#include "host/texts/en/commands.inc"
#include "host/texts/en/formulas.inc"
#include "host/texts/en/checks.inc"
#include "host/texts/en/files.inc"
#include "host/texts/en/dialogs.inc"
};

constexpr TextRow kSpanish[] = {
#include "host/texts/es/system.inc"
#include "host/texts/es/fields.inc"
#include "host/texts/es/undo.inc"
#include "host/texts/es/desktop.inc"
#include "host/texts/es/cli.inc"
#include "host/texts/es/commands.inc"
#include "host/texts/es/formulas.inc"
#include "host/texts/es/checks.inc"
#include "host/texts/es/files.inc"
#include "host/texts/es/dialogs.inc"
};
// clang-format on

std::string_view LocaleOfEnvironment() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(name);
    if (value && *value) return value;
  }
  return {};
}

}  // namespace

Language LanguageFrom(std::string_view locale) {
  if (locale.empty()) locale = LocaleOfEnvironment();
  const std::string_view code = locale.substr(0, locale.find_first_of("_-.@"));
  return code == "es" || code == "ES" ? Language::Spanish : Language::English;
}

std::span<const TextRow> TextsOf(Language language) {
  if (language == Language::Spanish) return kSpanish;
  return kEnglish;
}

std::wstring TextCatalogue::Text(int id) const {
  const auto row =
      std::lower_bound(rows_.begin(), rows_.end(), id, [](const TextRow& r, int wanted) { return r.id < wanted; });
  if (row != rows_.end() && row->id == id) return row->text;
  return L"#" + std::to_wstring(id);
}

}  // namespace xrpt
