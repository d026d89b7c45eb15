// Pasting a picture that another program has copied: it goes into the store, and a card that shows it onto the page, as
// one step. Cards and texts on the clipboard come first.
#pragma once

#include <QObject>
#include <optional>

class QAction;
class QWidget;

namespace xrpt {

class Actions;
class MessageBar;
class RVEditControlWnd;

class PastedPicture final : public QObject {
 public:
  // Lives as long as the view.
  PastedPicture(RVEditControlWnd& frame, Actions& actions, MessageBar& messages, QWidget& view);

 private:
  // Whether that is what pasting would do now.
  bool IsOffered();
  void KeepEnabled(QAction& action);
  void Paste();

  RVEditControlWnd& frame_;
  Actions& actions_;
  MessageBar& messages_;
  QWidget& view_;
  std::optional<bool> isPicture_;  // of the clipboard, once it was asked
};

}  // namespace xrpt
