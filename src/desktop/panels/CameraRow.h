// Fetches a new picture for a card that shows a camera's.
#pragma once

#include <QWidget>

#include "editor/CameraPicture.h"

class QLabel;
class QPushButton;

namespace xrpt {

class CameraRow final : public QWidget {
 public:
  CameraRow(RVEditControlWnd& frame, QWidget* parent);

  // Hides itself for cards of other kinds.
  void Refresh();

 private:
  void Fetch();

  CameraPicture picture_;
  QPushButton* fetch_;
  QLabel* said_;
  bool isFetching_ = false;
};

}  // namespace xrpt
