// The desktop's clipboard: cards as text for editors, as SVG and PNG for everyone else. Its owner is asked once after
// each change, for it may be another program; menus ask far more often.
#pragma once

#include <memory>
#include <optional>

#include "platform/Host.h"

class QClipboard;
class QObject;

namespace xrpt {

class QtClipboard final : public ClipboardService {
 public:
  QtClipboard();
  ~QtClipboard() override;

  static constexpr std::size_t kMaxBytes = 64u << 20;

  // False for more than the limit, or where the program has no clipboard.
  bool PutToClipboard(const ClipboardContent& content) override;
  std::string GetFromClipboard(std::size_t limit) override;

 private:
  void Watch(const QClipboard& clipboard);

  std::unique_ptr<QObject> watcher_;  // hears of changes, from the first question on
  std::optional<std::string> text_;   // as read after the last one, up to kMaxBytes
};

}  // namespace xrpt
