// The property panels without their looks: which panel shows which kind of card, what the panels offer in their
// choosers, and how large the bar is. The fields of a panel are the rows of the kind it shows (editor/SelectedFields);
// a window draws any of them from those.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "editor/DatabaseFields.h"
#include "model/RVCardControl.h"

namespace xrpt {

class RVCardReportGraph;
class RVGlobalProperties;

struct PropertyPanelRow {
  int slot;
  const CardClass& (*kind)();  // null: the page itself
  const char* className;       // "RVCardDateProperties"
  const wchar_t* windowName;   // "DateProperties"
  int childId;
};

// In the order in which a selected card is tried: a kind stands before the kind it derives from. The page comes last.
std::span<const PropertyPanelRow> PropertyPanels();

// The bar's sizes, docked and floating.
struct PropertyBarSizes {
  int horzCX = 280;
  int horzCY = 600;
  int floatCX = 280;
  int floatCY = 600;
  bool operator==(const PropertyBarSizes&) const = default;
};

class CProperties {
 public:
  static constexpr int kPageSlot = 0;
  static constexpr int kSlotCount = 9;
  static constexpr int kBarId = 250;

  explicit CProperties(int childId = kBarId);
  CProperties(const CProperties&) = delete;
  CProperties& operator=(const CProperties&) = delete;

  // Shows the panel of a card, or of the page when there is none. A card of a kind without a panel leaves the panels as
  // they are. `flag` is handed to the panel with the card.
  void SetControl(const RVCardControl* card, const RVGlobalProperties* page, bool flag = false);
  int ShownSlot() const { return shown_->slot; }
  const PropertyPanelRow& Shown() const { return *shown_; }
  // What the shown panel is about: one of them is null. Good until the card or page goes.
  const RVCardControl* Card() const { return card_; }
  const RVGlobalProperties* Page() const { return page_; }
  bool Flag() const { return flag_; }

  // The card changed on the page: its panel is read again. False when another card's panel is shown.
  bool InvalidatePropertiesCtrl(const RVCardControl* card);
  void StylesModified() { ++serial_; }
  void TextRemplaced() { ++serial_; }
  void RecalculateBackground() { ++serial_; }
  void RecalculateFormule() { ++serial_; }
  void OnManagerImageModified() { ++serial_; }
  // Counts what may have changed the panels' content: another number, read them again.
  std::uint64_t Serial() const { return serial_; }

  // What the panels' choosers offer. Documents are copied.
  void SetDatabaseFields(const XmlDocument& fields);
  void SetFontList(std::vector<std::wstring> faces);
  void SetFormules(const XmlDocument& formules);
  void SetVirtualDevices(const XmlDocument& devices);
  void SetGoBackVariables(const XmlDocument& variables);
  const std::vector<NamedValue>& DatabaseFields() const { return databaseFields_; }
  const std::vector<std::wstring>& FontList() const { return faces_; }
  const XmlDocument& Formules() const { return formules_; }
  const XmlDocument& VirtualDevices() const { return virtualDevices_; }
  const XmlDocument& GoBackVariables() const { return goBackVariables_; }
  void SetImagesMode(int mode) { imagesMode_ = mode; }
  int ImagesMode() const { return imagesMode_; }

  // Cards of the page that move: the bar hears of them from the page.
  void OnControlAnimationStart() { ++moving_; }
  void OnControlAnimationStop() { moving_ -= moving_ > 0 ? 1 : 0; }
  int MovingCards() const { return moving_; }

  // The sizes, in the profile's section "<section>-SCBar-<child id>".
  void LoadState(const std::wstring& section);
  void SaveState(const std::wstring& section) const;
  PropertyBarSizes sizes;

 private:
  std::wstring SectionOf(const std::wstring& section) const;

  int childId_;
  const PropertyPanelRow* shown_;
  const RVCardControl* card_ = nullptr;
  const RVGlobalProperties* page_ = nullptr;
  bool flag_ = false;
  std::uint64_t serial_ = 0;
  int moving_ = 0;
  int imagesMode_ = 0;
  std::vector<NamedValue> databaseFields_;
  std::vector<std::wstring> faces_;
  XmlDocument formules_;
  XmlDocument virtualDevices_;
  XmlDocument goBackVariables_;
};

// --- Rules of single panels ---

// What may stand in a threshold's box: of at most 256 characters the digits, the first point, and a minus in front.
std::wstring CheckValidValue(std::wstring_view typed);

// The periods a graph offers, by the number behind each item: seconds, or one of the two special ones.
std::span<const Word> PeriodItems();
// What picking an item writes: "300", "DEFAULT", "FILE"; "AUTO" for a number that no item has, too.
std::wstring PeriodText(int item);

// Controls of the graph's panel that hang on its series: one is for pies, the other for all else.
inline constexpr int kPieControl = 1374;
inline constexpr int kAxisControl = 1382;
bool IsControlEnabled(const RVCardReportGraph& graph, int control);

}  // namespace xrpt
