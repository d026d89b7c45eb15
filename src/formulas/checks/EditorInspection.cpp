#include "formulas/checks/EditorInspection.h"

#include "model/CardRegistry.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardImage.h"

namespace xrpt {
namespace {

// The elements from which the loader makes cards.
template <class Makes>
std::vector<XmlNode> CardElements(const XmlNode& parent, const Makes& makes) {
  std::vector<XmlNode> elements;
  for (const XmlNode& child : parent) {
    if (makes(child.Tag())) elements.push_back(child);
  }
  return elements;
}

std::vector<XmlNode> InnerElements(const XmlNode& conditioned) {
  std::vector<XmlNode> all;
  for (const XmlNode& control : conditioned) {
    if (control.Tag() != "control") continue;
    const auto cards = CardElements(control, InnerCardKind);
    all.insert(all.end(), cards.begin(), cards.end());
  }
  return all;
}

XmlNode At(const std::vector<XmlNode>& elements, std::size_t index) {
  return index < elements.size() ? elements[index] : XmlNode();
}

RectD AreaOf(const RVCardControl& card) { return {card.x, card.y, card.x + card.width, card.y + card.height}; }

Finding FindingOf(const CheckCode& code, Note&& note) {
  Finding finding;
  finding.code = &code;
  finding.place = note.place;
  finding.detail = std::move(note.detail);
  finding.remedy = std::move(note.remedy);
  return finding;
}

void RunCardChecks(const CardView& view, CardScope least, const CheckChoice& choice, std::vector<Finding>& found) {
  for (const EditorCheck& check : EditorChecks()) {
    if (!check.card || check.scope < least || !choice.Has(check.code)) continue;
    std::optional<Note> note = check.card(view);
    if (!note) continue;
    found.push_back(FindingOf(check.code, std::move(*note)));
    found.back().kindTextId = view.card.GetRuntimeClass().textId;
  }
}

void InspectInnerCards(const RVCardConditioned& outer, const XmlNode& element, const PageShape& page,
                       const CheckChoice& choice, std::vector<Finding>& found) {
  const std::vector<XmlNode> elements = InnerElements(element);
  for (std::size_t i = 0; i < outer.cards.size(); ++i) {
    const std::size_t before = found.size();
    RunCardChecks({*outer.cards[i], AreaOf(outer), At(elements, i), page, true}, CardScope::InnerToo, choice, found);
    for (std::size_t at = before; at < found.size(); ++at) found[at].place.inner = static_cast<int>(i);
  }
}

void Append(std::vector<Finding>& all, std::vector<Finding>&& more, CardPlace place) {
  for (Finding& finding : more) {
    finding.place.page = place.page;
    finding.place.card = place.card;
    all.push_back(std::move(finding));
  }
}

struct PageReading {
  std::vector<CardFacts> facts;
  std::vector<Finding> found;
};

PageReading ReadPage(const RVReportPage& page, const XmlNode& element, int number, const CheckChoice& choice) {
  PageReading reading;
  const auto elements = CardElements(element, PageCardKind);
  const PageShape shape = ShapeOf(page);
  const RVGlobalProperties& properties = page.properties;
  if (properties.ThereAreBackground()) {
    Append(reading.found, InspectBackground(properties.Background(), shape, choice), {number});
  }
  for (std::size_t i = 0; i < page.cards.Size(); ++i) {
    reading.facts.push_back(FactsOf(page.cards[i]));
    Append(reading.found, InspectCard(page.cards[i], At(elements, i), shape, choice), {number, static_cast<int>(i)});
  }
  return reading;
}

PageFacts PointersTo(const std::vector<CardFacts>& facts) {
  PageFacts pointers;
  for (const CardFacts& card : facts) pointers.push_back(&card);
  return pointers;
}

}  // namespace

PageShape ShapeOf(const RVReportPage& page) {
  constexpr double kUsualDpi = 96.0;
  const double scale = page.fontFactor * kUsualDpi / page.Services().screen->DpiY();
  return {{page.properties.width, page.properties.height}, scale, page.StylesLost()};
}

std::vector<Finding> InspectCard(const RVCardControl& card, const XmlNode& element, const PageShape& page,
                                 const CheckChoice& choice) {
  std::vector<Finding> found;
  RunCardChecks({card, AreaOf(card), element, page}, CardScope::PageCards, choice, found);
  if (const auto* outer = dynamic_cast<const RVCardConditioned*>(&card)) {
    InspectInnerCards(*outer, element, page, choice, found);
  }
  for (Finding& finding : found) finding.cardId = card.id;
  return found;
}

std::vector<Finding> InspectBackground(const RVCardControl& background, const PageShape& page,
                                       const CheckChoice& choice) {
  std::vector<Finding> found;
  RunCardChecks({background, AreaOf(background), XmlNode(), page}, CardScope::InnerAndBackgrounds, choice, found);
  return found;
}

std::vector<Finding> InspectFacts(const ReportFacts& report, const CheckChoice& choice) {
  std::vector<Finding> found;
  for (const EditorCheck& check : EditorChecks()) {
    if (!check.report || !choice.Has(check.code)) continue;
    for (Note& note : check.report(report)) {
      Finding& finding = found.emplace_back(FindingOf(check.code, std::move(note)));
      if (finding.place.card < 0) continue;
      const CardFacts& card =
          *report.pages[static_cast<std::size_t>(finding.place.page - 1)][static_cast<std::size_t>(finding.place.card)];
      finding.cardId = card.id;
      finding.kindTextId = card.kindTextId;
    }
  }
  return found;
}

std::vector<Finding> InspectReport(const RVReport& report, const XmlNode& root, const CheckChoice& choice) {
  const auto elements = CardElements(root, [](std::string_view tag) { return tag == "page"; });
  std::vector<Finding> found;
  std::vector<std::vector<CardFacts>> facts;
  for (std::size_t i = 0; i < report.pages.size(); ++i) {
    PageReading page = ReadPage(*report.pages[i], At(elements, i), static_cast<int>(i) + 1, choice);
    std::move(page.found.begin(), page.found.end(), std::back_inserter(found));
    facts.push_back(std::move(page.facts));
  }
  ReportFacts all{{}, ReadFormulas(report.formules)};
  for (const std::vector<CardFacts>& page : facts) all.pages.push_back(PointersTo(page));
  std::vector<Finding> rest = InspectFacts(all, choice);
  std::move(rest.begin(), rest.end(), std::back_inserter(found));
  return found;
}

}  // namespace xrpt
