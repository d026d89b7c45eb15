#include "model/RVReportPage.h"

#include "model/CardRegistry.h"

namespace xrpt {

bool RVReportPage::Read(XmlNode page, bool takes) {
  if (!page) return false;
  BeginReading();
  for (auto next = page.begin(); next != page.end();) {
    const XmlNode element = *next++;
    if (ReadCard(element) && takes) page.Remove(element);
  }
  EndReading(page);
  return true;
}

void RVReportPage::BeginReading() {
  properties.DeleteBackground();
  cards.Clear();
  ForgetLostStyles();
}

// The properties come last, because they are looked for among all that is left of the page.
void RVReportPage::EndReading(const XmlNode& page) { properties.GetFromXml(page); }

bool RVReportPage::ReadCard(const XmlNode& element) {
  std::unique_ptr<RVCardControl> card = NewPageCard(element.Tag(), services_);
  if (!card) return false;
  card->SetParent(this);
  card->GetFromXml(element);
  cards.PushBack(std::move(card));
  return true;
}

// Whoever took note of what was lost so far keeps that.
void RVReportPage::LoseStyle(LostStyle lost) {
  auto all = lostStyles_ && lostStyles_.use_count() > 1 ? std::make_shared<LostStyles>(*lostStyles_)
                                                        : std::const_pointer_cast<LostStyles>(lostStyles_);
  if (!all) all = std::make_shared<LostStyles>();
  all->push_back(std::move(lost));
  lostStyles_ = std::move(all);
}

// A page that still bears its identity for a name gets the new one for a name, too.
std::unique_ptr<RVReportPage> RVReportPage::Duplicate() const {
  auto copy = std::make_unique<RVReportPage>(services_);
  const std::wstring freshId = copy->properties.id;
  copy->properties = properties;
  copy->properties.id = freshId;
  if (properties.name == properties.id) copy->properties.name = freshId;
  copy->fontFactor = fontFactor;
  for (std::size_t i = 0; i < cards.Size(); ++i) {
    std::unique_ptr<RVCardControl> card = cards[i].GetClone();
    card->TakePlaceOf(cards[i]);
    card->SetParent(copy.get());
    card->RenewIds();
    copy->cards.PushBack(std::move(card));
  }
  return copy;
}

void RVReportPage::SaveTemplate(XmlWriter& root) const {
  const XmlElement element(root, "page");
  if (!properties.SaveTemplate(&root)) {
    services_.logger->Log(4, L"RVEditTemplateWnd::SaveTemplate(): could not save page node template!");
  }
  SaveCtrlsTemplate(root);
}

void RVReportPage::SaveCtrlsTemplate(XmlWriter& page) const {
  for (std::size_t i = 0; i < cards.Size(); ++i) cards[i].SaveTemplate(&page, true);
}

}  // namespace xrpt
