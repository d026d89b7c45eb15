// A titled group of the ribbon: large buttons first, small ones in columns of three, and widgets of the window's own.
// Folded, it is one button with all of them in a popup.
#pragma once

#include <QWidget>
#include <vector>

#include "desktop/ribbon/RibbonFit.h"

class QAction;
class QGridLayout;
class QIcon;
class QLabel;

namespace xrpt {

class PopupButton;
class RibbonButton;

class RibbonGroup final : public QWidget {
 public:
  explicit RibbonGroup(const QString& title, QWidget* parent = nullptr);

  void AddAction(QAction& action, bool isLarge);
  // Fills a column of its own, all three rows. The icon is the group's when it folds and has no action.
  void AddWidget(QWidget* widget, const QIcon& icon);

  const QString& Title() const { return title_; }
  QIcon Icon() const;
  // What it takes in each room, whichever it has now.
  GroupWidths Widths() const;
  GroupRoom Room() const { return room_; }
  void SetRoom(GroupRoom room);
  // Opens what a folded or hidden group holds.
  void OpenUnder(const QWidget& anchor);
  QSize sizeHint() const override;

 private:
  using Column = std::vector<QWidget*>;

  void MakeFoldedButton();
  void AddColumn(QWidget* widget, Qt::Alignment alignment);
  int BodyWidth(bool iconsOnly) const;

  QString title_;
  QWidget* body_;
  QGridLayout* grid_;
  QLabel* caption_;
  PopupButton* folded_;
  std::vector<Column> columns_;
  bool columnIsOpen_ = false;  // the last column takes more small buttons
  GroupRoom room_ = GroupRoom::Full;
};

}  // namespace xrpt
