// A button that opens a popup with widgets in it: the way to those for which the window is too narrow.
#pragma once

#include <QToolButton>

namespace xrpt {

class PopupButton final : public QToolButton {
 public:
  explicit PopupButton(QWidget* parent = nullptr);

  // The widget stands in the popup, above those that are there, until it gets another parent.
  void Hold(QWidget* widget);
  // Opens the popup under a widget, this button where there is room for it.
  void OpenUnder(const QWidget& anchor);
  QWidget& Popup() { return *popup_; }
  void Close();

 private:
  QWidget* popup_;
};

// Closes the popup a widget stands in; nothing when it stands in none.
void ClosePopupAround(const QWidget& widget);

}  // namespace xrpt
