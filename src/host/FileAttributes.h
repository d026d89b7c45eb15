// What a file that is replaced hands on to its successor.
#pragma once

#include "host/Posix.h"

namespace xrpt {

// Owner, group, mode and extended attributes (access lists among them) of `former` for the open file. An error when one
// of them cannot be handed on.
std::error_code TakeAttributes(int successor, const Path& former, const struct stat& was);

}  // namespace xrpt
