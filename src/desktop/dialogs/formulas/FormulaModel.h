// The table of formulas as a list view shows it: name, text, the value it has now, and how many texts use it. Values
// are computed for the rows that are seen.
#pragma once

#include <QAbstractTableModel>
#include <optional>
#include <vector>

#include "formulas/CDlgFormules.h"

namespace xrpt {

class FormulaModel final : public QAbstractTableModel {
 public:
  enum Column { kName, kText, kValue, kUses, kColumns };

  FormulaModel(const CDlgFormules& formulas, QObject* parent);

  // The table changed.
  void Reload();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString ShownIn(std::size_t row, int column) const;
  const QString& ValueOf(std::size_t row) const;

  const CDlgFormules& formulas_;
  mutable std::vector<std::optional<QString>> values_;
  XmlDocument document_;
};

}  // namespace xrpt
