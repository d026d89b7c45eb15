// Who refers to what: formulas by name in expressions, virtual devices and go-back variables inside variables' names.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace xrpt {

// How many texts use each name, however often each of them does.
using UseCounts = std::map<std::wstring, std::size_t, std::less<>>;

std::size_t UsesOf(const UseCounts& counts, std::wstring_view name);
void AddUses(UseCounts& counts, const UseCounts& more);

// The formulas an expression uses, each counted once.
UseCounts FormulasIn(std::wstring_view expression);
// The expression with one formula's name in the place of another.
std::wstring RenameFormulaIn(std::wstring_view expression, std::wstring_view from, std::wstring_view to);

// A new name.
struct Renaming {
  std::wstring from;
  std::wstring to;
};

// The two kinds of data sources a report declares.
enum class SourceKind { VirtualDevice, GoBackVariable };

struct SourceRenaming {
  SourceKind kind;
  Renaming ids;
};

// The identifier of the source of that kind in a driver variable's full name (brackets may be round it); empty for
// none.
std::wstring SourceIn(SourceKind kind, std::wstring_view variable);
// The variable's name with one source's identifier in the place of another; as it was when it refers to something else.
std::wstring RenameSourceIn(SourceKind kind, std::wstring_view variable, std::wstring_view from, std::wstring_view to);
// The same for the bracketed variables of an expression.
UseCounts SourcesInExpression(SourceKind kind, std::wstring_view expression);
std::wstring RenameSourceInExpression(SourceKind kind, std::wstring_view expression, std::wstring_view from,
                                      std::wstring_view to);

}  // namespace xrpt
