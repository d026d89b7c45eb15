// SVG pictures come from strangers: one that would make the reader open a file or another picture is refused.
#pragma once

#include <QByteArray>

namespace xrpt {

// True for what is SVG by its looks (text, a tag within the first bytes).
bool LooksLikeSvg(const QByteArray& bytes);

// False when it names anything outside itself, carries another SVG inside, or is no XML.
bool IsSelfContainedSvg(const QByteArray& bytes);

}  // namespace xrpt
