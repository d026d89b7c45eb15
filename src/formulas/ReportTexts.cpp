#include "formulas/ReportTexts.h"

namespace xrpt {
namespace {

// `now` is called with each text and gives what it becomes, or nothing.
template <class Now>
std::vector<TextChange> Changes(const RVReport& report, const Now& now) {
  std::vector<TextChange> changes;
  ForEachText(report, [&](const ReportText& text) {
    std::optional<std::wstring> after = now(text);
    if (after && *after != text.text) {
      changes.push_back({text.place, text.Owner(), std::wstring(text.text), std::move(*after), 1});
    }
  });
  return changes;
}

std::wstring SourceRenamed(const SourceRenaming& renaming, TextRole role, const std::wstring& text) {
  const auto& [from, to] = renaming.ids;
  if (role == TextRole::Words) return text;
  if (role == TextRole::Expression) return RenameSourceInExpression(renaming.kind, text, from, to);
  return RenameSourceIn(renaming.kind, text, from, to);
}

void CountSources(SourceKind kind, const ReportText& text, UseCounts& counts) {
  if (text.role == TextRole::Expression) return AddUses(counts, SourcesInExpression(kind, text.text));
  if (text.role == TextRole::Words) return;
  const std::wstring source = SourceIn(kind, text.text);
  if (!source.empty()) ++counts[source];
}

}  // namespace

TextOwner ReportText::Owner() const {
  if (formula) return {formula->name, formula->name, "formule", "text"};
  const char* tag = holder->GetRuntimeClass().tag;
  return {card->id, holder->id, tag ? tag : "", row->name};
}

std::vector<SearchHit> SearchReport(const RVReport& report, const TextFinder& finder) {
  std::vector<SearchHit> hits;
  ForEachText(report, [&](const ReportText& text) {
    if (!IsSearched(text.role)) return;
    const std::vector<std::size_t> found = finder.FindAll(text.text);
    if (found.empty()) return;
    const auto whole = std::make_shared<const FoundText>(FoundText{text.Owner(), std::wstring(text.text)});
    for (const std::size_t at : found) hits.push_back({text.place, at, whole});
  });
  return hits;
}

std::vector<TextChange> PreviewReplace(const RVReport& report, const TextFinder& finder,
                                       const std::wstring& replacement) {
  std::vector<TextChange> changes = Changes(report, [&](const ReportText& text) {
    return IsSearched(text.role) ? finder.Replaced(text.text, replacement) : std::nullopt;
  });
  for (TextChange& change : changes) change.matches = finder.FindAll(change.before).size();
  return changes;
}

std::vector<TextChange> PreviewFormulaRenamings(const RVReport& report, const std::vector<Renaming>& renamings) {
  return Changes(report, [&](const ReportText& text) -> std::optional<std::wstring> {
    if (text.formula || text.role != TextRole::Expression) return std::nullopt;
    std::wstring now(text.text);
    for (const auto& [from, to] : renamings) now = RenameFormulaIn(now, from, to);
    return now;
  });
}

std::vector<TextChange> PreviewSourceRenamings(const RVReport& report, const std::vector<SourceRenaming>& renamings) {
  return Changes(report, [&](const ReportText& text) -> std::optional<std::wstring> {
    std::wstring now(text.text);
    for (const SourceRenaming& renaming : renamings) now = SourceRenamed(renaming, text.role, now);
    return now;
  });
}

UseCounts FormulasUsedByCards(const RVReport& report) {
  UseCounts counts;
  ForEachText(report, [&](const ReportText& text) {
    if (!text.formula && text.role == TextRole::Expression) AddUses(counts, FormulasIn(text.text));
  });
  return counts;
}

UseCounts SourcesUsed(const RVReport& report) {
  UseCounts counts;
  ForEachText(report, [&](const ReportText& text) {
    CountSources(SourceKind::VirtualDevice, text, counts);
    CountSources(SourceKind::GoBackVariable, text, counts);
  });
  return counts;
}

std::vector<TextUse> UsersOfSource(const RVReport& report, std::wstring_view id) {
  std::vector<TextUse> users;
  ForEachText(report, [&](const ReportText& text) {
    UseCounts used;
    CountSources(SourceKind::VirtualDevice, text, used);
    CountSources(SourceKind::GoBackVariable, text, used);
    if (UsesOf(used, id) > 0) users.push_back({text.place, text.Owner()});
  });
  return users;
}

std::size_t ApplyToCard(RVCardControl& card, const std::vector<const TextChange*>& changes) {
  std::size_t place = 0;
  return ChangeTexts(card, [&](const EditedCardText& text) -> std::optional<std::wstring> {
    const std::size_t at = place++;
    for (const TextChange* change : changes) {
      if (change->place.text == at && change->before == text.text) return change->after;
    }
    return std::nullopt;
  });
}

std::size_t ApplyToFormulas(FormulaTable& formulas, const std::vector<const TextChange*>& changes) {
  std::size_t changed = 0;
  for (const TextChange* change : changes) {
    const std::size_t at = change->place.card;
    if (at >= formulas.size() || formulas[at].text != change->before) continue;
    formulas[at].text = change->after;
    ++changed;
  }
  return changed;
}

}  // namespace xrpt
