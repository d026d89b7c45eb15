#include "canvas/UndoTexts.h"

#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {

std::wstring UndoText(const UndoName& name) {
  if (name.textId == 0) return {};
  const bool forOne = name.count == 1 && name.textId >= text::kMove && name.textId <= text::kChange;
  const std::wstring pattern = HostText(forOne ? name.textId + text::kOneCardOffset : name.textId);
  return FormatText(pattern, std::to_wstring(name.count));
}

}  // namespace xrpt
