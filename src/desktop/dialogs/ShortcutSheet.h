// Every key of the editor on one sheet, by the tabs of the ribbon, and what the mouse does on the page.
#pragma once

#include <QDialog>
#include <vector>

class QAction;
class QGridLayout;

namespace xrpt {

class ShortcutSheet final : public QDialog {
 public:
  ShortcutSheet(const std::vector<QAction*>& actions, QWidget* parent);

 private:
  void AddRow(QGridLayout& grid, const QString& label, const QString& keys);
  void AddSection(QGridLayout& grid, const QString& title);
  QWidget* MakeColumns(const std::vector<QAction*>& actions);
};

}  // namespace xrpt
