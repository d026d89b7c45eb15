#include "host/expressions/Formulas.h"

#include "host/expressions/ExpressionTexts.h"
#include "host/expressions/NameMap.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

// Follows names depth first, on a path of its own instead of by recursion.
class Linker {
 public:
  Linker(FormulaTexts& formulas, Linked& linked) : formulas_(formulas), linked_(linked) {}

  void Run(std::wstring_view text) {
    Enter(std::wstring(text));
    while (!path_.empty()) Advance();
  }

 private:
  enum class State { OnPath, Done };
  struct Step {
    std::size_t unit;
    std::size_t next;  // of its names
  };

  void Enter(std::wstring text);
  void Advance();
  std::size_t Follow(std::wstring_view name);
  std::size_t FollowNew(std::wstring_view name);
  void Fail(int text, std::wstring_view argument);

  FormulaTexts& formulas_;
  Linked& linked_;
  std::vector<Step> path_;
  std::vector<State> states_;
  NameMap<std::size_t> known_;
  std::size_t length_ = 0;
};

// Blames the name of the expression itself that led there.
void Linker::Fail(int text, std::wstring_view argument) {
  if (linked_.error.text != 0) return;
  const Step& start = path_.front();
  const Reference& name = linked_.units[start.unit]->program.names[start.next - 1];
  linked_.error = {text, std::wstring(argument), name.position + 1};
}

void Linker::Enter(std::wstring text) {
  auto unit = std::make_unique<Unit>();
  unit->text = std::move(text);
  unit->program = Compile(unit->text);
  length_ += unit->text.size();
  path_.push_back({linked_.units.size(), 0});
  linked_.units.push_back(std::move(unit));
  states_.push_back(State::OnPath);
}

void Linker::Advance() {
  const std::size_t current = path_.back().unit;
  Unit& unit = *linked_.units[current];
  if (path_.back().next == unit.program.names.size()) {
    states_[current] = State::Done;
    linked_.order.push_back(current);
    path_.pop_back();
    return;
  }
  const std::wstring_view name = unit.program.names[path_.back().next++].text;
  unit.names.push_back(Follow(name));
}

std::size_t Linker::Follow(std::wstring_view name) {
  const std::size_t* known = known_.Find(name);
  if (!known) return FollowNew(name);
  if (*known != Unit::kUndefined && states_[*known] == State::OnPath) Fail(text::kFormulaInCircle, name);
  return *known;
}

std::size_t Linker::FollowNew(std::wstring_view name) {
  std::optional<std::wstring> text = formulas_.Text(name);
  const std::size_t unit = text ? linked_.units.size() : Unit::kUndefined;
  known_.Add(name, unit);
  if (!text) return unit;
  if (length_ + text->size() > Linked::kLongest) {
    Fail(text::kFormulasTooLong, std::to_wstring(Linked::kLongest));
    text = L"0";
  }
  const std::wstring own(name);
  Enter(std::move(*text));
  if (linked_.units.back()->program.error.text != 0) Fail(text::kFormulaNotAnalysed, own);
  return unit;
}

}  // namespace

// The first few names are looked for one by one: most expressions use no more, and a report has many formulas.
std::optional<std::wstring> FormulaTexts::Text(std::wstring_view name) {
  constexpr int kFew = 4;
  if (++asked_ <= kFew) return SearchText(name);
  Read();
  const auto at = texts_.find(std::wstring(name));
  if (at == texts_.end()) return std::nullopt;
  return at->second.Value();
}

std::optional<std::wstring> FormulaTexts::SearchText(std::wstring_view name) const {
  if (!formules_) return std::nullopt;
  const std::string wanted = ToUtf8(name);
  std::string joined;
  for (const XmlNode& formula : formules_->Root()) {
    if (formula.Tag() == "formule" && formula.Node("name").WholeText(joined) == wanted) {
      return formula.Value("text");
    }
  }
  return std::nullopt;
}

void FormulaTexts::Read() {
  if (isRead_ || !formules_) return;
  for (const XmlNode& formula : formules_->Root()) {
    if (formula.Tag() == "formule") texts_.emplace(formula.Value("name"), formula.Node("text"));
  }
  isRead_ = true;
}

Linked Link(std::wstring_view text, FormulaTexts& formulas) {
  Linked linked;
  Linker(formulas, linked).Run(text);
  return linked;
}

}  // namespace xrpt
