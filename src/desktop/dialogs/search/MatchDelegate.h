// Paints a cell of text with its match on the accent's colour.
#pragma once

#include <QStyledItemDelegate>

namespace xrpt {

class MatchDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace xrpt
