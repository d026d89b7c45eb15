// What every card is: a rectangle on a page with an identity, a data field, two colours and flags; and the operations
// through which pages, history, clipboard and search treat all cards alike.
#pragma once

#include <bitset>
#include <cstdint>
#include <memory>
#include <string>

#include "model/FieldTable.h"
#include "model/NotCopied.h"
#include "platform/Color.h"
#include "platform/Host.h"

namespace xrpt {

class Graphics;
class RVCardControl;
class RVReportPage;
class TextFinder;
struct CardMatches;
struct tagDraw;

// The rows of all kinds of card.
using CardRow = FieldOf<RVCardControl>;
using CardTable = FieldTable<RVCardControl>;

// What the system knows of a kind of card, stated once by its class.
struct CardClass {
  const char* tag;  // its element; null for a kind that has none of its own
  int textId;       // its name for people
  CardTable table;  // its own rows; `base` leads to the kind it derives from
  const CardClass* base;
  std::unique_ptr<RVCardControl> (*make)(ModelServices& services);  // null for the plain card

  // A new card of the kind.
  std::unique_ptr<RVCardControl> Create(ModelServices& services = InstalledServices()) const { return make(services); }

  bool IsKindOf(const CardClass& other) const;
};

// The description of a kind that adds rows to those of its base.
template <class Card>
CardClass DeriveCard(const char* tag, int textId, const CardClass& base, std::span<const CardRow> rows) {
  return {tag, textId, {&base.table, rows}, &base, [](ModelServices& services) {
            return std::unique_ptr<RVCardControl>(new Card(services));
          }};
}

// Tells cards apart while the program runs, whatever ids a file gave them: two may share one or have none. A clone is
// the same card.
using CardKey = std::uint64_t;

class RVCardControl {
 public:
  using FieldRoot = RVCardControl;
  static constexpr int kFlagCount = 34;
  using Flags = std::bitset<kFlagCount>;

  // The services are the card's, and its copies', for life.
  explicit RVCardControl(ModelServices& services = InstalledServices());
  virtual ~RVCardControl() = default;

  static const CardClass& Class();
  virtual const CardClass& GetRuntimeClass() const { return Class(); }
  bool IsKindOf(const CardClass& kind) const { return GetRuntimeClass().IsKindOf(kind); }

  // Same kind, and all the fields that count are equal.
  bool operator==(const RVCardControl& other) const;
  bool operator!=(const RVCardControl& other) const { return !(*this == other); }
  // The fields that count, base's first; NaN differs from everything. A card of a kind that does not derive from this
  // one's is never equal.
  virtual bool isEqual(const RVCardControl& other) const;

  // Same kind and the same in every row, also in those that equality passes over, to the last bit: what the history
  // asks. Cards that read the same from a file may still differ here, by what a save rounds.
  bool HasSameRows(const RVCardControl& other) const;

  // The same card, or a copy of it, with the same in every row but those of its rectangle: all that moving and resizing
  // leave alone.
  bool DiffersInPlaceOnly(const RVCardControl& other) const;

  // Writes the card into the element that is open; with its own element when asked, else its values alone. True.
  virtual bool SaveTemplate(XmlWriter* node, bool makeOwnElement) const;
  // Writes a card that fills another one: with its own element and the other's rectangle.
  void SaveInside(const RVCardControl& container, XmlWriter* node) const;
  // Takes what the element holds. Missing values read as the rows say. True.
  virtual bool GetFromXml(const XmlNode& node);
  // A copy with the same id.
  virtual std::unique_ptr<RVCardControl> GetClone() const;

  // Called on a clone that takes its source's place on a page: takes over what a plain copy leaves behind.
  virtual void TakePlaceOf(const RVCardControl&) {}

  // Draws the card into its rectangle; a plain card has nothing to show.
  virtual void Draw(Graphics& graphics, const tagDraw& draw) const;
  virtual bool Resizable() const { return true; }
  // Whether it moves while the page is shown.
  virtual bool IsAnimated() const { return false; }

  // Takes the font of a style into the card; false when the kind has no font or the style is unknown.
  virtual bool GetStyleFromFile(const std::wstring& name);
  // Reads the card's own style again after style files changed.
  virtual bool UpdateStyleFromFile() { return true; }

  // Leaves exactly this bit set. A bit outside 0 to 33 is a programming error: the set is left empty and
  // std::out_of_range thrown.
  bool SetFlags(int bit);
  bool SetFlags(const Flags& set);
  const Flags& GetFlags() const { return flags; }

  // A fresh identity.
  void InitializeId();
  CardKey Key() const { return key_; }
  // The same for the card and the cards it holds, when it becomes a card of its own.
  virtual void RenewIds() { InitializeId(); }

  // --- Searching ---
  // The texts that are searched are those whose rows say so, of this card and of the cards inside it. What was found is
  // no part of the card: it is not copied, and does not make one card differ from another.
  // Looks through all texts, or adds the matches of one of them. False for an empty pattern.
  virtual bool CreateSearchInfo(const std::wstring& pattern, bool matchCase) const;
  virtual bool CreateSearchInfo(const std::wstring& text, const std::wstring& pattern, bool matchCase) const;
  bool CreateSearchInfo(const TextFinder& finder) const;
  // Whether there are matches to step through.
  bool HasSearchInfo() const { return search_.value != nullptr; }
  // Steps to the next match that was not replaced; false when none is left, and the next step is to the first again.
  virtual bool NextSearch() const;
  // Replaces one match (index -1: the current one) and moves the later matches of its text along. False when there is
  // no such match, or its text is another by now. The flag means nothing yet.
  virtual bool Replace(const std::wstring& pattern, const std::wstring& replacement, std::int32_t index, int flag = 0);
  // True when anything was replaced.
  virtual bool ReplaceAll(const std::wstring& pattern, const std::wstring& replacement, bool matchCase);
  virtual void ResetSearchInfo() const;
  // The matches, handed from a card to the copy that takes its place.
  struct DeleteMatches {
    void operator()(CardMatches* matches) const;
  };
  using SearchInfo = std::unique_ptr<CardMatches, DeleteMatches>;
  SearchInfo ReleaseSearchInfo() const { return std::move(search_.value); }
  void SetSearchInfo(SearchInfo matches) const { search_.value = std::move(matches); }

  ModelServices& Services() const { return *services_; }

  virtual void SetParent(RVReportPage* page) { parent = page; }
  // The page the card stands on. Asking a card that was never given one is a programming error and throws.
  RVReportPage* GetParent() const;

  double x = 0.0;  // millimetres from the page's left edge
  double y = 0.0;  // millimetres from its top edge
  double width = 10.0;
  double height = 10.0;
  std::wstring id;
  std::wstring field;  // the data the card is bound to; the meaning is the kind's
  Color color = kBlack;
  Color backcolor = kNoColor;

 protected:
  RVCardControl(const RVCardControl&) = default;
  RVCardControl& operator=(const RVCardControl&) = default;

  Flags flags = Flags().set(5);
  RVReportPage* parent = nullptr;

 private:
  ModelServices* services_;

  static const CardRow kRows[];
  bool HasBackColor() const { return backcolor != kNoColor; }
  static CardKey NextKey();
  bool EqualFlags(const RVCardControl& other) const { return flags == other.flags; }

  CardKey key_ = NextKey();
  mutable NotCopied<SearchInfo> search_;  // nothing in cards without a match
};

}  // namespace xrpt
