// Which element makes which card, and where it may stand.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "model/RVCardControl.h"

namespace xrpt {

struct RegistryRow {
  const CardClass& (*kind)();
  bool onPage;
  bool inConditioned;
};

std::span<const RegistryRow> CardRegistry();

// The kind of card an element makes on a page, or inside a conditioned card; null for any other tag.
const CardClass* PageCardKind(std::string_view tag);
const CardClass* InnerCardKind(std::string_view tag);

// A new card for an element that stands on a page, or inside a conditioned card; null for any other tag, which the
// caller skips.
std::unique_ptr<RVCardControl> NewPageCard(std::string_view tag, ModelServices& services = InstalledServices());
std::unique_ptr<RVCardControl> NewInnerCard(std::string_view tag, ModelServices& services = InstalledServices());

}  // namespace xrpt
