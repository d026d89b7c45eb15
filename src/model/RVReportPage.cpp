#include "model/RVReportPage.h"

#include "model/CardRegistry.h"
#include "platform/Host.h"

namespace xrpt {

bool RVReportPage::SetTemplate(const XmlNode& page) {
  if (!page) return false;
  properties.DeleteBackground();
  cards.Clear();
  properties.ReadValues(page);
  XmlNode background;
  for (const XmlNode& element : page) {
    if (!background && element.Tag() == RVGlobalProperties::kBackgroundTag) background = element;
    std::unique_ptr<RVCardControl> card = NewPageCard(element.Tag());
    if (!card) continue;
    card->SetParent(this);
    card->GetFromXml(element);
    cards.PushBack(std::move(card));
  }
  properties.ReadBackground(background);
  return true;
}

void RVReportPage::SaveTemplate(XmlWriter& root) const {
  const XmlElement element(root, "page");
  if (!properties.SaveTemplate(&root)) {
    LogMessage(4, L"RVEditTemplateWnd::SaveTemplate(): could not save page node template!");
  }
  SaveCtrlsTemplate(root);
}

void RVReportPage::SaveCtrlsTemplate(XmlWriter& page) const {
  for (std::size_t i = 0; i < cards.Size(); ++i) cards[i].SaveTemplate(&page, true);
}

}  // namespace xrpt
