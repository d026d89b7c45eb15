#include "formulas/checks/OpenReportCheck.h"

#include "formulas/checks/HostChecks.h"
#include "formulas/checks/ReportWalk.h"

namespace xrpt {
namespace {

enum Table { kFormulas, kDeclarations };

// As a save would write it: lists that hold something are switched on.
bool AreDeclarationsOn(const RVReport& report) {
  return report.virtualEnabled || report.virtualDevices.Root().Size() > 0 || report.goBackVariables.Root().Size() > 0;
}

std::string DeclarationsOf(const RVReport& report) {
  if (!AreDeclarationsOn(report)) return {};
  return report.virtualDevices.Root().CreateXmlCode() + report.goBackVariables.Root().CreateXmlCode();
}

std::string ElementText(const RVCardControl& card) {
  std::string text;
  XmlWriter out(text);
  card.SaveTemplate(&out, true);
  return text;
}

void Append(std::vector<Finding>& all, const std::vector<Finding>& more, CardPlace place) {
  for (const Finding& finding : more) {
    all.push_back(finding);
    all.back().place.page = place.page;
    all.back().place.card = place.card;
  }
}

}  // namespace

OpenReportCheck::OpenReportCheck(const Host& host, CheckChoice choice)
    : host_(host), choice_(std::move(choice)), inspector_(host, [this](const Finding& finding, const tagSDebugData&) {
        if (choice_.Has(*finding.code)) found_.push_back(finding);
      }) {}

void OpenReportCheck::Look(const RVReport& report) {
  LookAtTables(report);
  Entries former;
  std::swap(former, entries_);
  std::vector<PageState> formerPages;
  std::swap(formerPages, pages_);
  pages_.resize(report.pages.size());
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    if (i < formerPages.size()) pages_[i].cards = formerPages[i].cards;
    LookAtPage(*report.pages[i], pages_[i], former);
  }
  next_ = {1, 0};
  isConcluded_ = false;
}

void OpenReportCheck::LookAtTables(const RVReport& report) {
  std::string tables[] = {report.formules.Root().CreateXmlCode(), DeclarationsOf(report)};
  const bool formulasChanged = tables[kFormulas] != tables_[kFormulas];
  const bool declarationsChanged = tables[kDeclarations] != tables_[kDeclarations];
  if (!formulasChanged && !declarationsChanged) return;
  for (auto& [card, entry] : entries_) {
    const bool isTouched = declarationsChanged || !entry.facts.formulas.empty();
    if (entry.isOfHost && isTouched) entry.isChecked = false;
  }
  std::move(std::begin(tables), std::end(tables), std::begin(tables_));
  formulas_ = report.formules.Clone();
  formulaTable_ = ReadFormulas(formulas_);
  data_ = tagSDebugData();
  data_.formules = FormulaSource(formulas_.Root());
  if (!AreDeclarationsOn(report)) return;
  data_.virtualDevices.emplace(report.virtualDevices.Root(), "virtualDevice");
  data_.goBackVariables.emplace(report.goBackVariables.Root(), "goBackVariable");
}

void OpenReportCheck::LookAtPage(const RVReportPage& page, PageState& state, Entries& former) {
  state.cards = page.cards.Share(state.cards);
  state.shape = ShapeOf(page);
  state.isNamed = !page.properties.id.empty();
  state.background = InspectBackground(page, choice_);
  for (std::size_t i = 0; i < state.cards.Size(); ++i) {
    const RVCardControl* card = state.cards[i].get();
    CardEntry& entry = entries_[card];
    const auto known = former.find(card);
    if (known != former.end()) entry = std::move(known->second);
    if (entry.shape != state.shape || entry.onNamedPage != state.isNamed) entry.isChecked = false;
    entry.shape = state.shape;
    entry.onNamedPage = state.isNamed;
  }
}

bool OpenReportCheck::Work(Clock::time_point until) {
  while (static_cast<std::size_t>(next_.page) <= pages_.size()) {
    const PageState& page = pages_[static_cast<std::size_t>(next_.page - 1)];
    if (static_cast<std::size_t>(next_.card) == page.cards.Size()) {
      next_ = {next_.page + 1, 0};
      continue;
    }
    const RVCardControl* card = page.cards[static_cast<std::size_t>(next_.card)].get();
    if (!entries_[card].isChecked) {
      if (Clock::now() >= until) return false;
      CheckCardAt(page, next_);
    }
    ++next_.card;
  }
  if (!isConcluded_) Conclude();
  return true;
}

void OpenReportCheck::CheckCardAt(const PageState& page, CardPlace place) {
  const RVCardControl& card = *page.cards[static_cast<std::size_t>(place.card)];
  CardEntry& entry = entries_[&card];
  XmlDocument document;
  document.Parse(ElementText(card));
  entry.facts = FactsOf(card);
  entry.findings = InspectCard(card, document.Root(), page.shape, choice_);
  entry.isOfHost = FindHostCheck(document.Root().Tag()) != nullptr;
  if (page.isNamed) CheckWithHost(document.Root(), entry, place);
  entry.isChecked = true;
  ++cardsChecked_;
}

// What the host says of a card comes before what the editor says.
void OpenReportCheck::CheckWithHost(const XmlNode& element, CardEntry& entry, CardPlace place) {
  data_.place = place;
  data_.kindTextId = entry.facts.kindTextId;
  found_.clear();
  inspector_.usedVirtualDevices.clear();
  inspector_.usedGoBackVariables.clear();
  CheckCard(inspector_, element, data_);
  entry.virtualDevices = std::move(inspector_.usedVirtualDevices);
  entry.goBackVariables = std::move(inspector_.usedGoBackVariables);
  entry.findings.insert(entry.findings.begin(), found_.begin(), found_.end());
}

void OpenReportCheck::TakeUsed(const CardEntry& entry) {
  inspector_.usedVirtualDevices.insert(entry.virtualDevices.begin(), entry.virtualDevices.end());
  inspector_.usedGoBackVariables.insert(entry.goBackVariables.begin(), entry.goBackVariables.end());
}

void OpenReportCheck::Conclude() {
  ReportFacts facts{{}, formulaTable_};
  found_.clear();
  findings_.clear();
  inspector_.usedVirtualDevices.clear();
  inspector_.usedGoBackVariables.clear();
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    const int number = static_cast<int>(page) + 1;
    PageFacts& cards = facts.pages.emplace_back();
    Append(findings_, pages_[page].background, {number});
    for (std::size_t i = 0; i < pages_[page].cards.Size(); ++i) {
      const CardEntry& entry = entries_[pages_[page].cards[i].get()];
      cards.push_back(&entry.facts);
      Append(findings_, entry.findings, {number, static_cast<int>(i)});
      TakeUsed(entry);
    }
  }
  CheckUnusedDeclarations(inspector_, data_);
  Append(findings_, found_, {});
  const std::vector<Finding> rest = InspectFacts(facts, choice_);
  findings_.insert(findings_.end(), rest.begin(), rest.end());
  isConcluded_ = true;
}

void OpenReportCheck::Forget() {
  entries_.clear();
  inspector_.Forget();
}

}  // namespace xrpt
