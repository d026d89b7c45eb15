// The plant's variables to choose one from, found by the ids and names of devices and variables.
#pragma once

#include <optional>

#include "desktop/dialogs/NameChooser.h"

namespace xrpt {

class VariableChooser final : public NameChooser {
 public:
  // `current` is chosen to begin with.
  VariableChooser(const std::wstring& current, QWidget* parent);

  // "DEVICE.VARIABLE"; nothing when cancelled.
  static std::optional<std::wstring> Choose(const std::wstring& current, QWidget* parent);
};

}  // namespace xrpt
