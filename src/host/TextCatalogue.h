// The texts of the user interface, one catalogue a language, a line a text (texts/<language>/*.inc).
#pragma once

#include <span>

#include "platform/Host.h"

namespace xrpt {

struct TextRow {
  int id;
  const wchar_t* text;
};

enum class Language { English, Spanish };

// Of a locale's name ("es_ES.UTF-8"); an empty one asks LC_ALL, LC_MESSAGES and LANG. English where we have no texts.
Language LanguageFrom(std::string_view locale);

// All texts of a language by number, ascending.
std::span<const TextRow> TextsOf(Language language);

class TextCatalogue final : public TextService {
 public:
  explicit TextCatalogue(Language language) : rows_(TextsOf(language)) {}
  // "#<id>" when nobody wrote the text yet, so that it is seen.
  std::wstring Text(int id) const override;

 private:
  std::span<const TextRow> rows_;
};

}  // namespace xrpt
