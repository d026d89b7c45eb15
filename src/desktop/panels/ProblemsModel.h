// The rows of the list of problems for the toolkit's views, made when they are looked at.
#pragma once

#include <QAbstractTableModel>

#include "editor/ProblemList.h"

namespace xrpt {

class RVEditControlWnd;

class ProblemsModel final : public QAbstractTableModel {
 public:
  enum Column { kMessage, kCard, kPage, kColumns };

  ProblemsModel(const RVEditControlWnd& frame, const ProblemList& problems, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : kColumns; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  // The rows are others.
  void Reset();
  // Without rows one line says that there are none, and can be neither chosen nor reached.
  bool IsEmpty() const { return problems_.Size() == 0; }

 private:
  QString TextOf(std::size_t row, int column) const;
  QString EmptyText() const;

  const RVEditControlWnd& frame_;
  const ProblemList& problems_;
  int rows_ = 1;  // as of the last reset
};

}  // namespace xrpt
