// A titled group of the ribbon: large buttons first, small ones in columns of three, and widgets of the window's own.
#pragma once

#include <QWidget>
#include <vector>

class QAction;
class QGridLayout;
class QLabel;
class QMenu;
class QStackedLayout;
class QToolButton;

namespace xrpt {

class RibbonButton;

// From roomy to narrow.
enum class GroupRoom { Full, IconsOnly, Folded };

class RibbonGroup final : public QWidget {
 public:
  explicit RibbonGroup(const QString& title, QWidget* parent = nullptr);

  void AddAction(QAction& action, bool isLarge);
  // Fills a column of its own, all three rows.
  void AddWidget(QWidget* widget);

  void SetRoom(GroupRoom room);
  GroupRoom Room() const { return room_; }

 private:
  QMenu* MakeMenu();

  QString title_;
  QWidget* body_;
  QGridLayout* grid_;
  QLabel* caption_;
  QToolButton* folded_;
  std::vector<RibbonButton*> small_;
  std::vector<QAction*> actions_;
  GroupRoom room_ = GroupRoom::Full;
  int column_ = 0;
  int row_ = 0;
  bool hasWidgets_ = false;
};

}  // namespace xrpt
