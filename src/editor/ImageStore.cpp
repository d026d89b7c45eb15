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

std::wstring Refusal(int textId, const std::wstring& what, const std::string& reason = {}) {
  const std::wstring sentence = FormatText(HostText(textId), what);
  return reason.empty() ? sentence : sentence + L" " + FromUtf8(reason);
}

std::wstring FileNameOf(const Path& file) { return FromUtf8(file.filename().string()); }

// The bytes of a picture file, or what is wrong with it.
struct ReadPicture {
  std::string bytes;
  std::wstring problem;
};

ReadPicture ReadFile(const Path& file) {
  FileError error;
  std::optional<std::string> bytes = CurrentHost().files->Read(file, kMaxPictureFile, &error);
  if (!bytes) return {{}, Refusal(text::kPictureNotRead, FileNameOf(file), error.reason)};
  if (!CurrentHost().pictures->Decode(*bytes)) return {{}, Refusal(text::kNoPictureFile, FileNameOf(file))};
  return {std::move(*bytes), {}};
}

std::optional<Path> FileOf(const std::wstring& name) {
  const PictureKey key = ParsePictureName(name);
  return ImageFilePath(CurrentHost(), key.id, key.path);
}

std::wstring Store(const Path& file, const std::string& bytes) {
  CurrentHost().files->CreateFolder(file.parent_path());
  return TextOf(CurrentHost().files->Write(file, EncodeBase64(bytes)));
}

// A file name that the store can hold, whatever the picture was called.
std::wstring SafeId(std::wstring id) {
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

AddedPicture AddPicture(const Path& file, const std::wstring& folder) {
  ReadPicture read = ReadFile(file);
  if (!read.problem.empty()) return {{}, std::move(read.problem)};
  return AddPictureBytes(read.bytes, FromUtf8(file.stem().string()), folder);
}

AddedPicture AddPictureBytes(const std::string& bytes, const std::wstring& id, const std::wstring& folder) {
  if (!CurrentHost().pictures->Decode(bytes)) return {{}, Refusal(text::kNoPictureFile, id)};
  UniqueNames names;
  for (const std::wstring& name : ListPictures()) names.Add(name);
  const std::wstring name = names.Take(PictureName({SafeId(id), folder}));
  const std::optional<Path> file = FileOf(name);
  if (!file) return {{}, Refusal(text::kNoPictureFolder, folder)};
  std::wstring problem = Store(*file, bytes);
  return problem.empty() ? AddedPicture{name, {}} : AddedPicture{{}, std::move(problem)};
}

std::wstring ReplacePicture(const std::wstring& name, const Path& file) {
  const std::optional<Path> place = FileOf(name);
  if (!place) return Refusal(text::kNoPictureFolder, name);
  ReadPicture read = ReadFile(file);
  return read.problem.empty() ? Store(*place, read.bytes) : std::move(read.problem);
}

std::wstring RemovePicture(const std::wstring& name) {
  const std::optional<Path> file = FileOf(name);
  return file && CurrentHost().files->Remove(*file) ? std::wstring() : Refusal(text::kReportNotRemoved, name);
}

}  // namespace xrpt
