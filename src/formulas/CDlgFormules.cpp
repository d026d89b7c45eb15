#include "formulas/CDlgFormules.h"

#include <algorithm>

#include "formulas/FormulaTexts.h"
#include "platform/Host.h"
#include "platform/UniqueNames.h"

namespace xrpt {

CDlgFormules::CDlgFormules(const XmlDocument& formules, UseCounts usesInCards, FormulesPort& port)
    : port_(port), usesInCards_(std::move(usesInCards)) {
  InitializeFields(formules);
}

void CDlgFormules::InitializeFields(const XmlDocument& formules) {
  rows_ = ReadFormulas(formules);
  CountUses();
}

void CDlgFormules::CountUses() {
  usesInRows_.clear();
  for (const Formula& row : rows_) AddUses(usesInRows_, FormulasIn(row.text));
}

std::size_t CDlgFormules::UsesOfRow(std::size_t row) const {
  return UsesOf(usesInCards_, rows_[row].name) + UsesOf(usesInRows_, rows_[row].name);
}

void CDlgFormules::Select(std::vector<std::size_t> rows) {
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  std::erase_if(rows, [this](std::size_t row) { return row >= rows_.size(); });
  selection_ = std::move(rows);
}

CDlgFormules::Buttons CDlgFormules::UpdateButtons() const {
  const bool any = !selection_.empty();
  return {selection_.size() == 1, any, any};
}

bool CDlgFormules::OnXciAdd() {
  CDlgNewFormule dialog(rows_);
  if (!port_.EditFormule(dialog)) return false;
  rows_.push_back(dialog.GetFormule());
  CountUses();
  Select({rows_.size() - 1});
  return true;
}

bool CDlgFormules::OnXciModify() {
  if (selection_.size() != 1) return false;
  Formula& row = rows_[selection_.front()];
  CDlgNewFormule dialog(rows_, row.name);
  if (!port_.EditFormule(dialog) || dialog.GetFormule() == row) return false;
  const std::wstring former = row.name;
  row = dialog.GetFormule();
  CountUses();
  if (former != row.name) Rename(former, row.name);
  return true;
}

// The user decides whether what used the former name follows.
void CDlgFormules::Rename(const std::wstring& from, const std::wstring& to) {
  const std::size_t inCards = UsesOf(usesInCards_, from);
  const std::size_t uses = inCards + UsesOf(usesInRows_, from);
  if (uses == 0 || !port_.AskUpdateUses(from, to, uses)) return;
  for (Formula& row : rows_) row.text = RenameFormulaIn(row.text, from, to);
  CountUses();
  if (inCards == 0) return;
  renamings_.push_back({from, to});
  usesInCards_[to] += inCards;
  usesInCards_.erase(from);
}

// The row that moves up into the place of the last one removed is the next selection.
bool CDlgFormules::OnXciDelete() {
  if (selection_.empty()) return false;
  const std::size_t place = selection_.back() + 1 - selection_.size();
  for (auto row = selection_.rbegin(); row != selection_.rend(); ++row) {
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(*row));
  }
  CountUses();
  selection_.clear();
  if (!rows_.empty()) Select({std::min(place, rows_.size() - 1)});
  return true;
}

bool CDlgFormules::CopyToClipboard() const {
  if (selection_.empty()) return false;
  FormulaTable chosen;
  for (std::size_t row : selection_) chosen.push_back(rows_[row]);
  ClipboardContent content;
  content.text = FormulasDocument(kFormulesClipboardRoot, chosen).Text();
  return CurrentHost().clipboard->PutToClipboard(content);
}

// Texts from elsewhere may end with a zero byte.
bool CDlgFormules::PasteFromClipboard() {
  std::string text = CurrentHost().clipboard->GetFromClipboard(kClipboardLimit);
  while (!text.empty() && text.back() == '\0') text.pop_back();
  XmlDocument document;
  if (!document.Parse(std::move(text)) || document.Root().Tag() != kFormulesClipboardRoot) return false;
  UniqueNames names;
  for (const Formula& row : rows_) names.Add(row.name);
  const std::size_t before = rows_.size();
  for (Formula& formula : ReadFormulas(document)) {
    if (formula.name.empty() || formula.text.empty()) continue;
    rows_.push_back({names.Take(formula.name), std::move(formula.text)});
  }
  CountUses();
  return rows_.size() > before;
}

std::optional<XmlDocument> CDlgFormules::OnOK() {
  if (CheckBucles(rows_, -1) == 1) {
    port_.ShowMessage(text::kRefersToItself);
    return std::nullopt;
  }
  return GetXmlDocFromList();
}

}  // namespace xrpt
