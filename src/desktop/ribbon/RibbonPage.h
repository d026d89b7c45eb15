// The groups of one tab of the ribbon. It places them by hand and asks for no width of its own, so that no layout above
// is asked to make room while a window shrinks: whatever its width, the groups give way until they fit.
#pragma once

#include <QWidget>
#include <vector>

class QToolButton;

namespace xrpt {

class RibbonGroup;

class RibbonPage final : public QWidget {
 public:
  explicit RibbonPage(QWidget* parent = nullptr);
  RibbonGroup& AddGroup(const QString& title);
  const std::vector<RibbonGroup*>& Groups() const { return groups_; }
  // The button for groups that have no room at all.
  QToolButton& More() const { return *more_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PlaceGroups();
  void OpenMore();

  QToolButton* more_;
  std::vector<RibbonGroup*> groups_;
  std::vector<int> lines_;  // where a line stands after a group
};

}  // namespace xrpt
