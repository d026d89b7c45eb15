// Formulas that refer to each other in a circle.
#pragma once

#include <span>
#include <string>

namespace xrpt {

// Whether the formula of that place (from 0) takes part in a circle or leads into one. Of two formulas with one name
// the first counts; a name without a text leads nowhere.
bool LeadsIntoCircle(std::span<const std::wstring> names, std::span<const std::wstring> texts, std::size_t place);
// Whether any formula does.
bool HasCircle(std::span<const std::wstring> names, std::span<const std::wstring> texts);

}  // namespace xrpt
