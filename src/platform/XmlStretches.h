// Goes through a large document once, with a tree of no more than a few thousand bytes of it at a time.
//
// The parser is given a stretch of the text. Where the stretch ends in the middle of an element the parser stops, and
// every element before that one is whole: these are visited, and the next stretch begins with the one that was cut. So
// it is the parser alone that says what is an element and where it ends, and no text is read otherwise than as a whole.
#pragma once

#include <string_view>

#include "platform/Xml.h"

namespace xrpt {

// Is told of the children of one element, in their order.
class XmlVisitor {
 public:
  virtual ~XmlVisitor() = default;
  // A child with all that is in it. The handle is good until the call returns.
  virtual void Child(const XmlNode& element) = 0;
  // Who is told of the children of a child that may be large; null for one that is wanted whole. One with attributes is
  // given whole in any case.
  virtual XmlVisitor* Inside(std::string_view /*tag*/) { return nullptr; }
  // There are no more children.
  virtual void End() {}
};

// Visits the children of the document's root, which must bear this tag. False for a text that is faulty or beyond the
// bounds of a document, and for some that are neither, such as one in another encoding or with comments around the
// root: then what was visited is to be forgotten, and XmlDocument reads the text or says what is wrong with it.
bool VisitStretches(std::string_view text, std::string_view rootTag, XmlVisitor& root);

}  // namespace xrpt
