// The ribbon: a tab a line of the catalogue's tabs, in each its commands in titled groups. Where the window is narrow,
// groups give way from the right, and what stands beside the tabs goes into a popup.
#pragma once

#include <QStringList>
#include <QWidget>

class QStackedWidget;
class QTabBar;

namespace xrpt {

class Actions;
class CornerBar;
class RibbonPage;

class Ribbon final : public QWidget {
 public:
  explicit Ribbon(const Actions& actions, QWidget* parent = nullptr);

  RibbonPage& Page(int tab);
  int CurrentTab() const;
  void ShowTab(int tab);
  // Puts the keyboard on the tabs.
  void FocusTabs();
  // Stands at the right of the tabs.
  void SetCorner(CornerBar* corner);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  class Header;

  void AddTab(const Actions& actions, int index);
  void MarkMnemonics();

  Header* header_;
  QTabBar* tabs_;
  QStackedWidget* pages_;
};

// Marks in each label a letter that no label before it has marked, for Alt and that letter.
QStringList WithMnemonics(QStringList labels);

}  // namespace xrpt
