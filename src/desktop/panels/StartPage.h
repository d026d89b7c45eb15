// What stands where pages stand while no report is open: new reports, those that were open last, those of the folder,
// and samples to begin from.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "platform/Files.h"

class QBoxLayout;
class QListWidget;

namespace xrpt {

class Actions;

class StartPage final : public QWidget {
 public:
  StartPage(const Actions& actions, QWidget* parent = nullptr);

  // Where samples are; without a folder, or with none in it, there is no list of them.
  void SetSamples(const Path& folder) { samplesFolder_ = folder; }
  // Looks again what there is.
  void Refresh();
  void FocusFirst();
  // It takes the room there is: what is open decides how narrow a window may be.
  QSize minimumSizeHint() const override { return {60, 60}; }

  // A report's file was chosen: to be opened, or to be the beginning of a new one.
  std::function<void(const Path&)> openWanted;
  std::function<void(const Path&)> copyWanted;
  std::function<void(bool isLandscape)> newWanted;

 private:
  using Chosen = std::function<void(const Path&)> StartPage::*;
  QListWidget* AddList(QBoxLayout& row, int titleId, Chosen chosen);
  void AddButtons(QBoxLayout& column, const Actions& actions);
  static void Fill(QListWidget& list, const std::vector<Path>& files, bool tellsFolder);

  Path samplesFolder_;
  QListWidget* recent_;
  QListWidget* folder_;
  QListWidget* samples_;
};

}  // namespace xrpt
