// One toolkit action a command of the catalogue: what ribbon, menus, palette and shortcut sheet show and trigger.
#pragma once

#include <QObject>
#include <functional>
#include <string_view>
#include <vector>

class QAction;
class QWidget;

namespace xrpt {

class RVEditControlWnd;
struct Command;

class Actions {
 public:
  // Shortcuts of one plain key belong to the page alone, so that they never act while the user types elsewhere.
  Actions(RVEditControlWnd& frame, QWidget& window, QWidget& page);

  // In the catalogue's order.
  const std::vector<QAction*>& All() const { return actions_; }
  // Null for a name the catalogue does not have.
  QAction* Find(std::string_view name) const;
  static const Command& CommandOf(const QAction& action);
  // "Align to last card: Left" says more than "Left" where the ribbon's group is not in sight.
  static QString FullLabelOf(const QAction& action);

  // What a disabled one waits for; empty when it does not say.
  std::wstring WhyUnavailable(const QAction& action) const;

  // Asks every command whether it is enabled and checked.
  void Refresh();

  // Called round every command: what is half done ends before it, what it changed is shown after it.
  std::function<void()> beforeRun;
  std::function<void()> afterRun;

 private:
  QAction* MakeAction(const Command& command, QWidget& window, QWidget& page);
  void RefreshOne(QAction& action) const;

  RVEditControlWnd& frame_;
  std::vector<QAction*> actions_;  // owned by the window
};

}  // namespace xrpt
