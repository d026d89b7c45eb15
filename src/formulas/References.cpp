#include "formulas/References.h"

#include "platform/Host.h"

namespace xrpt {
namespace {

constexpr std::wstring_view kGoBack = L"GOBACK";

std::vector<RVToken> TokensOf(std::wstring_view expression) {
  return CurrentHost().expressions->TokenProducer().Tokens(expression);
}

// Replaces the text of tokens, given what becomes of each (nothing: it stays), from the last to the first.
template <class Becomes>
std::wstring Rewritten(std::wstring_view expression, const Becomes& becomes) {
  std::wstring text(expression);
  const std::vector<RVToken> tokens = TokensOf(expression);
  for (auto token = tokens.rbegin(); token != tokens.rend(); ++token) {
    const std::optional<std::wstring> now = becomes(*token);
    if (now) text.replace(token->Position(), token->Length(), *now);
  }
  return text;
}

bool IsBracketed(std::wstring_view variable) {
  return variable.size() >= 2 && variable.front() == L'[' && variable.back() == L']';
}

std::wstring_view Plain(std::wstring_view variable) {
  return IsBracketed(variable) ? variable.substr(1, variable.size() - 2) : variable;
}

std::wstring SourceOf(SourceKind kind, const DriverVariable& parts) {
  if (kind == SourceKind::VirtualDevice) return parts.device;
  return parts.kind == kGoBack ? parts.kind + parts.period : std::wstring();
}

void Exchange(SourceKind kind, DriverVariable& parts, std::wstring_view to) {
  if (kind == SourceKind::VirtualDevice) parts.device = to;
  if (kind == SourceKind::GoBackVariable) parts.period = to.substr(std::min(kGoBack.size(), to.size()));
}

}  // namespace

std::size_t UsesOf(const UseCounts& counts, std::wstring_view name) {
  const auto at = counts.find(name);
  return at == counts.end() ? 0 : at->second;
}

void AddUses(UseCounts& counts, const UseCounts& more) {
  for (const auto& [name, count] : more) counts[name] += count;
}

UseCounts FormulasIn(std::wstring_view expression) {
  UseCounts counts;
  for (const RVToken& token : TokensOf(expression)) {
    if (token.GetType() == kTokenName) counts[token.GetText()] = 1;
  }
  return counts;
}

std::wstring RenameFormulaIn(std::wstring_view expression, std::wstring_view from, std::wstring_view to) {
  return Rewritten(expression, [&](const RVToken& token) -> std::optional<std::wstring> {
    if (token.GetType() != kTokenName || token.GetText() != from) return std::nullopt;
    return std::wstring(to);
  });
}

std::wstring SourceIn(SourceKind kind, std::wstring_view variable) {
  return SourceOf(kind, CurrentHost().variables->SplitDriverVariable(Plain(variable)));
}

std::wstring RenameSourceIn(SourceKind kind, std::wstring_view variable, std::wstring_view from, std::wstring_view to) {
  const VariableNaming& naming = *CurrentHost().variables;
  DriverVariable parts = naming.SplitDriverVariable(Plain(variable));
  if (from.empty() || SourceOf(kind, parts) != from) return std::wstring(variable);
  Exchange(kind, parts, to);
  const std::wstring now = naming.JoinDriverVariable(parts);
  return IsBracketed(variable) ? L"[" + now + L"]" : now;
}

UseCounts SourcesInExpression(SourceKind kind, std::wstring_view expression) {
  UseCounts counts;
  for (const RVToken& token : TokensOf(expression)) {
    if (token.GetType() == kTokenDriverVariable) counts[SourceIn(kind, token.GetText())] = 1;
  }
  counts.erase(L"");
  return counts;
}

std::wstring RenameSourceInExpression(SourceKind kind, std::wstring_view expression, std::wstring_view from,
                                      std::wstring_view to) {
  return Rewritten(expression, [&](const RVToken& token) -> std::optional<std::wstring> {
    if (token.GetType() != kTokenDriverVariable || SourceIn(kind, token.GetText()) != from) return std::nullopt;
    return L"[" + RenameSourceIn(kind, token.GetText(), from, to) + L"]";
  });
}

}  // namespace xrpt
