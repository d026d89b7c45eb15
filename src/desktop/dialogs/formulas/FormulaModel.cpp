#include "desktop/dialogs/formulas/FormulaModel.h"

#include "desktop/dialogs/DialogTexts.h"
#include "desktop/look/Texts.h"
#include "formulas/ExpressionJudgement.h"

namespace xrpt {

FormulaModel::FormulaModel(const CDlgFormules& formulas, QObject* parent)
    : QAbstractTableModel(parent), formulas_(formulas) {
  Reload();
}

void FormulaModel::Reload() {
  beginResetModel();
  values_.assign(formulas_.Rows().size(), std::nullopt);
  document_ = formulas_.GetXmlDocFromList();
  endResetModel();
}

int FormulaModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(values_.size());
}

int FormulaModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColumns; }

QVariant FormulaModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  if (row >= values_.size()) return {};
  const bool isNumber = index.column() == kValue || index.column() == kUses;
  if (role == Qt::TextAlignmentRole && isNumber) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return ShownIn(row, index.column());
  return {};
}

QString FormulaModel::ShownIn(std::size_t row, int column) const {
  const Formula& formula = formulas_.Rows()[row];
  switch (column) {
    case kName:
      return ToQString(formula.name);
    case kText:
      return ToQString(formula.text);
    case kValue:
      return ValueOf(row);
    default:
      return QString::number(formulas_.UsesOfRow(row));
  }
}

const QString& FormulaModel::ValueOf(std::size_t row) const {
  if (!values_[row]) values_[row] = ToQString(JudgeInTable(formulas_.Rows()[row].text, document_).shown);
  return *values_[row];
}

QVariant FormulaModel::headerData(int section, Qt::Orientation orientation, int role) const {
  constexpr int kTitles[] = {text::kNameColumn, text::kTextColumn, text::kFormulaValue, text::kUses};
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return Translated(kTitles[section]);
}

}  // namespace xrpt
