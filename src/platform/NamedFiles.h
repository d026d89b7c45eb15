// Reports and styles are files named identifier, point, name, ending, and are found by name alone.
#pragma once

#include <string>
#include <string_view>

#include "platform/Host.h"

namespace xrpt {

// The file of a name whatever its identifier ("*." + name + ending). Among several matches the one whose text after the
// first point is exactly the name comes first. Nothing when none matches or the name is no safe file name.
std::optional<Path> FindNamedFile(FileService& files, const Path& folder, std::wstring_view name,
                                  std::wstring_view ending);
// The same with the installed host's files.
std::optional<Path> FindNamedFile(const Path& folder, std::wstring_view name, std::wstring_view ending);

// All files of exactly that name: more than one when reports or styles of several identifiers are called alike.
std::vector<Path> FilesOfName(FileService& files, const Path& folder, std::wstring_view name, std::wstring_view ending);

// folder / (id + "." + name + ending).
Path NamedFilePath(const Path& folder, std::wstring_view id, std::wstring_view name, std::wstring_view ending);

// The name part of a file: what follows the first point of id.name.ending, or the stem of name.ending.
std::wstring NameOfFile(const Path& file, std::wstring_view ending);

// The names of all such files of a folder, in order.
std::vector<std::wstring> NamesInFolder(const Path& folder, std::wstring_view ending);

}  // namespace xrpt
