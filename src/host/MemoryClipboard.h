// A clipboard of this process alone: for command lines, which must not disturb the user's, and for tests.
#pragma once

#include "platform/Host.h"

namespace xrpt {

class MemoryClipboard final : public ClipboardService {
 public:
  bool PutToClipboard(const ClipboardContent& content) override {
    content_ = content;
    return true;
  }
  std::string GetFromClipboard(std::size_t limit) override {
    return content_.text.size() <= limit ? content_.text : std::string();
  }
  const ClipboardContent& Content() const { return content_; }

 private:
  ClipboardContent content_;
};

}  // namespace xrpt
