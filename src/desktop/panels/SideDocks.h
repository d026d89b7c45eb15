// The docks beside the page give way where the window becomes too narrow for page and docks, and come back when there
// is room again, unless the user hid or showed them meanwhile.
#pragma once

#include <QObject>
#include <vector>

class QDockWidget;
class QMainWindow;

namespace xrpt {

class SideDocks final : public QObject {
 public:
  // The docks in the order in which they give way.
  SideDocks(QMainWindow& window, const std::vector<QDockWidget*>& docks);

  // The window has another width.
  void Fit();
  // The user decided about this one.
  void Forget(const QDockWidget& dock);
  // Shows a dock that the user asks for, as wide as it was, or as the window allows.
  void Open(QDockWidget& dock);
  // Shows those that gave way, so that the layout is kept as the user had it.
  void BringBack();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Side {
    QDockWidget* dock;
    int width = 0;  // as the user has it, not as a window that shrinks squeezes it
    bool gaveWay = false;
  };

  bool IsBeside(const Side& side) const;
  bool IsCrowded() const;
  // Pixels the page would have.
  int RoomForPage() const;
  void HideUntilPageFits();
  void ShowWhileTheyFit();

  QMainWindow& window_;
  std::vector<Side> sides_;
  int width_ = 0;  // at the last fitting
};

}  // namespace xrpt
