// The kinds of card an insert tool makes, by the tool's code.
#pragma once

#include <optional>
#include <span>

#include "model/RVCardControl.h"
#include "platform/Geometry.h"

namespace xrpt {

struct InsertKindRow {
  int code;
  const CardClass& (*kind)();
  unsigned support;                 // the bit that allows inserting it
  std::optional<Color> frameColor;  // of a new card; nothing keeps the one of its class
  SizeD clickedSize;                // millimetres, of one that is made by a click
};

std::span<const InsertKindRow> InsertKinds();
// Null for a code that inserts nothing, the pointer's among them.
const InsertKindRow* FindInsertKind(int code);
// The bits of all of them.
unsigned AllInsertKinds();

}  // namespace xrpt
