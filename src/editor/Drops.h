// What becomes of things that are dropped on a page: pictures become image cards, names of variables formulas, other
// texts labels. Each is one step.
#pragma once

#include <string>

#include "platform/Files.h"
#include "platform/Geometry.h"

namespace xrpt {

class RVEditControlWnd;

// At a pixel of the current page's window. False where no card can be.
bool DropText(RVEditControlWnd& frame, const std::wstring& words, Point at);

// Adds the picture to the store first. What is wrong with it, as a sentence; empty when it is there.
std::wstring DropPicture(RVEditControlWnd& frame, const Path& file, Point at);

}  // namespace xrpt
