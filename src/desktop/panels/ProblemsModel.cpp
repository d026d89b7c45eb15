#include "desktop/panels/ProblemsModel.h"

#include "desktop/ProblemTexts.h"
#include "desktop/TextIds.h"
#include "desktop/look/SeverityIcon.h"
#include "desktop/look/Texts.h"
#include "editor/ProblemCards.h"

namespace xrpt {

ProblemsModel::ProblemsModel(const RVEditControlWnd& frame, const ProblemList& problems, QObject* parent)
    : QAbstractTableModel(parent), frame_(frame), problems_(problems) {}

int ProblemsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

QVariant ProblemsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
  const auto row = static_cast<std::size_t>(index.row());
  if (row >= problems_.Size()) {
    return isText && index.row() == 0 && index.column() == kMessage ? QVariant(EmptyText()) : QVariant();
  }
  if (isText) return TextOf(row, index.column());
  if (role == Qt::DecorationRole && index.column() == kMessage) return SeverityIcon(problems_.SeverityOf(row));
  if (role == Qt::AccessibleTextRole && index.column() == kMessage) {
    return Translated(SeverityTextId(problems_.SeverityOf(row))) + QStringLiteral(": ") + TextOf(row, kMessage);
  }
  return {};
}

QString ProblemsModel::TextOf(std::size_t row, int column) const {
  if (column == kMessage) return ToQString(problems_.MessageOf(row));
  const Problem* problem = problems_.ProblemOf(row);
  if (!problem) return {};
  if (column == kCard) return ToQString(CardTitle(frame_, *problem));
  const std::optional<CardSpot> spot = FindCard(frame_, *problem);
  const int page = spot ? static_cast<int>(spot->page) + 1 : problem->finding.place.page;
  return page > 0 ? QString::number(page) : QString();
}

QString ProblemsModel::EmptyText() const {
  const std::size_t hidden = problems_.CountAll();
  return hidden == 0 ? Translated(text::kNoProblems) : Translated(text::kHiddenProblems, QString::number(hidden));
}

QVariant ProblemsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  constexpr int kTitles[] = {text::kProblem, text::kProblemCard, text::kProblemPage};
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= kColumns) return {};
  return Translated(kTitles[section]);
}

Qt::ItemFlags ProblemsModel::flags(const QModelIndex& index) const {
  const bool isRow = index.isValid() && static_cast<std::size_t>(index.row()) < problems_.Size();
  return isRow ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

void ProblemsModel::Reset() {
  beginResetModel();
  rows_ = std::max(1, static_cast<int>(problems_.Size()));
  endResetModel();
}

}  // namespace xrpt
