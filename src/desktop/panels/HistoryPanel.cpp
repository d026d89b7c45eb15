#include "desktop/panels/HistoryPanel.h"

#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "canvas/UndoTexts.h"
#include "desktop/TextIds.h"
#include "desktop/look/Texts.h"
#include "desktop/look/Theme.h"
#include "editor/RVEditControlWnd.h"

namespace xrpt {

HistoryPanel::HistoryPanel(RVEditControlWnd& frame, QWidget* parent)
    : QWidget(parent), frame_(frame), list_(new QListWidget(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  list_->setAccessibleName(Translated(text::kHistory));
  list_->setFrameShape(QFrame::NoFrame);
  list_->setUniformItemSizes(true);
  column->addWidget(list_);
  const auto go = [this](QListWidgetItem* item) { GoTo(list_->row(item)); };
  connect(list_, &QListWidget::itemClicked, this, go);
  connect(list_, &QListWidget::itemActivated, this, go);
}

void HistoryPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Refresh();
}

void HistoryPanel::Refresh() {
  if (!isVisible()) return;
  const std::vector<UndoName> done = frame_.History().DoneNames();
  const std::vector<UndoName> undone = frame_.History().UndoneNames();
  if (list_->count() > 0 && done == done_ && undone == undone_) return;
  done_ = done;
  undone_ = undone;
  const QSignalBlocker quiet(list_);
  list_->clear();
  list_->addItem(Translated(text::kHistoryBegin));
  for (const UndoName& name : done) list_->addItem(ToQString(UndoText(name)));
  for (const UndoName& name : undone) {
    list_->addItem(ToQString(UndoText(name)));
    list_->item(list_->count() - 1)->setForeground(CurrentTheme().muted);
  }
  list_->setCurrentRow(static_cast<int>(done.size()), QItemSelectionModel::ClearAndSelect);
  list_->scrollToItem(list_->currentItem());
}

void HistoryPanel::GoTo(int row) {
  if (beforeMove) beforeMove();
  auto steps = row - static_cast<int>(frame_.History().DoneNames().size());
  for (; steps < 0 && frame_.Undo(); ++steps) {
  }
  for (; steps > 0 && frame_.Redo(); --steps) {
  }
  if (moved) moved();
}

}  // namespace xrpt
