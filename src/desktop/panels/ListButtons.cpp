#include "desktop/panels/ListButtons.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QToolButton>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"

namespace xrpt {

namespace {
constexpr int kFewestLines = 3;
constexpr int kMostLines = 8;
}  // namespace

ListButtons::ListButtons(QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  add_ = AddButton("plus", text::kAddEntry, {});
  remove_ = AddButton("minus", text::kRemoveEntry, [this] { removed(); });
  up_ = AddButton("move-up", text::kMoveEntryUp, [this] { moved(-1); });
  down_ = AddButton("move-down", text::kMoveEntryDown, [this] { moved(1); });
  row->addStretch(1);
}

QToolButton* ListButtons::AddButton(const char* icon, int textId, std::function<void()> act) {
  auto* button = new QToolButton(this);
  button->setProperty("flat", true);
  button->setIcon(ThemedIcon(QLatin1String(icon)));
  button->setToolTip(Translated(textId));
  button->setAccessibleName(Translated(textId));
  button->setFocusPolicy(Qt::StrongFocus);
  if (act) connect(button, &QToolButton::clicked, this, std::move(act));
  layout()->addWidget(button);
  return button;
}

void ListButtons::Refresh(std::size_t chosen, std::size_t first, std::size_t count) {
  remove_->setEnabled(chosen > 0);
  up_->setEnabled(chosen == 1 && first > 0);
  down_->setEnabled(chosen == 1 && first + 1 < count);
}

void FitHeight(QListWidget& list) {
  const int lines = std::clamp(list.count(), kFewestLines, kMostLines);
  const int line = list.count() > 0 ? list.sizeHintForRow(0) : list.fontMetrics().height();
  list.setFixedHeight(lines * line + 2 * list.frameWidth() + 2);
  // A long line is cut and told by its tip; a scroll bar would lie over the last line.
  list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  for (int row = 0; row < list.count(); ++row) {
    list.item(row)->setSizeHint({1, line});
    list.item(row)->setToolTip(list.item(row)->text());
  }
}

}  // namespace xrpt
