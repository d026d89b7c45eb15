// A container of alternatives: conditions, and for each the one inner card that then fills the container's rectangle.
// The editor shows one of them; the running report decides by the conditions.
#pragma once

#include <vector>

#include "model/ListTable.h"
#include "model/RVCardControl.h"

namespace xrpt {

class RVCardConditioned : public RVCardControl {
 public:
  using RVCardControl::RVCardControl;
  RVCardConditioned() = default;
  // Inner cards are cloned, never shared.
  RVCardConditioned(const RVCardConditioned& other);
  RVCardConditioned& operator=(const RVCardConditioned& other);

  static const CardClass& Class();
  const CardClass& GetRuntimeClass() const override { return Class(); }
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<RVCardConditioned>(*this); }
  void TakePlaceOf(const RVCardControl& source) override;

  void Draw(Graphics& graphics, const tagDraw& draw) const override;
  void SetParent(RVReportPage* page) override;
  void RenewIds() override;
  bool UpdateStyleFromFile() override;

  // Nothing is shown.
  void Initialize();
  // Lets go of all alternatives.
  void Clear();
  // Adds an alternative behind the others, without a condition, and shows it.
  void AddAlternative(std::unique_ptr<RVCardControl> card);
  // Removes one alternative; false for an index that names none.
  bool DeleteCondition(std::int32_t index);
  static const ListTable<RVCardControl>& Conditions();
  // The inner card the editor shows; null when there is none.
  const RVCardControl* Shown() const;
  bool IsAnimated() const override { return Shown() && Shown()->IsAnimated(); }

  // A file may hold more conditions than cards, or the reverse; each list keeps its own length.
  std::vector<std::unique_ptr<RVCardControl>> cards;
  std::vector<std::wstring> conditions;
  std::int32_t current = -1;  // the alternative shown in the editor, -1: none
  std::unique_ptr<RVCardControl> auxiliary;

 private:
  static std::span<const CardRow> Rows();
  void ReadControls(const XmlNode& node);
  void ReadControl(const XmlNode& control);
  void WriteControls(XmlWriter& out) const;
  bool EqualControls(const RVCardConditioned& other) const;
  bool SameControls(const RVCardConditioned& other) const;
  void TakeAlternatives(const RVCardConditioned& other);
};

}  // namespace xrpt
