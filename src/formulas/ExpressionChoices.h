// What may stand in an expression, for the formula wizard and for completing what is typed: variables of the plant and
// of the report's virtual devices, types of hour, functions, operators, and the report's formulas.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "formulas/FormulaTable.h"
#include "formulas/VirtualLists.h"

namespace xrpt {

// What a report has to say of its expressions.
struct ExpressionSources {
  FormulaTable formulas;
  SourceList devices;
  SourceList goBacks;
};

enum class ChoiceKind { Variable, VirtualDevice, HourType, Formula, Function, Operator };

struct ExpressionChoice {
  ChoiceKind kind;
  std::wstring group;         // what it belongs to, for people: a device, a file of hour types; empty for none
  std::wstring name;          // as expressions write it, without brackets: "MAIN.P", "atan2", "Peak"
  std::wstring help;          // for people: a variable's name, what a function does, a formula's text
  std::wstring insert;        // "[MAIN.P]", "atan2()", "Peak"
  std::size_t caretBack = 0;  // how far before its end typing goes on, in characters
};

std::vector<ExpressionChoice> ExpressionChoices(const ExpressionSources& sources);

// The text of what is chosen, of a variable with one of the report's go-back variables ("GOBACK@P1"; empty: now).
std::wstring InsertedText(const ExpressionChoice& choice, const std::wstring& goBack);

struct ExpressionInsertion {
  std::wstring text;
  std::size_t caretBack = 0;
};
// What completing puts in the place of what was typed; `next` is the character behind that. A function leaves out its
// parentheses where one is there already.
ExpressionInsertion InsertionOf(const ExpressionChoice& choice, wchar_t next);

// Whether all words that were typed stand somewhere in its name, group or help, whatever their case.
bool IsFoundBy(const ExpressionChoice& choice, std::wstring_view typed);

// What may follow where the cursor stands, and which stretch of the text it takes the place of.
struct Completion {
  std::size_t begin = 0;             // characters
  std::size_t length = 0;            // the name or variable that the cursor stands in, all of it
  std::vector<std::size_t> choices;  // the best first
};

// Names and variables for what is typed before the cursor; nothing behind a number, an operator or a blank.
// `asked`: everything is offered there, too, because the user asks for it.
Completion CompletionAt(std::wstring_view expression, std::size_t cursor, const std::vector<ExpressionChoice>& choices,
                        bool asked = false);

}  // namespace xrpt
