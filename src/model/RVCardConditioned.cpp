#include "model/RVCardConditioned.h"

#include "model/CardRegistry.h"
#include "model/Codecs.h"
#include "model/FieldTexts.h"
#include "model/ListRows.h"

namespace xrpt {
namespace {

using CardPointer = std::unique_ptr<RVCardControl>;

CardPointer CloneOf(const CardPointer& card) { return card ? card->GetClone() : nullptr; }

bool Equal(const CardPointer& left, const CardPointer& right) {
  return left && right ? *left == *right : left == right;
}

bool Same(const CardPointer& left, const CardPointer& right) {
  return left && right ? left->HasSameRows(*right) : left == right;
}

template <class Compare>
bool SameAll(const std::vector<CardPointer>& left, const std::vector<CardPointer>& right, const Compare& compare) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(), compare);
}

}  // namespace

const ListTable<RVCardControl>& RVCardConditioned::Conditions() {
  using Conditioned = RVCardConditioned;
  static constexpr ListOf<RVCardControl> kRows[] = {
      Holding(TextRole::Expression,
              List<Conditioned, codec::String, &Conditioned::conditions>(nullptr, "condition", nullptr)),
  };
  static constexpr ListTable<RVCardControl> kTable{"control", kRows};
  return kTable;
}

std::span<const CardRow> RVCardConditioned::Rows() {
  using Conditioned = RVCardConditioned;
  static constexpr CardRow kRows[] = {
      WithInner<Conditioned, &Conditioned::cards>(WithList<&Conditioned::Conditions>(
          ComparedBy<Conditioned, &Conditioned::EqualControls, &Conditioned::SameControls>(
              Irregular<Conditioned, &Conditioned::ReadControls, &Conditioned::WriteControls>()))),
      Field<Conditioned, codec::Integer, &Conditioned::current>(nullptr, nullptr, nullptr),
  };
  return kRows;
}

const CardClass& RVCardConditioned::Class() {
  static const CardClass kind =
      DeriveCard<RVCardConditioned>("conditioned", text::kConditionedCard, RVCardControl::Class(), Rows());
  return kind;
}

RVCardConditioned::RVCardConditioned(const RVCardConditioned& other) : RVCardControl(other) { TakeAlternatives(other); }

RVCardConditioned& RVCardConditioned::operator=(const RVCardConditioned& other) {
  if (this == &other) return *this;
  RVCardControl::operator=(other);
  Clear();
  TakeAlternatives(other);
  return *this;
}

void RVCardConditioned::TakeAlternatives(const RVCardConditioned& other) {
  conditions = other.conditions;
  cards.reserve(other.cards.size());
  for (const CardPointer& card : other.cards) cards.push_back(CloneOf(card));
  current = other.current;
  auxiliary = CloneOf(other.auxiliary);
}

bool RVCardConditioned::EqualControls(const RVCardConditioned& other) const {
  return conditions == other.conditions && Equal(auxiliary, other.auxiliary) && SameAll(cards, other.cards, Equal);
}

bool RVCardConditioned::SameControls(const RVCardConditioned& other) const {
  return conditions == other.conditions && Same(auxiliary, other.auxiliary) && SameAll(cards, other.cards, Same);
}

void RVCardConditioned::TakePlaceOf(const RVCardControl& source) {
  const auto& former = static_cast<const RVCardConditioned&>(source);
  for (std::size_t i = 0; i < cards.size(); ++i) {
    if (cards[i] && former.cards[i]) cards[i]->TakePlaceOf(*former.cards[i]);
  }
}

// The cards inside are cards of their own too.
void RVCardConditioned::RenewIds() {
  RVCardControl::RenewIds();
  for (const CardPointer& card : cards) {
    if (card) card->RenewIds();
  }
}

void RVCardConditioned::SetParent(RVReportPage* page) {
  RVCardControl::SetParent(page);
  for (const CardPointer& card : cards) card->SetParent(page);
}

bool RVCardConditioned::UpdateStyleFromFile() {
  for (const CardPointer& card : cards) card->UpdateStyleFromFile();
  return true;
}

void RVCardConditioned::Initialize() {
  current = -1;
  auxiliary.reset();
}

void RVCardConditioned::Clear() {
  cards.clear();
  conditions.clear();
  Initialize();
}

void RVCardConditioned::AddAlternative(CardPointer card) {
  card->SetParent(parent);
  cards.push_back(std::move(card));
  conditions.resize(cards.size());
  current = static_cast<std::int32_t>(cards.size()) - 1;
}

bool RVCardConditioned::DeleteCondition(std::int32_t index) {
  const auto count = static_cast<std::int32_t>(cards.size());
  if (index < 0 || index >= count) return false;
  cards.erase(cards.begin() + index);
  if (static_cast<std::size_t>(index) < conditions.size()) conditions.erase(conditions.begin() + index);
  current = std::min(index, count - 2);
  return true;
}

const RVCardControl* RVCardConditioned::Shown() const {
  const bool valid = current >= 0 && static_cast<std::size_t>(current) < cards.size();
  return valid ? cards[static_cast<std::size_t>(current)].get() : nullptr;
}

void RVCardConditioned::ReadControls(const XmlNode& node) {
  for (const XmlNode& child : node) {
    if (child.Tag() == "control") ReadControl(child);
  }
  if (!cards.empty()) current = 0;
}

void RVCardConditioned::ReadControl(const XmlNode& control) {
  for (const XmlNode& child : control) {
    if (child.Tag() == "condition") {
      conditions.push_back(child.Value());
    } else if (CardPointer card = NewInnerCard(child.Tag(), Services())) {
      card->SetParent(parent);
      card->GetFromXml(child);
      cards.push_back(std::move(card));
    }
  }
}

// As many alternatives as there are cards. Whatever rectangle an inner card has, it is written with the container's.
void RVCardConditioned::WriteControls(XmlWriter& out) const {
  for (std::size_t i = 0; i < cards.size(); ++i) {
    const XmlElement control(out, "control");
    out.Value("condition", i < conditions.size() ? conditions[i] : std::wstring());
    cards[i]->SaveInside(*this, &out);
  }
}

}  // namespace xrpt
