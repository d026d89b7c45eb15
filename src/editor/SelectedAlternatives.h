// The alternatives of the one conditioned card that is selected: conditions, each with the card that it shows.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "model/RVCardControl.h"

namespace xrpt {

class RVCardConditioned;
class RVEditControlWnd;

class SelectedAlternatives {
 public:
  explicit SelectedAlternatives(RVEditControlWnd& frame) : frame_(frame) {}

  // False unless exactly one card is selected and it is a conditioned one.
  bool HasList() const { return Card() != nullptr; }
  std::size_t Size() const;
  std::wstring Condition(std::size_t index) const;
  // What a list calls the card of an alternative: its kind and content.
  std::wstring Caption(std::size_t index) const;
  // The one the page shows; -1: none.
  std::int32_t Shown() const;

  // The kinds of card that may stand in an alternative.
  static std::vector<const CardClass*> Kinds();

  // Each is one step.
  void SetCondition(std::size_t index, const std::wstring& condition);
  void Show(std::size_t index);
  // A new one behind the others, which is then shown.
  void Add(const CardClass& kind);
  void Remove(std::size_t index);
  bool Move(std::size_t from, std::size_t to);

 private:
  const RVCardConditioned* Card() const;
  template <class Do>
  void Change(int textId, const std::string& joins, const Do& change);

  RVEditControlWnd& frame_;
};

}  // namespace xrpt
