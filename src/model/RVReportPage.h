// One page of a report as plain data: its properties and its cards. A page window edits it; the loader, the command
// line and the tests need no window.
#pragma once

#include "model/CardList.h"
#include "model/RVGlobalProperties.h"

namespace xrpt {

// A reference to a text style that nobody knows, which its card no longer has.
struct LostStyle {
  CardKey card;
  std::wstring id;
};
using LostStyles = std::vector<LostStyle>;

class RVReportPage {
 public:
  explicit RVReportPage(ModelServices& services = InstalledServices()) : properties(services), services_(services) {}
  RVReportPage(const RVReportPage&) = delete;  // cards point back to their page
  RVReportPage& operator=(const RVReportPage&) = delete;

  // Rebuilds the page from a "page" element; elements it does not know are skipped. False without an element.
  bool SetTemplate(const XmlNode& page) { return Read(page, false); }
  // The same for a document that nobody reads again: each card's element is taken out once the card is made, so that
  // the next cards are made in its memory and a large report costs little more than its document.
  bool TakeTemplate(const XmlNode& page) { return Read(page, true); }
  // The same in pieces, for whoever comes by the elements one after another: an emptied page, each element that may be
  // a card's (false for one that is none's), and the page's element with what no card took.
  void BeginReading();
  bool ReadCard(const XmlNode& element);
  void EndReading(const XmlNode& page);
  // The same page again, with identities of its own throughout.
  std::unique_ptr<RVReportPage> Duplicate() const;
  // Appends a "page" element to the root that is open.
  void SaveTemplate(XmlWriter& root) const;
  // Appends every card, front to back, to the "page" element that is open.
  void SaveCtrlsTemplate(XmlWriter& page) const;

  ModelServices& Services() const { return services_; }

  // What its cards lost when they were read, in the order of their keys; null when nothing, and once the file does not
  // have it either.
  const std::shared_ptr<const LostStyles>& StylesLost() const { return lostStyles_; }
  void LoseStyle(LostStyle lost);
  void ForgetLostStyles() { lostStyles_.reset(); }

  RVGlobalProperties properties;
  CardList cards;
  double fontFactor = 1.0;  // font sizes are multiplied by it

 private:
  bool Read(XmlNode page, bool takes);

  ModelServices& services_;
  std::shared_ptr<const LostStyles> lostStyles_;
};

}  // namespace xrpt
