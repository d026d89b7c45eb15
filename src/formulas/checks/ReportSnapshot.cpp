#include "formulas/checks/ReportSnapshot.h"

#include <algorithm>

#include "formulas/checks/EditorInspection.h"
#include "model/RVCardImage.h"

namespace xrpt {
namespace {

TableSnapshot TakeTable(const XmlDocument& table, const TableSnapshot* before) {
  std::string text = table.Root().CreateXmlCode();
  if (before && before->text == text) return *before;
  return {std::move(text), std::make_shared<const XmlDocument>(table.Clone())};
}

std::shared_ptr<const RVCardControl> TakeBackground(const RVGlobalProperties& page, const PageSnapshot* before) {
  if (!page.ThereAreBackground()) return nullptr;
  if (before && before->background && before->background->HasSameRows(page.Background())) return before->background;
  return page.Background().GetClone();
}

PageSnapshot TakePage(const RVReportPage& page, const PageSnapshot* before) {
  return {page.cards.Share(before ? before->cards : SharedCards()), ShapeOf(page), !page.properties.id.empty(),
          TakeBackground(page.properties, before)};
}

bool HasSameCards(const SharedCards& a, const SharedCards& b) {
  if (a.Size() != b.Size()) return false;
  for (std::size_t i = 0; i < a.Size(); ++i) {
    if (a[i] != b[i]) return false;
  }
  return true;
}

bool IsSamePage(const PageSnapshot& a, const PageSnapshot& b) {
  return a.shape == b.shape && a.isNamed == b.isNamed && a.background == b.background && HasSameCards(a.cards, b.cards);
}

// As a save would write it: lists that hold something are switched on.
bool AreDeclarationsOn(const RVReport& report) {
  return report.virtualEnabled || report.virtualDevices.Root().Size() > 0 || report.goBackVariables.Root().Size() > 0;
}

}  // namespace

ReportSnapshot::ReportSnapshot(const RVReport& report, const ReportSnapshot* before)
    : name(report.name),
      file(name.empty() ? Path() : report.FilePath()),
      formulas(TakeTable(report.formules, before ? &before->formulas : nullptr)),
      hasDeclarations(AreDeclarationsOn(report)),
      virtualDevices(TakeTable(report.virtualDevices, before ? &before->virtualDevices : nullptr)),
      goBackVariables(TakeTable(report.goBackVariables, before ? &before->goBackVariables : nullptr)) {
  for (std::size_t i = 0; i < report.pages.size(); ++i) {
    pages.push_back(TakePage(*report.pages[i], before && i < before->pages.size() ? &before->pages[i] : nullptr));
  }
}

bool ReportSnapshot::IsSame(const ReportSnapshot& other) const {
  return name == other.name && file == other.file && formulas.document == other.formulas.document &&
         hasDeclarations == other.hasDeclarations && virtualDevices.document == other.virtualDevices.document &&
         goBackVariables.document == other.goBackVariables.document &&
         std::equal(pages.begin(), pages.end(), other.pages.begin(), other.pages.end(), IsSamePage);
}

}  // namespace xrpt
