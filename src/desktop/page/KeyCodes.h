// Keys of the toolkit as the virtual key codes that windows without one understand.
#pragma once

namespace xrpt {

// 0 for a key without a code of its own.
int VirtualKey(int toolkitKey);

}  // namespace xrpt
