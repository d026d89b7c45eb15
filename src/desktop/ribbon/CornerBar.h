// What stands at the right of the ribbon's tabs: the most used commands, the page selector and the zoom box.
#pragma once

#include <QWidget>

class QComboBox;

namespace xrpt {

class Actions;
class RVEditControlWnd;

class CornerBar final : public QWidget {
 public:
  CornerBar(RVEditControlWnd& frame, const Actions& actions, QWidget* parent = nullptr);

  void Refresh();

 private:
  void AddButtons(const Actions& actions, std::initializer_list<const char*> names);
  void RefreshPages();
  void RefreshZoom();

  RVEditControlWnd& frame_;
  QComboBox* pages_;
  QComboBox* zoom_;
};

}  // namespace xrpt
