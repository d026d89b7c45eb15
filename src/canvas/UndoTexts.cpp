#include "canvas/UndoTexts.h"

#include <cwctype>

#include "platform/Host.h"
#include "platform/Text.h"

namespace xrpt {

namespace {

// A label inside a sentence: "Change font size". One-letter labels stay as they are.
std::wstring Inside(std::wstring label) {
  if (label.size() > 1 && std::iswlower(static_cast<wint_t>(label[1]))) {
    label[0] = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(label[0])));
  }
  return label;
}

bool HasTextForOne(int textId) {
  return (textId >= text::kMove && textId <= text::kChange) || textId == text::kReplace ||
         (textId >= text::kCopyCards && textId <= text::kRestack) || textId == text::kBringCardsBack;
}

}  // namespace

std::wstring UndoText(const UndoName& name) {
  if (name.textId == 0) return {};
  if (name.fieldTextId != 0) return FormatText(HostText(name.textId), Inside(HostText(name.fieldTextId)));
  const bool forOne = name.count == 1 && HasTextForOne(name.textId);
  const std::wstring pattern = HostText(forOne ? name.textId + text::kOneCardOffset : name.textId);
  return FormatText(pattern, std::to_wstring(name.count));
}

}  // namespace xrpt
