// The two buttons at the end of a line of the list of cards: one hides the card on the editor's page, one locks it.
// They are seen on the line under the pointer, and on every card that is hidden or locked.
#pragma once

#include <QStyledItemDelegate>
#include <functional>

#include "canvas/CardNotes.h"

class QAbstractItemView;

namespace xrpt {

class CardMarks final : public QStyledItemDelegate {
 public:
  static constexpr int kNoteRole = Qt::UserRole + 1;  // 1 hidden, 2 locked, 3 both

  explicit CardMarks(QAbstractItemView& list);

  // A card, by its line, is hidden or locked, or is so no more.
  std::function<void(std::size_t card, bool on)> hidden;
  std::function<void(std::size_t card, bool on)> locked;

  static int Code(const CardNote& note) { return (note.hidden ? 1 : 0) + (note.locked ? 2 : 0); }
  // Where in a line the two buttons are.
  static QRect HideButton(const QRect& line);
  static QRect LockButton(const QRect& line);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
};

}  // namespace xrpt
