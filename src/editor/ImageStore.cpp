#include "editor/ImageStore.h"

#include <algorithm>

#include "editor/EditorTexts.h"
#include "platform/Base64.h"
#include "platform/Host.h"
#include "platform/ImageFiles.h"
#include "platform/PictureName.h"
#include "platform/SystemNames.h"
#include "platform/Text.h"
#include "platform/UniqueNames.h"

namespace xrpt {
namespace {

constexpr std::size_t kMaxPictureFile = 64u << 20;  // bytes, as it lies outside the store

std::wstring NameOf(const Path& file, const Path& root) {
  const Path folder = file.parent_path().lexically_relative(root);
  const std::wstring path = folder == "." ? std::wstring(kImagesRoot) : FromUtf8(folder.generic_string());
  return PictureName({FromUtf8(file.stem().string()), path});
}

bool ComesBefore(const std::wstring& left, const std::wstring& right) {
  const bool leftInFolder = left.find(L'/') != std::wstring::npos;
  const bool rightInFolder = right.find(L'/') != std::wstring::npos;
  return leftInFolder != rightInFolder ? rightInFolder : left < right;
}

AddedPicture Refused(int textId, const Path& file, const std::string& reason = {}) {
  std::wstring sentence = HostText(textId);
  const std::size_t place = sentence.find(L"%s");
  if (place != std::wstring::npos) sentence.replace(place, 2, FromUtf8(file.filename().string()));
  return {{}, reason.empty() ? sentence : sentence + L" " + FromUtf8(reason)};
}

// A file name that the store can hold, whatever the picture was called.
std::wstring SafeId(const Path& file) {
  std::wstring id = FromUtf8(file.stem().string());
  for (wchar_t& c : id) {
    if (c < L' ' || std::wstring_view(L"/\\:*?\"<>|%").find(c) != std::wstring_view::npos) c = L'_';
  }
  return IsSafeFileName(id) ? id : L"picture";
}

}  // namespace

std::vector<std::wstring> ListPictures() {
  std::vector<std::wstring> names;
  const Path root = CurrentHost().setup->ImagesPath();
  const Path ending = ToUtf8(kImageEnding);
  std::error_code error;
  for (std::filesystem::recursive_directory_iterator at(root, error), end; !error && at != end; at.increment(error)) {
    if (at->path().extension() == ending && at->is_regular_file(error)) names.push_back(NameOf(at->path(), root));
  }
  std::sort(names.begin(), names.end(), ComesBefore);
  return names;
}

AddedPicture AddPicture(const Path& file) {
  const Host& host = CurrentHost();
  FileError error;
  const std::optional<std::string> bytes = host.files->Read(file, kMaxPictureFile, &error);
  if (!bytes) return Refused(text::kPictureNotRead, file, error.reason);
  if (!host.pictures->Decode(*bytes)) return Refused(text::kNoPictureFile, file);
  UniqueNames names;
  for (const std::wstring& name : ListPictures()) names.Add(name);
  const std::wstring id = names.Take(SafeId(file));
  const Path folder = host.setup->ImagesPath();
  host.files->CreateFolder(folder);
  const SaveResult saved = host.files->Write(folder / ToUtf8(id + std::wstring(kImageEnding)), EncodeBase64(*bytes));
  if (!saved) return {{}, TextOf(saved)};
  return {id, {}};
}

}  // namespace xrpt
