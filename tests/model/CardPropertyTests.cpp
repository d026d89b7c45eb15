// What holds for every kind of card and every row of its tables, whatever the values.
#include <rapidcheck.h>

#include <map>
#include <set>

#include "CardSupport.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardDate.h"
#include "model/RVCardForceValues.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "model/RVCardReportGraph.h"

namespace xrpt {
namespace {

// Texts as files and panels hold them: numbers, words, names, and what hostile files hold instead.
std::string AnyText() {
  static const std::vector<std::string> texts = {"",
                                                 "0",
                                                 "12.345",
                                                 "-3.5",
                                                 "7",
                                                 "1e4",
                                                 "FFFFFF",
                                                 "00ff7F",
                                                 "FFFFFFFF",
                                                 "T",
                                                 "F",
                                                 "PLANT.P1",
                                                 "Title",
                                                 "no style",
                                                 "a < b && \"c\" > d",
                                                 "  two  words ",
                                                 "línea\nñ",
                                                 "\r\n\ttab",
                                                 "日本 😀",
                                                 "[A].[B].C",
                                                 "[]",
                                                 "0000123456",
                                                 "-2147483649",
                                                 "9999999999",
                                                 "]]>",
                                                 "<!--x-->",
                                                 "&amp;",
                                                 "a\x01\x1Fz",
                                                 "AUTO",
                                                 "USER"};
  return *rc::gen::elementOf(texts);
}

std::string TextFor(std::span<const Word> words) {
  const bool fromList = !words.empty() && *rc::gen::inRange(0, 4) != 0;
  return fromList ? words[*rc::gen::inRange<std::size_t>(0, words.size())].text : AnyText();
}

void FillList(const ListTable<RVCardControl>& table, RVCardControl& card) {
  ClearItems(table, card);
  const int items = *rc::gen::inRange(0, 4);
  for (int i = 0; i < items; ++i) {
    for (const auto& row : table.rows) row.append(card, TextFor(row.words));
  }
}

void FillRows(RVCardControl& card) {
  ForEachField(card.GetRuntimeClass().table, [&card](const CardRow& row) {
    if (row.list) FillList(row.list(), card);
    static constexpr Word kYesNo[] = {{"T", 1}, {"F", 0}};
    const bool yesNo = row.panel.editor == FieldEditor::Check;
    if (row.assign) row.assign(card, TextFor(yesNo ? kYesNo : row.WordsFor(card)));
  });
}

// Lists that a file left short: the entries of the last series are missing.
void ShortenSeries(RVCardReportGraph& graph) {
  if (graph.colors.empty() || *rc::gen::inRange(0, 3) != 0) return;
  graph.colors.pop_back();
  graph.types.pop_back();
  for (auto* list : {&graph.lineStyles, &graph.widths}) list->pop_back();
  for (auto* list : {&graph.minBind, &graph.maxBind}) list->pop_back();
  for (auto* list : {&graph.fminBind, &graph.fmaxBind}) list->pop_back();
}

void Fill(RVCardControl& card);

void FillAlternatives(RVCardConditioned& card) {
  for (const RegistryRow& row : CardRegistry()) {
    if (!row.inConditioned) continue;
    card.cards.push_back(row.kind().Create());
    Fill(*card.cards.back());
    card.conditions.push_back(FromUtf8(AnyText()));
  }
}

// What the editor never leaves behind and a save is known to change: a padding to no digits, a style whose font was not
// applied, a variable without a name, no background on a kind whose new cards have one, an empty date.
void MakeOrdinary(RVCardControl& card) {
  if (card.GetRuntimeClass().Create()->backcolor != kNoColor) card.backcolor &= 0xFFFFFF;
  if (auto* formule = dynamic_cast<RVCardFormule*>(&card)) {
    if (formule->leftPadding) formule->integers = std::max(formule->integers, 1);
    if (formule->rightPadding) formule->decimals = std::max(formule->decimals, 1);
  }
  if (auto* force = dynamic_cast<RVCardForceValues*>(&card)) {
    for (std::wstring& name : force->variables) name = L"[P" + name + L"]";
  }
  if (auto* date = dynamic_cast<RVCardDate*>(&card); date && date->value.empty()) date->value = L"today";
  card.UpdateStyleFromFile();
}

void Fill(RVCardControl& card) {
  FillRows(card);
  if (auto* graph = dynamic_cast<RVCardReportGraph*>(&card)) ShortenSeries(*graph);
  if (auto* conditioned = dynamic_cast<RVCardConditioned*>(&card)) FillAlternatives(*conditioned);
  if (auto* image = dynamic_cast<RVCardImage*>(&card)) image->LoadOriginalImage(FromUtf8(AnyText()), L"./");
  MakeOrdinary(card);
}

class CardProperties : public HostTest {
 protected:
  CardProperties() {
    host.WriteCfg("S1.Title.XSTY",
                  "<style><id>S1</id><name>Title</name><font><name>Times</name><style>BOLD</style><size>14.00</size>"
                  "<color>0000FF</color></font></style>");
  }
};

// Which elements of which kind were seen in a file; at the end every row of every table must have been.
using Seen = std::map<const CardClass*, std::set<std::string>>;

bool Holds(const std::string& xml, const char* name) {
  return xml.find("<" + std::string(name) + ">") != xml.npos || xml.find("<" + std::string(name) + "/>") != xml.npos;
}

void Note(const RVCardControl& card, const std::string& xml, Seen& seen) {
  const CardClass& kind = card.GetRuntimeClass();
  const auto note = [&](const char* name) {
    if (name && Holds(xml, name)) seen[&kind].insert(name);
  };
  ForEachField(kind.table, [&](const CardRow& row) {
    note(row.name);
    if (!row.list) return;
    for (const auto& entry : row.list().rows) note(entry.name);
  });
}

std::string NeverSeen(const RVCardControl& card, const std::set<std::string>& seen) {
  std::string missing;
  ForEachField(card.GetRuntimeClass().table, [&](const CardRow& row) {
    if (row.name && !seen.count(row.name)) missing += std::string(row.name) + " ";
    if (!row.list) return;
    for (const auto& entry : row.list().rows) {
      if (!seen.count(entry.name)) missing += std::string(entry.name) + " ";
    }
  });
  return missing;
}

// The two texts from where they part, for people; empty when they are the same.
std::string Difference(const std::string& left, const std::string& right) {
  if (left == right) return {};
  const auto at = static_cast<std::size_t>(std::mismatch(left.begin(), left.end(), right.begin(), right.end()).first -
                                           left.begin());
  const std::size_t from = at > 80 ? at - 80 : 0;
  return left.substr(from, 200) + "\n--- became ---\n" + right.substr(std::min(from, right.size()), 200);
}

TEST_F(CardProperties, WrittenReadAndWrittenAgainIsTheSame) {
  Seen seen;
  const bool held = rc::check("every kind survives a save and a load", [&seen] {
    for (const auto& card : OneOfEachKind()) {
      Fill(*card);
      const std::string xml = XmlOf(*card);
      Note(*card, xml, seen);
      RC_ASSERT(Difference(xml, XmlOf(*ReadBack(*card))) == "");
    }
  });
  EXPECT_TRUE(held);
  for (const auto& card : OneOfEachKind()) {
    EXPECT_EQ(NeverSeen(*card, seen[&card->GetRuntimeClass()]), "") << XmlOf(*card);
  }
}

TEST_F(CardProperties, CloneEqualsItsSourceUntilItsIdChanges) {
  EXPECT_TRUE(rc::check("a clone is equal, of its own, and another card by its id", [] {
    for (const auto& card : OneOfEachKind()) {
      Fill(*card);
      const std::unique_ptr<RVCardControl> clone = card->GetClone();
      RC_ASSERT(*clone == *card);
      RC_ASSERT(*card == *clone);
      clone->InitializeId();
      RC_ASSERT(*clone != *card);
    }
  }));
}

// A text that changes a field, or nothing when none does.
std::string ChangingText(const CardRow& row, const RVCardControl& card) {
  const std::wstring before = row.text(card);
  for (const std::string& text : OrdinaryTexts(row, row.WordsFor(card))) {
    const std::unique_ptr<RVCardControl> copy = card.GetClone();
    row.assign(*copy, text);
    if (row.text(*copy) != before) return text;
  }
  return {};
}

TEST_F(CardProperties, EqualityLooksAtTheRowsThatCountAndTheHistoryAtAll) {
  for (const auto& card : OneOfEachKind()) {
    ForEachField(card->GetRuntimeClass().table, [&card](const CardRow& row) {
      if (!row.assign) return;
      const std::unique_ptr<RVCardControl> other = card->GetClone();
      const std::string text = ChangingText(row, *card);
      ASSERT_FALSE(text.empty()) << row.FullName();
      row.assign(*other, text);
      // The label's font colour is the card's own colour a second time.
      const bool counts = row.counts || row.FullName() == "font/color";
      const bool graph = card->IsKindOf(RVCardReportGraph::Class());
      EXPECT_EQ(*other != *card, graph ? row.counts : counts)
          << card->GetRuntimeClass().tag << " " << row.FullName() << " " << text;
      EXPECT_FALSE(card->HasSameRows(*other)) << card->GetRuntimeClass().tag << " " << row.FullName() << " " << text;
    });
  }
}

// A copy that takes its source's place, as the history makes it.
std::unique_ptr<RVCardControl> InPlaceOf(const RVCardControl& card) {
  std::unique_ptr<RVCardControl> copy = card.GetClone();
  copy->TakePlaceOf(card);
  return copy;
}

TEST_F(CardProperties, ACopyInPlaceHasTheSameRowsUntilAnyEntryOfAListChanges) {
  EXPECT_TRUE(rc::check("rows are the same", [] {
    for (const auto& card : OneOfEachKind()) {
      Fill(*card);
      const auto copy = InPlaceOf(*card);
      RC_ASSERT(copy->HasSameRows(*card));
      ForEachField(card->GetRuntimeClass().table, [&](const CardRow& row) {
        if (!row.list) return;
        for (const auto& entry : row.list().rows) {
          const auto longer = InPlaceOf(*card);
          entry.append(*longer, "1");
          RC_ASSERT(!longer->HasSameRows(*card));
        }
      });
    }
  }));
}

struct RowChange {
  const char* what;
  bool equal;  // to card equality
  void (*change)(RVCardConditioned&);
};

template <class Card>
Card& InnerCard(RVCardConditioned& container) {
  for (const auto& card : container.cards) {
    if (auto* found = dynamic_cast<Card*>(card.get())) return *found;
  }
  throw std::logic_error("the test's container has one of each kind");
}

// What no assignable row says: pictures, inner cards, flags, and numbers that compare strangely.
TEST_F(CardProperties, WhatTheHistoryNotices) {
  RVCardConditioned original;
  for (const auto& card : {"label", "staticImage", "forceValues"}) {
    original.cards.push_back(NewInnerCard(card));
    original.conditions.emplace_back(L"1");
  }
  const RowChange changes[] = {
      {"condition", false, [](auto& card) { card.conditions[0] = L"2"; }},
      {"a condition without a card", false, [](auto& card) { card.conditions.emplace_back(); }},
      {"shown one", false, [](auto& card) { card.current = 1; }},
      {"flags", false, [](auto& card) { card.SetFlags(7); }},
      {"inner label", false, [](auto& card) { InnerCard<RVCardLabel>(card).text = L"new"; }},
      {"inner picture", false, [](auto& card) { InnerCard<RVCardImage>(card).LoadOriginalImage(L"p", L"./"); }},
      {"inner button's folder", true, [](auto& card) { InnerCard<RVCardButton>(card).imagePath.value = L"plant"; }},
      {"sign of a zero", true, [](auto& card) { card.x = -0.0; }},
      {"less than a file keeps", false, [](auto& card) { card.y = 1e-9; }},
  };
  for (const RowChange& change : changes) {
    const auto changed = InPlaceOf(original);
    ASSERT_TRUE(original.HasSameRows(*changed));
    change.change(static_cast<RVCardConditioned&>(*changed));
    EXPECT_FALSE(original.HasSameRows(*changed)) << change.what;
    EXPECT_EQ(original == *changed, change.equal) << change.what;
  }
  original.width = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(original.HasSameRows(*InPlaceOf(original)));
  EXPECT_FALSE(RVCardLabel().HasSameRows(RVCardDate()));
}

TEST_F(CardProperties, ThePagesRowsAreItsGridAndItsPictureToo) {
  const RVGlobalProperties page;
  void (*const changes[])(RVGlobalProperties&) = {
      [](auto& changed) { changed.xgrid = 5.0; },
      [](auto& changed) { changed.ygrid = 5.0; },
      [](auto& changed) { changed.Background().maintainRealSize = true; },
      [](auto& changed) { changed.Background().LoadOriginalImage(L"p", L"./"); },
      [](auto& changed) { changed.lists[3].emplace_back(); },
  };
  for (std::size_t i = 0; i < std::size(changes); ++i) {
    RVGlobalProperties changed = page;
    ASSERT_TRUE(changed.HasSameRows(page));
    changes[i](changed);
    EXPECT_FALSE(changed.HasSameRows(page)) << i;
  }
}

TEST_F(CardProperties, NoTwoKindsAreEqual) {
  std::vector<std::unique_ptr<RVCardControl>> cards = OneOfEachKind();
  for (const auto& card : cards) {
    card->id = L"same";
    card->color = kBlack;
    card->backcolor = kNoColor;
  }
  for (const auto& left : cards) {
    for (const auto& right : cards) EXPECT_EQ(*left == *right, left == right) << XmlOf(*left) << XmlOf(*right);
  }
}

TEST_F(CardProperties, PagePropertiesSurviveASaveAndALoad) {
  EXPECT_TRUE(rc::check("page", [] {
    RVGlobalProperties page;
    ForEachField(RVGlobalProperties::Table(), [&page](const PageRow& row) { row.assign(page, AnyText()); });
    const auto xmlOf = [](const RVGlobalProperties& properties) {
      std::string xml;
      XmlWriter out(xml);
      out.Start("page");
      properties.SaveTemplate(&out);
      out.End("page");
      return xml;
    };
    XmlDocument document;
    RC_ASSERT(document.Parse(xmlOf(page)));
    RVGlobalProperties read;
    read.GetFromXml(document.Root());
    RC_ASSERT(xmlOf(read) == xmlOf(page));
    const RVGlobalProperties copy = page;
    RC_ASSERT(copy == page);
  }));
}

}  // namespace
}  // namespace xrpt
