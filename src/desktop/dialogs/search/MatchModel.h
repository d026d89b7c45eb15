// What a search found, as a list view shows it: the matches, or what replacing them would come to, each of which may be
// left out.
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "editor/ReportSearch.h"

namespace xrpt {

class MatchModel final : public QAbstractTableModel {
 public:
  enum Column { kWhere, kText, kAfter };
  // Of a cell of text: where in it the match begins and how long it is, in the toolkit's characters.
  static constexpr int kMatchBegin = Qt::UserRole + 1;
  static constexpr int kMatchLength = Qt::UserRole + 2;

  MatchModel(const ReportSearch& search, QObject* parent) : QAbstractTableModel(parent), search_(search) {}

  void ShowMatches();
  void ShowChanges();
  bool ShowsChanges() const { return showsChanges_; }
  // Those that were not left out.
  std::vector<TextChange> ChosenChanges() const;
  // The match of a row, or the first one of a row's change.
  std::size_t HitOf(int row) const;
  // The row of a match, or of the change it belongs to; -1 for none.
  int RowOf(std::size_t hit) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Shown {
    QString text;
    int begin = 0;
    int length = 0;
  };
  const TextPlace& PlaceOf(int row) const;
  QString WhereOf(int row) const;
  Shown MatchOf(int row) const;
  Shown TextOf(const QModelIndex& index) const;

  const ReportSearch& search_;
  bool showsChanges_ = false;
  std::vector<TextChange> changes_;
  std::vector<bool> chosen_;
};

}  // namespace xrpt
