#include "desktop/dialogs/search/MatchDelegate.h"

#include <QTextLayout>

#include "desktop/dialogs/search/MatchModel.h"
#include "desktop/look/Theme.h"

namespace xrpt {

namespace {
constexpr int kMargin = 5;

QTextLayout::FormatRange Mark(const QModelIndex& index) {
  QTextLayout::FormatRange mark;
  mark.start = index.data(MatchModel::kMatchBegin).toInt();
  mark.length = index.data(MatchModel::kMatchLength).toInt();
  mark.format.setBackground(CurrentTheme().accent);
  mark.format.setForeground(CurrentTheme().onAccent);
  return mark;
}
}  // namespace

void MatchDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  if (index.data(MatchModel::kMatchLength).toInt() == 0) return QStyledItemDelegate::paint(painter, option, index);
  QStyleOptionViewItem ground = option;
  initStyleOption(&ground, index);
  const QString text = std::exchange(ground.text, QString());
  const QStyle* style = ground.widget ? ground.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &ground, painter, ground.widget);
  QTextLayout layout(text, ground.font);
  layout.setFormats({Mark(index)});
  layout.beginLayout();
  QTextLine line = layout.createLine();
  layout.endLayout();
  const QRect place = ground.rect.adjusted(kMargin, 0, -kMargin, 0);
  painter->save();
  painter->setClipRect(place);
  painter->setPen(ground.palette.color(QPalette::Text));
  layout.draw(painter, QPointF(place.left(), place.top() + (place.height() - line.height()) / 2.0));
  painter->restore();
}

}  // namespace xrpt
