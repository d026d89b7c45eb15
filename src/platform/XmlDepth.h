// How deep the elements of a text are nested, told from its tags alone.
#pragma once

#include <string_view>

namespace xrpt {

// True when the elements of the text, whose uppermost ones stand at that level of a document, are surely nested less
// deep than a document may have them. False says nothing: texts with attributes, comments or sections, and those with
// hundreds of empty elements, have to be walked as a tree. Far quicker than the walk.
bool IsSurelyShallow(std::string_view text, int level = 0);

}  // namespace xrpt
