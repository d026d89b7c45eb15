#include "desktop/panels/DraggedRows.h"

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>
#include <algorithm>

namespace xrpt {

namespace {

// Rows of one list say nothing to another.
QString TypeOf(const QAbstractListModel& model) {
  return QStringLiteral("application/x-xrpt-rows-%1").arg(reinterpret_cast<quintptr>(&model));
}

}  // namespace

Qt::ItemFlags DraggedRows::flags(const QModelIndex& index) const {
  const Qt::ItemFlags plain = QAbstractListModel::flags(index);
  return index.isValid() ? plain | Qt::ItemIsDragEnabled : plain | Qt::ItemIsDropEnabled;
}

QStringList DraggedRows::mimeTypes() const { return {TypeOf(*this)}; }

QMimeData* DraggedRows::mimeData(const QModelIndexList& indexes) const {
  std::vector<int> rows;
  for (const QModelIndex& index : indexes) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  for (const int row : rows) out << row;
  auto* data = new QMimeData;
  data->setData(TypeOf(*this), bytes);
  return data;
}

// False, so that nobody takes the rows away from where they were.
bool DraggedRows::dropMimeData(const QMimeData* data, Qt::DropAction, int row, int, const QModelIndex& parent) {
  if (!data || !data->hasFormat(TypeOf(*this))) return false;
  const int count = rowCount();
  const int before = row >= 0 ? row : parent.isValid() ? parent.row() : count;
  QDataStream in(data->data(TypeOf(*this)));
  std::vector<std::size_t> rows;
  for (int from = 0; !in.atEnd();) {
    in >> from;
    if (from >= 0 && from < count) rows.push_back(static_cast<std::size_t>(from));
  }
  if (dropped && !rows.empty()) dropped(rows, static_cast<std::size_t>(std::clamp(before, 0, count)));
  return false;
}

}  // namespace xrpt
