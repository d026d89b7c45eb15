#include "formulas/ExpressionChoices.h"

#include <algorithm>
#include <set>

#include "formulas/FormulaTexts.h"
#include "formulas/HourTypes.h"
#include "platform/Characters.h"
#include "platform/Host.h"

namespace xrpt {
namespace {

using Choices = std::vector<ExpressionChoice>;

constexpr std::size_t kMostCompletions = 200;
constexpr std::size_t kShortestPart = 2;  // of a name that is looked for inside other names

std::wstring Bracketed(const std::wstring& variable) { return L"[" + variable + L"]"; }

ExpressionChoice VariableChoice(ChoiceKind kind, const std::wstring& group, const std::wstring& name,
                                const std::wstring& help) {
  return {kind, group, name, help, Bracketed(name)};
}

std::wstring GroupOf(const Device& device) {
  return device.name.empty() ? device.id : device.id + L" · " + device.name;
}

std::wstring VariableName(const std::wstring& device, const std::wstring& variable) {
  return CurrentHost().variables->JoinDriverVariable({device, variable, {}, {}});
}

void AddVariables(Choices& choices, const std::vector<Device>& plant) {
  for (const Device& device : plant) {
    for (const DeviceVariable& variable : device.variables) {
      choices.push_back(
          VariableChoice(ChoiceKind::Variable, GroupOf(device), VariableName(device.id, variable.id), variable.name));
    }
  }
}

// A virtual device stands for whichever device the report is made for, so it has the variables that devices have.
void AddVirtualDevices(Choices& choices, const SourceList& sources, const std::vector<Device>& plant) {
  for (std::size_t i = 0; i < sources.Size(); ++i) {
    std::set<std::wstring> known;
    for (const Device& device : plant) {
      for (const DeviceVariable& variable : device.variables) {
        if (!known.insert(variable.id).second) continue;
        choices.push_back(VariableChoice(ChoiceKind::VirtualDevice, sources.names[i],
                                         VariableName(sources.ids[i], variable.id), variable.name));
      }
    }
  }
}

void AddHourTypes(Choices& choices) {
  for (const HourTypes& types : ReadHourTypes()) {
    for (const std::wstring& entry : types.entries) {
      choices.push_back(VariableChoice(ChoiceKind::HourType, types.file, HourTypeReference(types.file, entry), entry));
    }
  }
}

// The cursor goes between the parentheses.
void AddFunctions(Choices& choices) {
  const RVTokenProducer& producer = CurrentHost().expressions->TokenProducer();
  for (int i = 0; i < producer.NumberOfFunctions(); ++i) {
    const FunctionHelp help = producer.GetFunctionHelp(i);
    choices.push_back({ChoiceKind::Function,
                       {},
                       help.name,
                       help.use + L" · " + help.help + L"  " + help.example,
                       help.name + L"()",
                       1});
  }
}

void AddOperators(Choices& choices) {
  constexpr std::pair<const wchar_t*, int> kOperators[] = {
      {L"+", text::kPlusHelp},     {L"-", text::kMinusHelp},  {L"*", text::kTimesHelp},      {L"/", text::kDividedHelp},
      {L"^", text::kPowerHelp},    {L"<", text::kLessHelp},   {L"<=", text::kNotMoreHelp},   {L">", text::kMoreHelp},
      {L">=", text::kNotLessHelp}, {L"==", text::kEqualHelp}, {L"!=", text::kDifferentHelp}, {L"&&", text::kAndHelp},
      {L"||", text::kOrHelp},      {L"!", text::kNotHelp}};
  for (const auto& [sign, help] : kOperators) {
    const bool isBefore = std::wstring_view(sign) == L"!";
    choices.push_back(
        {ChoiceKind::Operator, {}, sign, HostText(help), isBefore ? sign : L" " + std::wstring(sign) + L" "});
  }
}

// --- Finding ---

std::wstring SearchedText(const ExpressionChoice& choice) {
  return FoldCase(choice.name + L"\n" + choice.group + L"\n" + choice.help);
}

// How well a name fits what is typed: 0 not at all, then inside it, at its beginning.
int Fit(const ExpressionChoice& choice, const std::wstring& typed) {
  const std::wstring name = FoldCase(choice.name);
  if (name.compare(0, typed.size(), typed) == 0) return 3;
  if (typed.size() < kShortestPart) return 0;
  if (name.find(typed) != name.npos) return 2;
  return FoldCase(choice.help).find(typed) != std::wstring::npos && choice.kind != ChoiceKind::Function ? 1 : 0;
}

// The stretch of a name, or of a bracketed variable, that the cursor stands in or right behind.
struct Typed {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::wstring text;  // before the cursor, folded
  bool isVariable = false;
  bool isNothing = false;
};

Typed VariableAt(std::wstring_view expression, std::size_t open, std::size_t cursor) {
  const std::size_t close = expression.find_first_of(L"[]", cursor);
  const bool isClosed = close != expression.npos && expression[close] == L']';
  return {open, isClosed ? close + 1 : cursor, FoldCase(expression.substr(open + 1, cursor - open - 1)), true, false};
}

// A variable may be begun without its bracket.
bool IsPartOfName(wchar_t c) { return c == L'.' || IsNameCharacter(c); }

Typed TypedAt(std::wstring_view expression, std::size_t cursor) {
  const std::size_t bracket = cursor == 0 ? expression.npos : expression.find_last_of(L"[]", cursor - 1);
  if (bracket != expression.npos && expression[bracket] == L'[') return VariableAt(expression, bracket, cursor);
  std::size_t begin = cursor;
  while (begin > 0 && IsPartOfName(expression[begin - 1])) --begin;
  std::size_t end = cursor;
  while (end < expression.size() && IsPartOfName(expression[end])) ++end;
  const bool isName = begin < cursor && !IsDecimalDigit(expression[begin]) && expression[begin] != L'.';
  return {isName ? begin : cursor, isName ? end : cursor,
          isName ? FoldCase(expression.substr(begin, cursor - begin)) : std::wstring(), false, !isName};
}

bool IsVariable(const ExpressionChoice& choice) {
  return choice.kind == ChoiceKind::Variable || choice.kind == ChoiceKind::VirtualDevice ||
         choice.kind == ChoiceKind::HourType;
}

// Formulas and functions before variables, which are many.
int Rank(const ExpressionChoice& choice, int fit) { return fit * 2 + (IsVariable(choice) ? 0 : 1); }

}  // namespace

std::vector<ExpressionChoice> ExpressionChoices(const ExpressionSources& sources) {
  Choices choices;
  const std::vector<Device> plant = CurrentHost().devices->Devices();
  for (const Formula& formula : sources.formulas) {
    choices.push_back({ChoiceKind::Formula, {}, formula.name, formula.text, formula.name});
  }
  AddVariables(choices, plant);
  AddVirtualDevices(choices, sources.devices, plant);
  AddHourTypes(choices);
  AddFunctions(choices);
  AddOperators(choices);
  return choices;
}

std::wstring InsertedText(const ExpressionChoice& choice, const std::wstring& goBack) {
  const bool isOfDevice = choice.kind == ChoiceKind::Variable || choice.kind == ChoiceKind::VirtualDevice;
  return isOfDevice && !goBack.empty() ? Bracketed(choice.name + L"." + goBack) : choice.insert;
}

ExpressionInsertion InsertionOf(const ExpressionChoice& choice, wchar_t next) {
  if (choice.kind == ChoiceKind::Function && next == L'(') return {choice.name, 0};
  return {choice.insert, choice.caretBack};
}

bool IsFoundBy(const ExpressionChoice& choice, std::wstring_view typed) {
  const std::wstring searched = SearchedText(choice);
  const std::wstring words = FoldCase(typed);
  std::size_t at = 0;
  while (at < words.size()) {
    std::size_t end = words.find(L' ', at);
    if (end == words.npos) end = words.size();
    if (searched.find(words.substr(at, end - at)) == searched.npos) return false;
    at = end + 1;
  }
  return true;
}

Completion CompletionAt(std::wstring_view expression, std::size_t cursor, const std::vector<ExpressionChoice>& choices,
                        bool asked) {
  const Typed typed = TypedAt(expression, std::min(cursor, expression.size()));
  Completion completion{typed.begin, typed.end - typed.begin, {}};
  if (typed.isNothing && !asked) return completion;
  std::vector<std::pair<int, std::size_t>> found;
  for (std::size_t i = 0; i < choices.size(); ++i) {
    if (choices[i].kind == ChoiceKind::Operator || (typed.isVariable && !IsVariable(choices[i]))) continue;
    const int fit = Fit(choices[i], typed.text);
    if (fit > 0) found.emplace_back(Rank(choices[i], fit), i);
  }
  std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
  if (found.size() > kMostCompletions) found.resize(kMostCompletions);
  for (const auto& [rank, index] : found) completion.choices.push_back(index);
  return completion;
}

}  // namespace xrpt
