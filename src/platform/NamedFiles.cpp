#include "platform/NamedFiles.h"

#include <algorithm>

#include "platform/Text.h"

namespace xrpt {
namespace {

bool EndsWith(std::wstring_view text, std::wstring_view ending) {
  return text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending;
}

std::wstring FileNameOf(const Path& file) { return FromUtf8(file.filename().string()); }

}  // namespace

std::optional<Path> FindNamedFile(FileService& files, const Path& folder, std::wstring_view name,
                                  std::wstring_view ending) {
  if (!IsSafeFileName(name)) return std::nullopt;
  const std::wstring wanted = std::wstring(name) + std::wstring(ending);
  std::optional<Path> found;
  for (const Path& file : files.List(folder, L"." + wanted)) {
    const std::wstring fileName = FileNameOf(file);
    if (fileName.substr(fileName.find(L'.') + 1) == wanted) return file;
    if (!found) found = file;
  }
  return found;
}

std::optional<Path> FindNamedFile(const Path& folder, std::wstring_view name, std::wstring_view ending) {
  return FindNamedFile(*CurrentHost().files, folder, name, ending);
}

std::vector<Path> FilesOfName(FileService& files, const Path& folder, std::wstring_view name,
                              std::wstring_view ending) {
  if (!IsSafeFileName(name)) return {};
  std::vector<Path> found = files.List(folder, std::wstring(name) + std::wstring(ending));
  std::erase_if(found, [&](const Path& file) { return NameOfFile(file, ending) != name; });
  return found;
}

Path NamedFilePath(const Path& folder, std::wstring_view id, std::wstring_view name, std::wstring_view ending) {
  std::wstring fileName(id);
  fileName += L'.';
  fileName += name;
  fileName += ending;
  return folder / Path(ToUtf8(fileName));
}

std::wstring NameOfFile(const Path& file, std::wstring_view ending) {
  std::wstring name = FileNameOf(file);
  if (EndsWith(name, ending)) name.resize(name.size() - ending.size());
  const std::size_t point = name.find(L'.');
  return point == std::wstring::npos ? name : name.substr(point + 1);
}

std::vector<std::wstring> NamesInFolder(const Path& folder, std::wstring_view ending) {
  std::vector<std::wstring> names;
  for (const Path& file : CurrentHost().files->List(folder, ending)) names.push_back(NameOfFile(file, ending));
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace xrpt
