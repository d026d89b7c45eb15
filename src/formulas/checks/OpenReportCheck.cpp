#include "formulas/checks/OpenReportCheck.h"

#include "formulas/checks/EditorInspection.h"
#include "formulas/checks/HostChecks.h"
#include "formulas/checks/ReportWalk.h"
#include "platform/NamedFiles.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

std::string DeclarationsOf(const ReportSnapshot& report) {
  return report.hasDeclarations ? report.virtualDevices.text + report.goBackVariables.text : std::string();
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

void OpenReportCheck::Look(const ReportSnapshot& report) {
  LookAtTables(report);
  Entries former;
  std::swap(former, entries_);
  for (const PageSnapshot& page : report.pages) LookAtPage(page, former);
  report_ = &report;
  next_ = {1, 0};
  isConcluded_ = false;
}

void OpenReportCheck::LookAtTables(const ReportSnapshot& report) {
  std::string declarations = DeclarationsOf(report);
  const bool formulasChanged = !report_ || report.formulas.text != formulas_;
  const bool declarationsChanged = declarations != declarations_;
  if (!formulasChanged && !declarationsChanged) return;
  for (auto& [card, entry] : entries_) {
    const bool isTouched = declarationsChanged || !entry.facts.formulas.empty();
    if (entry.isOfHost && isTouched) entry.isChecked = false;
  }
  formulas_ = report.formulas.text;
  declarations_ = std::move(declarations);
  formulaTable_ = ReadFormulas(*report.formulas.document);
  data_ = tagSDebugData();
  formulasDocument_ = report.formulas.document;
  data_.formules = FormulaSource(formulasDocument_->Root());
  if (!report.hasDeclarations) return;
  data_.virtualDevices.emplace(report.virtualDevices.document->Root(), "virtualDevice");
  data_.goBackVariables.emplace(report.goBackVariables.document->Root(), "goBackVariable");
}

void OpenReportCheck::LookAtPage(const PageSnapshot& page, Entries& former) {
  for (std::size_t i = 0; i < page.cards.Size(); ++i) {
    const RVCardControl* card = page.cards[i].get();
    CardEntry& entry = entries_[card];
    const auto known = former.find(card);
    if (known != former.end()) entry = std::move(known->second);
    if (entry.shape != page.shape || entry.onNamedPage != page.isNamed) entry.isChecked = false;
    entry.shape = page.shape;
    entry.onNamedPage = page.isNamed;
  }
}

bool OpenReportCheck::Work(const std::function<bool()>& isEnough) {
  if (!report_) return true;
  while (static_cast<std::size_t>(next_.page) <= report_->pages.size()) {
    const PageSnapshot& page = report_->pages[static_cast<std::size_t>(next_.page - 1)];
    if (static_cast<std::size_t>(next_.card) == page.cards.Size()) {
      next_ = {next_.page + 1, 0};
      continue;
    }
    if (!entries_[page.cards[static_cast<std::size_t>(next_.card)].get()].isChecked) {
      if (isEnough && isEnough()) return false;
      CheckCardAt(page, next_);
    }
    ++next_.card;
  }
  if (!isConcluded_) Conclude();
  return true;
}

void OpenReportCheck::CheckCardAt(const PageSnapshot& page, CardPlace place) {
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
  int number = 0;
  for (const PageSnapshot& page : report_->pages) ConcludePage(page, ++number, facts);
  CheckUnusedDeclarations(inspector_, data_);
  Append(findings_, found_, {});
  const std::vector<Finding> rest = InspectFacts(facts, choice_);
  findings_.insert(findings_.end(), rest.begin(), rest.end());
  CheckName();
  isConcluded_ = true;
}

// By the names of the folder's files, which are listed once for each name.
void OpenReportCheck::CheckName() {
  const CheckCode& code = *FindEditorCode(kNameSharedCode);
  if (!choice_.Has(code)) return;
  if (report_->file != file_) {
    file_ = report_->file;
    nameShared_.reset();
    const std::optional<Path> other = OtherOfThatName();
    if (other) nameShared_ = Finding{.code = &code, .detail = FromUtf8(other->filename().string())};
  }
  if (nameShared_) findings_.push_back(*nameShared_);
}

// A report that has no file where it would be saved came from another one of its name.
std::optional<Path> OpenReportCheck::OtherOfThatName() const {
  if (file_.empty()) return std::nullopt;
  std::vector<Path> others;
  bool isThere = false;
  for (const Path& other : host_.files->List(file_.parent_path(), kReportEnding)) {
    if (other == file_) {
      isThere = true;
    } else if (NameOfFile(other, kReportEnding) == report_->name) {
      others.push_back(other);
    }
  }
  if (others.size() < (isThere ? 1u : 2u)) return std::nullopt;
  return others.back();
}

void OpenReportCheck::ConcludePage(const PageSnapshot& page, int number, ReportFacts& facts) {
  PageFacts& cards = facts.pages.emplace_back();
  if (page.background) Append(findings_, InspectBackground(*page.background, page.shape, choice_), {number});
  for (std::size_t i = 0; i < page.cards.Size(); ++i) {
    const CardEntry& entry = entries_[page.cards[i].get()];
    cards.push_back(&entry.facts);
    Append(findings_, entry.findings, {number, static_cast<int>(i)});
    TakeUsed(entry);
  }
}

void OpenReportCheck::Forget() {
  file_.clear();
  nameShared_.reset();
  entries_.clear();
  inspector_.Forget();
}

}  // namespace xrpt
