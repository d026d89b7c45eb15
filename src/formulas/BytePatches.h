// Changes of a file's bytes that leave all others as they are: where the text of an element stands in the file, and
// what replacing matches in it comes to.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/TextFinder.h"
#include "platform/Xml.h"

namespace xrpt {

// One stretch of a file's bytes that becomes another.
struct BytePatch {
  std::size_t offset = 0;
  std::size_t length = 0;
  std::string now;
};

// Adds what replacing every match in the text of an element comes to. False when the element is not found again in
// the bytes it was parsed from, as in files that are not UTF-8.
bool AddPatches(std::vector<BytePatch>& patches, const XmlNode& element, std::string_view bytes,
                const TextFinder& finder, std::wstring_view replacement);
// Adds the patch that gives an element another text altogether.
bool AddWholePatch(std::vector<BytePatch>& patches, const XmlNode& element, std::string_view bytes,
                   std::wstring_view now);

// Patches are in the order of the file.
std::string Patched(std::string_view bytes, const std::vector<BytePatch>& patches);
// The changed lines as a unified diff without context, named after the file.
std::string DiffOf(const std::string& file, std::string_view bytes, const std::vector<BytePatch>& patches);

}  // namespace xrpt
