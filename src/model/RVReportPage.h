// One page of a report as plain data: its properties and its cards. A page window edits it; the loader, the command
// line and the tests need no window.
#pragma once

#include "model/CardList.h"
#include "model/RVGlobalProperties.h"

namespace xrpt {

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
  // The same page again, with identities of its own throughout.
  std::unique_ptr<RVReportPage> Duplicate() const;
  // Appends a "page" element to the root that is open.
  void SaveTemplate(XmlWriter& root) const;
  // Appends every card, front to back, to the "page" element that is open.
  void SaveCtrlsTemplate(XmlWriter& page) const;

  ModelServices& Services() const { return services_; }

  RVGlobalProperties properties;
  CardList cards;
  double fontFactor = 1.0;  // font sizes are multiplied by it
  int lostStyles = 0;       // references of its cards to text styles that nobody knows, dropped when they were read

 private:
  bool Read(XmlNode page, bool takes);
  bool ReadCard(const XmlNode& element);

  ModelServices& services_;
};

}  // namespace xrpt
