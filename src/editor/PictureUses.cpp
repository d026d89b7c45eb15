#include "editor/PictureUses.h"

#include <string_view>

#include "editor/SelectedFields.h"
#include "model/RVCardConditioned.h"
#include "model/RVCardImage.h"
#include "model/RVReport.h"
#include "platform/SystemNames.h"

namespace xrpt {
namespace {

constexpr std::string_view kImageId = "imageId";

void AddUses(const RVCardControl& card, const PictureUse& use, PictureUses& uses) {
  ForEachField(card.GetRuntimeClass().table, [&](const CardRow& row) {
    if (row.panel.editor != FieldEditor::Picture) return;
    if (const std::wstring name = row.text(card); !name.empty()) uses[name].push_back(use);
  });
  const auto* container = dynamic_cast<const RVCardConditioned*>(&card);
  if (!container) return;
  for (const auto& inner : container->cards) AddUses(*inner, use, uses);
}

// Without recursion: the file may be anybody's.
void AddNamed(const XmlNode& root, std::set<std::wstring>& ids) {
  std::vector<XmlNode> waiting = {root};
  while (!waiting.empty()) {
    const XmlNode node = waiting.back();
    waiting.pop_back();
    if (node.Tag() == kImageId) ids.insert(node.Value());
    for (const XmlNode& child : node) waiting.push_back(child);
  }
}

}  // namespace

PictureUses UsesOfPictures(const RVReport& report) {
  PictureUses uses;
  for (std::size_t number = 0; number < report.pages.size(); ++number) {
    const RVReportPage& page = *report.pages[number];
    if (const std::wstring name = page.properties.Background().PictureName(); !name.empty())
      uses[name].push_back({number, {}, {}});
    for (std::size_t i = 0; i < page.cards.Size(); ++i)
      AddUses(page.cards[i], {number, page.cards[i].id, CardCaption(page.cards[i])}, uses);
  }
  return uses;
}

NamedPictures PicturesOfReports() {
  const Host& host = CurrentHost();
  NamedPictures named;
  for (const Path& file : host.files->List(host.setup->CfgPath(), kReportEnding)) {
    XmlDocument document;
    if (document.Load(file)) {
      AddNamed(document.Root(), named.ids);
    } else {
      named.unreadable.push_back(file);
    }
  }
  return named;
}

}  // namespace xrpt
