#include "desktop/panels/CardMarks.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "desktop/TextIds.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Texts.h"

namespace xrpt {

namespace {

constexpr int kSide = 16;
constexpr int kGap = 4;
constexpr int kWidth = 2 * (kSide + kGap);
constexpr double kFaint = 0.35;  // of what only offers itself

struct Mark {
  QRect (*place)(const QRect& line);
  int bit;
  const char* onIcon;
  const char* offIcon;
  int onTextId;  // what a click does when it is on
  int offTextId;
  std::function<void(std::size_t, bool)> CardMarks::*toggled;
};

constexpr Mark kMarks[] = {
    {CardMarks::HideButton, 1, "hide", "preview", text::kShowInList, text::kHideInList, &CardMarks::hidden},
    {CardMarks::LockButton, 2, "lock", "unlock", text::kUnlockInList, text::kLockInList, &CardMarks::locked}};

QRect ButtonAt(const QRect& line, int fromRight) {
  return {line.right() + 1 - fromRight * (kSide + kGap), line.top() + (line.height() - kSide) / 2, kSide, kSide};
}

const Mark* MarkAt(const QRect& line, QPoint at) {
  for (const Mark& mark : kMarks) {
    if (mark.place(line).adjusted(-2, -2, 2, 2).contains(at)) return &mark;
  }
  return nullptr;
}

bool IsOn(const Mark& mark, const QModelIndex& index) { return index.data(CardMarks::kNoteRole).toInt() & mark.bit; }

}  // namespace

CardMarks::CardMarks(QAbstractItemView& list) : QStyledItemDelegate(&list) {
  list.setMouseTracking(true);
  list.viewport()->setAttribute(Qt::WA_Hover);
}

QRect CardMarks::HideButton(const QRect& line) { return ButtonAt(line, 2); }
QRect CardMarks::LockButton(const QRect& line) { return ButtonAt(line, 1); }

// The line as always, its text cut before the buttons, and its ground under them too.
void CardMarks::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const bool isPointedAt = option.state.testFlag(QStyle::State_MouseOver);
  if (!isPointedAt && index.data(kNoteRole).toInt() == 0) return QStyledItemDelegate::paint(painter, option, index);
  QStyleOptionViewItem shown = option;
  initStyleOption(&shown, index);
  const int room = option.rect.width() - shown.decorationSize.width() - kWidth - 4 * kGap;
  shown.text = shown.fontMetrics.elidedText(shown.text, Qt::ElideRight, room);
  const QWidget* widget = option.widget;
  widget->style()->drawControl(QStyle::CE_ItemViewItem, &shown, painter, widget);
  for (const Mark& mark : kMarks) {
    const bool isOn = IsOn(mark, index);
    if (!isOn && !isPointedAt) continue;
    painter->setOpacity(isOn ? 1.0 : kFaint);
    ThemedIcon(QLatin1String(isOn ? mark.onIcon : mark.offIcon)).paint(painter, mark.place(option.rect));
  }
  painter->setOpacity(1.0);
}

// The press has chosen the line, as any press does; it is no beginning of a new name.
bool CardMarks::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                            const QModelIndex& index) {
  const bool isPress = event->type() == QEvent::MouseButtonPress;
  const bool isRelease = event->type() == QEvent::MouseButtonRelease;
  if (!isPress && !isRelease && event->type() != QEvent::MouseButtonDblClick)
    return QStyledItemDelegate::editorEvent(event, model, option, index);
  const auto& mouse = *static_cast<QMouseEvent*>(event);
  const Mark* mark = MarkAt(option.rect, mouse.position().toPoint());
  if (!mark || mouse.button() != Qt::LeftButton) return QStyledItemDelegate::editorEvent(event, model, option, index);
  const auto& toggled = this->*mark->toggled;
  if (isRelease && toggled) toggled(static_cast<std::size_t>(index.row()), !IsOn(*mark, index));
  return true;
}

bool CardMarks::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                          const QModelIndex& index) {
  const Mark* mark = index.isValid() ? MarkAt(option.rect, event->pos()) : nullptr;
  if (!mark || event->type() != QEvent::ToolTip) return QStyledItemDelegate::helpEvent(event, view, option, index);
  QToolTip::showText(event->globalPos(), Translated(IsOn(*mark, index) ? mark->onTextId : mark->offTextId), view);
  return true;
}

}  // namespace xrpt
