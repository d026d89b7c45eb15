// The parser behind XmlDocument and XmlStretches, and the bounds it lacks. For the sources that know the parser; nobody
// else includes this.
#pragma once

#include <bit>
#include <cstdint>
#include <pugixml.hpp>
#include <string_view>

#include "platform/Xml.h"

namespace xrpt {

// An element's first text is kept in the element itself, which halves the nodes of our files.
inline constexpr unsigned kParseFlags = pugi::parse_default | pugi::parse_ws_pcdata_single | pugi::parse_embed_pcdata;

// The parser's handle is one pointer, and so is ours: taken for each other in place, they spare a call for every node.
inline pugi::xml_node Wrap(void* node) { return std::bit_cast<pugi::xml_node>(node); }
inline void* Unwrap(const pugi::xml_node& node) { return std::bit_cast<void*>(node); }

inline XmlNode HandleOf(const pugi::xml_node& node) { return std::bit_cast<XmlNode>(node); }

inline bool IsElement(const pugi::xml_node& node) { return node.type() == pugi::node_element; }

// Whether elements are nested deeper than a document may have them, in a tree whose uppermost elements stand at that
// level of it.
bool IsTooDeep(pugi::xml_document& tree, int level = 0);

// How many "<" there are: a start and an end tag make two.
std::size_t CountBrackets(std::string_view text);

// A text that only the parser's own conversion can read: with a mark of wide characters, or declared as Latin 1.
bool IsForeignEncoding(std::string_view text);

}  // namespace xrpt
