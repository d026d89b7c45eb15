// What is asked when something that formulas and cards use is renamed or removed.
#pragma once

#include <cstddef>
#include <string>

class QWidget;

namespace xrpt {

// Whether the texts that use the old name shall use the new one; `uses` counts them.
bool AskToUpdateUses(const std::wstring& from, const std::wstring& to, std::size_t uses, QWidget* parent);

// Whether it shall go all the same; `places` says where it is used, a line each.
bool AskToRemoveUsed(const std::wstring& name, std::size_t uses, const std::wstring& places, QWidget* parent);

}  // namespace xrpt
