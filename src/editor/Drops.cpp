#include "editor/Drops.h"

#include <algorithm>

#include "canvas/InsertTools.h"
#include "canvas/UndoTexts.h"
#include "editor/ImageStore.h"
#include "editor/RVEditControlWnd.h"
#include "model/RVCardFormule.h"
#include "model/RVCardImage.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

constexpr double kMmPerPixel = 25.4 / 96.0;
constexpr double kWidestPicture = 80.0;  // millimetres, as it is dropped

// One name between brackets, as expressions have it.
bool IsVariable(const std::wstring& words) {
  return words.size() > 2 && words.front() == L'[' && words.find_first_of(L"]\n") == words.size() - 1;
}

// In its own proportions, as large as on the usual screen where that is not too much.
void TakePicture(RVCardControl& card, const std::wstring& name) {
  auto& image = static_cast<RVCardImage&>(card);
  image.AssignPicture(ToUtf8(name));
  const PicturePtr picture = image.GetPicture();
  if (!picture || picture->width <= 0 || picture->height <= 0) return;
  const double wide = std::min(picture->width * kMmPerPixel, kWidestPicture);
  image.width = wide;
  image.height = wide * picture->height / picture->width;
}

}  // namespace

bool DropText(RVEditControlWnd& frame, const std::wstring& words, Point at) {
  if (!IsVariable(words)) return frame.CurrentPage().InsertText(words, at);
  return frame.CurrentPage().InsertCardAt(tool::kFormule, at, {text::kInsert, 1}, [&](RVCardControl& card) {
    static_cast<RVCardFormule&>(card).value = words;
  });
}

std::wstring DropPicture(RVEditControlWnd& frame, const Path& file, Point at) {
  const AddedPicture added = AddPicture(file);
  if (added.name.empty()) return added.problem;
  frame.CurrentPage().InsertCardAt(tool::kImage, at, {text::kInsert, 1},
                                   [&](RVCardControl& card) { TakePicture(card, added.name); });
  return {};
}

}  // namespace xrpt
