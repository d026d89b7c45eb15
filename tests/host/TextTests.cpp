#include <gmock/gmock.h>

#include "host/TextCatalogue.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

std::vector<int> IdsOf(Language language) {
  std::vector<int> ids;
  for (const TextRow& row : TextsOf(language)) ids.push_back(row.id);
  return ids;
}

// How a text takes its argument, which a translation must not change.
std::wstring Arguments(std::wstring_view text) {
  std::wstring found;
  for (std::size_t at = text.find(L'%'); at != text.npos; at = text.find(L'%', at + 1)) found += text.substr(at, 2);
  return found;
}

TEST(Texts, AscendingInEveryLanguageSoThatEachIsFound) {
  for (const Language language : {Language::English, Language::Spanish}) {
    const std::vector<int> ids = IdsOf(language);
    const auto wrong = std::adjacent_find(ids.begin(), ids.end(), [](int a, int b) { return a >= b; });
    ASSERT_EQ(wrong, ids.end()) << "out of order or twice: " << *wrong << ", then " << *(wrong + 1);
  }
}

TEST(Texts, EveryLanguageHoldsTheSameTexts) {
  const std::vector<int> english = IdsOf(Language::English);
  const std::vector<int> spanish = IdsOf(Language::Spanish);
  std::vector<int> lonely;
  std::set_symmetric_difference(english.begin(), english.end(), spanish.begin(), spanish.end(),
                                std::back_inserter(lonely));
  EXPECT_THAT(lonely, ::testing::IsEmpty());
}

TEST(Texts, TranslationsAreWrittenAndKeepTheirArguments) {
  const TextCatalogue spanish(Language::Spanish);
  for (const TextRow& row : TextsOf(Language::English)) {
    EXPECT_NE(std::wstring_view(row.text), L"") << row.id;
    EXPECT_NE(spanish.Text(row.id), L"") << row.id;
    EXPECT_EQ(Arguments(row.text), Arguments(spanish.Text(row.id))) << row.id;
  }
}

TEST(Texts, LanguageFollowsTheLocale) {
  const std::pair<const char*, Language> rows[] = {{"es", Language::Spanish},      {"es_ES.UTF-8", Language::Spanish},
                                                   {"es-MX", Language::Spanish},   {"en_GB.UTF-8", Language::English},
                                                   {"C.UTF-8", Language::English}, {"est_EE", Language::English}};
  for (const auto& [locale, language] : rows) EXPECT_EQ(LanguageFrom(locale), language) << locale;
}

TEST(Texts, NumberInPlaceOfATextNobodyWrote) {
  const TextCatalogue texts(Language::English);
  EXPECT_EQ(texts.Text(32518), L"Page %d");
  EXPECT_EQ(texts.Text(1), L"#1");
  EXPECT_EQ(texts.Text(69999), L"#69999");
}

}  // namespace
}  // namespace xrpt
