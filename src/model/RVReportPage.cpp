#include "model/RVReportPage.h"

#include "model/CardRegistry.h"
#include "platform/Host.h"

namespace xrpt {

// The properties come last, because they are looked for among all that is left of the page.
bool RVReportPage::Read(XmlNode page, bool takes) {
  if (!page) return false;
  properties.DeleteBackground();
  cards.Clear();
  lostStyles = 0;
  for (auto next = page.begin(); next != page.end();) {
    const XmlNode element = *next++;
    if (ReadCard(element) && takes) page.Remove(element);
  }
  properties.GetFromXml(page);
  return true;
}

bool RVReportPage::ReadCard(const XmlNode& element) {
  std::unique_ptr<RVCardControl> card = NewPageCard(element.Tag());
  if (!card) return false;
  card->SetParent(this);
  card->GetFromXml(element);
  cards.PushBack(std::move(card));
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
