// The desktop's clipboard: cards as text for editors, as SVG and PNG for everyone else.
#pragma once

#include "platform/Host.h"

namespace xrpt {

class QtClipboard final : public ClipboardService {
 public:
  static constexpr std::size_t kMaxBytes = 64u << 20;

  // False for more than the limit, or where the program has no clipboard.
  bool PutToClipboard(const ClipboardContent& content) override;
  std::string GetFromClipboard(std::size_t limit) override;
};

}  // namespace xrpt
