// Cards as the text other editors exchange: an XML document whose root is "controlClipboard", the cards as a template
// holds them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/RVReportPage.h"
#include "platform/Xml.h"

namespace xrpt {

std::string CardsAsText(const std::vector<const RVCardControl*>& cards);

// What the clipboard holds, parsed once for as long as it stays the same: menus ask often. Anything that is no text, no
// XML, has another root or is larger than the limit counts as holding nothing.
class ClipboardReader {
 public:
  static constexpr std::size_t kLimit = 8u << 20;  // bytes
  static constexpr std::size_t kMostCards = 20'000;

  // Whether so many cards with a text of so many bytes can be read again.
  static bool Takes(std::size_t cards, std::size_t bytes) { return cards <= kMostCards && bytes <= kLimit; }

  bool HoldsCards() const { return Document() != nullptr; }
  // What it holds when that is no cards: a text no longer than anybody pastes into a report, without blanks around it.
  static constexpr std::size_t kLongestText = 20'000;  // bytes
  std::wstring PlainText() const;
  // New cards for a page, with fresh ids throughout, in document order; unknown elements are skipped. False when the
  // clipboard holds no cards document, or one of more cards than anybody copies.
  bool Read(RVReportPage& page, std::vector<std::unique_ptr<RVCardControl>>& cards) const;

 private:
  const XmlDocument* Document() const;

  mutable std::string text_;
  mutable std::unique_ptr<XmlDocument> document_;
};

}  // namespace xrpt
