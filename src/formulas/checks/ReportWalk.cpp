#include "formulas/checks/ReportWalk.h"

#include <algorithm>

#include "formulas/checks/HostChecks.h"
#include "formulas/checks/HostCodes.h"
#include "model/CardRegistry.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

std::size_t CountSteps(const XmlNode& root) {
  std::size_t count = 0;
  for (const XmlNode& child : root) count += child.Tag() == "page" ? child.Size() : 0;
  return std::max<std::size_t>(count, 1);
}

void WalkPage(const XmlNode& page, tagSDebugData& data, Inspector& inspector, WalkWatcher& watcher) {
  const bool isNamed = !page.Value("id").empty();
  for (const XmlNode& child : page) {
    if (watcher.StopAsked()) break;
    if (!isNamed) {
      watcher.Step();
    } else if (const CardClass* kind = PageCardKind(child.Tag())) {
      ++data.place.card;
      data.kindTextId = kind->textId;
      CheckCard(inspector, child, data);
    }
  }
  watcher.Step();
}

}  // namespace

void WalkReport(const XmlNode& root, Inspector& inspector, WalkWatcher& watcher) {
  tagSDebugData data(root);
  watcher.Begins(data, CountSteps(root));
  for (const XmlNode& child : root) {
    if (child.Tag() != "page") continue;
    if (watcher.StopAsked()) return;
    data.place = {data.place.page + 1};
    WalkPage(child, data, inspector, watcher);
  }
  if (!watcher.StopAsked()) CheckUnusedDeclarations(inspector, data);
}

void CheckCard(Inspector& inspector, const XmlNode& card, tagSDebugData& data) {
  const HostCheckRow* row = FindHostCheck(card.Tag());
  if (!row) return;
  std::string joined;
  AssignUtf8(data.ctrlId, card.Node("id").WholeText(joined));
  row->check(inspector, card, data, false);
}

void CheckUnusedDeclarations(const Inspector& inspector, tagSDebugData& data) {
  data.ctrlId.clear();
  data.place = {};
  data.kindTextId = 0;
  if (data.virtualDevices && !data.virtualDevices->AreAllIn(inspector.usedVirtualDevices)) {
    inspector.Raise(HostCode(L"REPORT_VIRTUAL_DEVICE_ERROR"), data);
  }
  if (data.goBackVariables && !data.goBackVariables->AreAllIn(inspector.usedGoBackVariables)) {
    inspector.Raise(HostCode(L"REPORT_GOBACK_VARIABLE_ERROR"), data);
  }
}

}  // namespace xrpt
