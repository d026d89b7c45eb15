// What stands at the right of the ribbon's tabs: the most used commands, the page selector and the zoom box. Parts that
// find no room there stand in a popup.
#pragma once

#include <QWidget>
#include <vector>

class QBoxLayout;
class QComboBox;

namespace xrpt {

class Actions;
class PopupButton;
class RVEditControlWnd;

class CornerBar final : public QWidget {
 public:
  CornerBar(RVEditControlWnd& frame, const Actions& actions, QWidget* parent = nullptr);

  void Refresh();
  // Shows as many of the parts as that many pixels hold, and says how many pixels they take.
  int Fit(int available);
  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QBoxLayout& AddPart();
  void AddButtons(QBoxLayout& row, const Actions& actions, std::initializer_list<const char*> names);
  void PutPart(QWidget* part, bool inPopup);
  void PlaceParts();
  void RefreshPages();
  void ChooseZoom(int entry);
  void RefreshZoom();

  RVEditControlWnd& frame_;
  std::vector<QWidget*> parts_;  // left to right
  PopupButton* more_;
  QComboBox* pages_;
  QComboBox* zoom_;
};

}  // namespace xrpt
