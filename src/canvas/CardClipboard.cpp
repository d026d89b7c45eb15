#include "canvas/CardClipboard.h"

#include "model/CardRegistry.h"
#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr std::string_view kRoot = "controlClipboard";

}  // namespace

std::string CardsAsText(const std::vector<const RVCardControl*>& cards) {
  std::string text;
  XmlWriter out(text);
  out.Declaration();
  out.Start(kRoot);
  for (const RVCardControl* card : cards) card->SaveTemplate(&out, true);
  out.End(kRoot);
  return text;
}

const XmlDocument* ClipboardReader::Document() const {
  std::string now = CurrentHost().clipboard->GetFromClipboard(kLimit);
  if (now != text_) {
    text_ = std::move(now);
    document_ = std::make_unique<XmlDocument>();
    if (!document_->Parse(text_) || document_->Root().Tag() != kRoot) document_.reset();
  }
  return document_.get();
}

// As of the last look for cards: asking the clipboard may take its time.
std::wstring ClipboardReader::PlainText() const {
  if (document_ || text_.size() > kLongestText) return {};
  std::wstring words = FromUtf8(text_);
  std::erase(words, L'\r');
  const auto first = words.find_first_not_of(L" \t\n");
  if (first == std::wstring::npos) return {};
  return words.substr(first, words.find_last_not_of(L" \t\n") + 1 - first);
}

bool ClipboardReader::Read(RVReportPage& page, std::vector<std::unique_ptr<RVCardControl>>& cards) const {
  const XmlDocument* document = Document();
  if (!document) return false;
  for (const XmlNode& element : document->Root()) {
    std::unique_ptr<RVCardControl> card = NewPageCard(element.Tag());
    if (!card) continue;
    if (cards.size() == kMostCards) return false;
    card->SetParent(&page);
    card->GetFromXml(element);
    card->RenewIds();
    cards.push_back(std::move(card));
  }
  return true;
}

}  // namespace xrpt
