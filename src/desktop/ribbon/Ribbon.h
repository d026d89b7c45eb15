// The ribbon: a tab a line of the catalogue's tabs, in each its commands in titled groups. Where the window is narrow,
// groups give way from the right: first labels of small buttons go, then a group folds into one button with a menu.
#pragma once

#include <QStringList>
#include <QWidget>
#include <vector>

class QHBoxLayout;
class QStackedWidget;
class QTabBar;

namespace xrpt {

class Actions;
class RibbonGroup;

class RibbonPage final : public QWidget {
 public:
  explicit RibbonPage(QWidget* parent = nullptr);
  RibbonGroup& AddGroup(const QString& title);
  const std::vector<RibbonGroup*>& Groups() const { return groups_; }
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void FitGroups();

  QHBoxLayout* row_;
  std::vector<RibbonGroup*> groups_;
};

class Ribbon final : public QWidget {
 public:
  explicit Ribbon(const Actions& actions, QWidget* parent = nullptr);

  RibbonPage& Page(int tab);
  int CurrentTab() const;
  void ShowTab(int tab);
  // Puts the keyboard on the tabs.
  void FocusTabs();
  // Something of the window's own at the right of the tabs, as long as there is room for it.
  void AddCorner(QWidget* widget);
  QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddTab(const Actions& actions, int index);
  void MarkMnemonics();

  QTabBar* tabs_;
  QHBoxLayout* tabRow_;
  QStackedWidget* pages_;
  QWidget* corner_ = nullptr;
};

// Marks in each label a letter that no label before it has marked, for Alt and that letter.
QStringList WithMnemonics(QStringList labels);

}  // namespace xrpt
