// The searched texts of a template file as it stands, without making a report of it: what a folder of reports is
// searched by, and how one text in a file is replaced while every other byte stays.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formulas/BytePatches.h"
#include "platform/TextFinder.h"
#include "platform/Xml.h"

namespace xrpt {

// Of a card, a card inside it, or a formula.
struct TemplateMatch {
  int page = 0;     // from 1; 0 for a formula
  std::wstring id;  // of a formula, its name
  std::string tag;
  std::string field;         // name of the element that holds the text
  std::size_t position = 0;  // characters from 0
  std::wstring text;         // the whole of it, or what is round the match of a long one
};

// All matches of a template, in the order of the file.
std::vector<TemplateMatch> SearchTemplate(const XmlNode& root, const TextFinder& finder);

// What replacing every match comes to, in the order of the file. `root` was parsed from `bytes`. Nothing when a text is
// not found again in the bytes.
std::optional<std::vector<BytePatch>> PatchesFor(const XmlNode& root, std::string_view bytes, const TextFinder& finder,
                                                 std::wstring_view replacement);
// The patch of the revision alone, which every change of a report renews; nothing where there is none.
std::vector<BytePatch> RevisionPatch(const XmlNode& root, std::string_view bytes, std::wstring_view revision);

}  // namespace xrpt
