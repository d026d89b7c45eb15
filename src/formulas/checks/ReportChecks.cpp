// Checks over all cards of a report: identities, faces, formulas.
#include <map>
#include <set>

#include "formulas/References.h"
#include "formulas/checks/CheckTexts.h"
#include "formulas/checks/EditorChecks.h"

namespace xrpt {
namespace {

// Calls `visit(card, place)` for every card of the report.
template <class Visit>
void ForEachCard(const ReportFacts& report, const Visit& visit) {
  for (std::size_t page = 0; page < report.pages.size(); ++page) {
    for (std::size_t card = 0; card < report.pages[page].size(); ++card) {
      visit(*report.pages[page][card], CardPlace{static_cast<int>(page) + 1, static_cast<int>(card)});
    }
  }
}

using Names = std::set<std::wstring, std::less<>>;

Names NamesOf(const FormulaTable& formulas) {
  Names names;
  for (const Formula& formula : formulas) names.insert(formula.name);
  return names;
}

// The names cards use, and those that the formulas of these names use in turn.
Names UsedFormulas(const ReportFacts& report) {
  std::map<std::wstring_view, const Formula*> byName;
  for (const Formula& formula : report.formulas) byName.emplace(formula.name, &formula);
  Names used;
  std::vector<std::wstring> waiting;
  ForEachCard(report, [&waiting](const CardFacts& card, CardPlace) {
    waiting.insert(waiting.end(), card.formulas.begin(), card.formulas.end());
  });
  while (!waiting.empty()) {
    const std::wstring name = std::move(waiting.back());
    waiting.pop_back();
    const auto formula = byName.find(name);
    if (formula == byName.end() || !used.insert(name).second) continue;
    for (const auto& [inner, uses] : FormulasIn(formula->second->text)) waiting.push_back(inner);
  }
  return used;
}

std::wstring Joined(const std::vector<std::wstring>& names) {
  std::wstring text;
  for (const std::wstring& name : names) text += (text.empty() ? L"" : L", ") + name;
  return text;
}

}  // namespace

// The first card of an identifier keeps it.
std::vector<Note> SharedIds(const ReportFacts& report) {
  std::vector<Note> notes;
  std::set<std::wstring_view> taken;
  ForEachCard(report, [&](const CardFacts& card, CardPlace place) {
    if (card.id.empty() || taken.insert(card.id).second) return;
    notes.push_back({place, card.id, {text::kGiveNewId, {{Change::Kind::NewId, {}, {}}}}});
  });
  return notes;
}

// A face once, at the first card that has it.
std::vector<Note> MissingFaces(const ReportFacts& report) {
  FontService& fonts = *CurrentHost().fonts;
  std::vector<Note> notes;
  std::set<std::wstring_view> seen;
  ForEachCard(report, [&](const CardFacts& card, CardPlace place) {
    for (const std::wstring& face : card.faces) {
      if (face.empty() || !seen.insert(face).second) continue;
      if (fonts.Presence(face) == FacePresence::Missing) notes.push_back({place, face, {}});
    }
  });
  return notes;
}

std::vector<Note> UnusedFormulas(const ReportFacts& report) {
  if (report.formulas.empty()) return {};
  const Names used = UsedFormulas(report);
  std::vector<Note> notes;
  for (const Formula& formula : report.formulas) {
    if (used.contains(formula.name)) continue;
    notes.push_back({{}, formula.name, {text::kRemoveFormula, {{Change::Kind::RemoveFormula, {}, formula.name}}}});
  }
  return notes;
}

std::vector<Note> UnknownNames(const ReportFacts& report) {
  const Names known = NamesOf(report.formulas);
  std::vector<Note> notes;
  for (const Formula& formula : report.formulas) {
    std::vector<std::wstring> unknown;
    for (const auto& [name, uses] : FormulasIn(formula.text)) {
      if (!known.contains(name)) unknown.push_back(name);
    }
    if (!unknown.empty()) notes.push_back({{}, formula.name + L": " + Joined(unknown), {}});
  }
  return notes;
}

}  // namespace xrpt
