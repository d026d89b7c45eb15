#include "desktop/page/KeyCodes.h"

#include <Qt>
#include <utility>

#include "platform/Window.h"

namespace xrpt {

int VirtualKey(int toolkitKey) {
  static constexpr std::pair<int, int> kRows[] = {{Qt::Key_Escape, key::Escape},   {Qt::Key_Left, key::Left},
                                                  {Qt::Key_Up, key::Up},           {Qt::Key_Right, key::Right},
                                                  {Qt::Key_Down, key::Down},       {Qt::Key_Delete, key::Delete},
                                                  {Qt::Key_Backspace, key::Delete}};
  for (const auto& [from, to] : kRows) {
    if (from == toolkitKey) return to;
  }
  const bool isCharacter =
      (toolkitKey >= Qt::Key_A && toolkitKey <= Qt::Key_Z) || (toolkitKey >= Qt::Key_0 && toolkitKey <= Qt::Key_9);
  return isCharacter ? toolkitKey : 0;
}

}  // namespace xrpt
