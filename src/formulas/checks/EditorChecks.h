// The checks of the editor and the command line alone: a report that they find fault with runs all the same. A row a
// check; their findings never reach the host's collector.
#pragma once

#include <span>

#include "formulas/FormulaTable.h"
#include "formulas/checks/CardFacts.h"
#include "formulas/checks/Finding.h"
#include "model/RVReportPage.h"
#include "platform/Host.h"
#include "platform/Xml.h"

namespace xrpt {

// The page under a card, as far as the card's own checks look at it.
struct PageShape {
  SizeD size;              // millimetres
  double fontScale = 1.0;  // from a font's points to those of the page
  // References of its cards to styles that nobody knew when they were read; null for none.
  std::shared_ptr<const LostStyles> lostStyles = nullptr;
  bool operator==(const PageShape&) const = default;
};

// A card, a card inside a conditioned one, or a page's background picture.
struct CardView {
  const RVCardControl& card;
  RectD area;       // millimetres; a card inside another has that one's
  XmlNode element;  // as the file has it, or as it would be written
  const PageShape& page;
  bool isInner = false;
};

// A page's cards, front to back, and the report's formulas.
using PageFacts = std::vector<const CardFacts*>;
struct ReportFacts {
  std::vector<PageFacts> pages;
  FormulaTable formulas;
};

// What one check has to say. Checks of cards leave the place to their caller.
struct Note {
  CardPlace place = {};
  std::optional<std::wstring> detail = std::nullopt;  // fills the "%s" of the code's text
  Remedy remedy = {};
};

// Which cards a check looks at besides those of pages.
enum class CardScope { PageCards, InnerToo, InnerAndBackgrounds };

struct EditorCheck {
  CheckCode code;
  CardScope scope = CardScope::PageCards;
  std::optional<Note> (*card)(const CardView& view) = nullptr;
  std::vector<Note> (*report)(const ReportFacts& report) = nullptr;
  // The text that says why this host cannot tell; 0 when it can. Null: every host can.
  int (*unavailable)(const Host& host) = nullptr;
};

// A check with neither function is made by whoever goes through a folder.
std::span<const EditorCheck> EditorChecks();
inline constexpr std::wstring_view kNameSharedCode = L"REPORT_NAME_SHARED";
inline constexpr std::wstring_view kUnreadableCode = L"REPORT_UNREADABLE";
const CheckCode* FindEditorCode(std::wstring_view name);

// Each of a card.
std::optional<Note> OutsidePage(const CardView& view);
std::optional<Note> TextCutOff(const CardView& view);
std::optional<Note> CoarsePicture(const CardView& view);
std::optional<Note> UnknownStyle(const CardView& view);
std::optional<Note> WithoutId(const CardView& view);
// Each of a whole report.
std::vector<Note> SharedIds(const ReportFacts& report);
std::vector<Note> MissingFaces(const ReportFacts& report);
std::vector<Note> UnusedFormulas(const ReportFacts& report);
std::vector<Note> UnknownNames(const ReportFacts& report);
std::vector<Note> HiddenCards(const ReportFacts& report);

}  // namespace xrpt
