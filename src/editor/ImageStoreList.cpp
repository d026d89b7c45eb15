#include "editor/ImageStoreList.h"

#include <algorithm>
#include <utility>

#include "editor/EditorTexts.h"
#include "editor/ImageStore.h"
#include "platform/FileTexts.h"
#include "platform/Host.h"
#include "platform/PictureName.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

std::wstring FolderOf(const std::wstring& name) {
  const std::size_t slash = name.rfind(L'/');
  return slash == std::wstring::npos ? std::wstring() : name.substr(0, slash);
}

void AddLine(std::wstring& lines, const std::wstring& line) {
  if (line.empty()) return;
  if (!lines.empty()) lines += L'\n';
  lines += line;
}

// So many that they still fit on a screen.
std::wstring Listed(const std::vector<std::wstring>& names) {
  constexpr std::size_t kMost = 12;
  std::wstring lines;
  for (std::size_t i = 0; i < std::min(names.size(), kMost); ++i) AddLine(lines, names[i]);
  if (names.size() > kMost) AddLine(lines, L"…");
  return lines;
}

Question AskToDelete(int textId, const std::vector<std::wstring>& names, std::size_t uses) {
  const bool isOne = names.size() == 1 && textId == text::kDeletePicture;
  const std::wstring what = isOne ? names.front() : std::to_wstring(names.size());
  std::wstring detail = Listed(names);
  if (uses > 0) AddLine(detail, FillIn(HostText(text::kPictureIsUsed), {std::to_wstring(uses)}));
  return {.textId = textId,
          .text = FillIn(HostText(textId == text::kDeletePicture && !isOne ? text::kDeletePictures : textId), {what}),
          .detail = detail,
          .answers = {text::kDeleteAnswer, text::kCancelAnswer},
          .yes = 0,
          .no = 1,
          .isAlarming = true,
          .usual = 1};
}

}  // namespace

ImageStoreList::ImageStoreList(DialogPort& port, const RVReport& report) : port_(port), report_(report) {
  UpdateList();
}

void ImageStoreList::UpdateList() {
  all_ = ListPictures();
  uses_ = UsesOfPictures(report_);
  folders_ = {std::wstring()};
  for (const std::wstring& name : all_) {
    std::wstring folder = FolderOf(name);
    if (std::find(folders_.begin(), folders_.end(), folder) == folders_.end()) folders_.push_back(std::move(folder));
  }
  const bool isGone = folder_ && std::find(folders_.begin(), folders_.end(), *folder_) == folders_.end();
  ShowFolder(isGone ? std::nullopt : folder_);
}

void ImageStoreList::ShowFolder(std::optional<std::wstring> folder) {
  folder_ = std::move(folder);
  rows_ = all_;
  if (folder_) std::erase_if(rows_, [this](const std::wstring& name) { return FolderOf(name) != *folder_; });
}

const std::vector<PictureUse>& ImageStoreList::UsesOf(const std::wstring& name) const {
  static const std::vector<PictureUse> kNone;
  const auto found = uses_.find(name);
  return found == uses_.end() ? kNone : found->second;
}

// --- Adding ---

bool ImageStoreList::ConcludeAdding(const std::wstring& problems) {
  if (!problems.empty()) port_.TellFailure(problems);
  if (!added_.empty()) UpdateList();
  return !added_.empty();
}

bool ImageStoreList::OnAdd(const std::vector<Path>& files) {
  added_.clear();
  std::wstring problems;
  for (const Path& file : files) {
    AddedPicture added = AddPicture(file, FolderForNew());
    AddLine(problems, added.problem);
    if (!added.name.empty()) added_.push_back(std::move(added.name));
  }
  return ConcludeAdding(problems);
}

bool ImageStoreList::OnAddBytes(const std::string& bytes, const std::wstring& id) {
  added_.clear();
  AddedPicture added = AddPictureBytes(bytes, id, FolderForNew());
  if (!added.name.empty()) added_.push_back(std::move(added.name));
  return ConcludeAdding(added.problem);
}

bool ImageStoreList::OnReplace(const std::wstring& name, const Path& file) {
  const std::wstring problem = ReplacePicture(name, file);
  if (!problem.empty()) port_.TellFailure(problem);
  return problem.empty();
}

// --- Deleting ---

std::size_t ImageStoreList::CountUses(const std::vector<std::wstring>& names) const {
  std::size_t count = 0;
  for (const std::wstring& name : names) count += UsesOf(name).size();
  return count;
}

bool ImageStoreList::Delete(const std::vector<std::wstring>& names) {
  std::wstring problems;
  for (const std::wstring& name : names) AddLine(problems, RemovePicture(name));
  if (!problems.empty()) port_.TellFailure(problems);
  UpdateList();
  return true;
}

bool ImageStoreList::OnDelete(const std::vector<std::wstring>& names) {
  if (names.empty() || port_.Decide(AskToDelete(text::kDeletePicture, names, CountUses(names))) != 0) return false;
  return Delete(names);
}

std::vector<std::wstring> ImageStoreList::Unused(const NamedPictures& named) const {
  std::vector<std::wstring> unused = all_;
  std::erase_if(unused, [&](const std::wstring& name) {
    return !UsesOf(name).empty() || named.ids.contains(ParsePictureName(name).id);
  });
  return unused;
}

bool ImageStoreList::OnDeleteUnused() {
  UpdateList();
  const NamedPictures named = PicturesOfReports();
  if (!named.unreadable.empty()) {
    port_.TellFailure(FillIn(HostText(text::kUsesNotKnown), {FromUtf8(named.unreadable.front().filename().string())}));
    return false;
  }
  const std::vector<std::wstring> unused = Unused(named);
  if (unused.empty()) {
    port_.TellFailure(HostText(text::kNoUnusedPictures));
    return false;
  }
  return port_.Decide(AskToDelete(text::kDeleteUnused, unused, 0)) == 0 && Delete(unused);
}

}  // namespace xrpt
