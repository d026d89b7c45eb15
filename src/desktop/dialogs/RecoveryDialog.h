// The unsaved work that earlier sessions left, beside what is on disk now: to be opened, discarded or left for later.
#pragma once

#include <QDialog>
#include <optional>

#include "platform/Recovery.h"

class QPushButton;
class QTreeWidget;

namespace xrpt {

class RecoveryDialog final : public QDialog {
 public:
  RecoveryDialog(std::vector<Recovered> left, QWidget* parent);

  // What the user wants opened. Nothing when it is left for later or all was discarded.
  static std::optional<Recovered> Choose(std::vector<Recovered> left, QWidget* parent);

 private:
  void AddList();
  void AddButtons();
  const Recovered* Current() const;
  void ShowDifferences();
  void Discard();
  void Refresh();

  std::vector<Recovered> left_;  // by row
  QTreeWidget* list_ = nullptr;
  QPushButton* differences_ = nullptr;
};

}  // namespace xrpt
