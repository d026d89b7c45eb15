// A list whose rows are dragged to another place within it. It moves nothing itself: who keeps what the rows stand for
// is told, and shows the list anew.
#pragma once

#include <QAbstractListModel>
#include <functional>
#include <vector>

namespace xrpt {

class DraggedRows : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  // These rows, ascending, are to stand before another; the count of rows puts them last.
  std::function<void(const std::vector<std::size_t>& rows, std::size_t before)> dropped;

  Qt::ItemFlags flags(const QModelIndex& index) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;
};

}  // namespace xrpt
