// The plant's variables to choose one from: a filter over devices and variables, by id and by name.
#pragma once

#include <QAbstractListModel>
#include <QDialog>
#include <optional>
#include <string>
#include <vector>

class QLineEdit;
class QListView;
class QPushButton;

namespace xrpt {

// All variables of the catalogue, or those that match a filter.
class VariablesModel final : public QAbstractListModel {
 public:
  explicit VariablesModel(QObject* parent);

  // Rows whose device or variable holds every word of the text, in any case.
  void Filter(const QString& text);
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  // "DEVICE.VARIABLE".
  const std::wstring& NameAt(int row) const { return rows_[shown_[static_cast<std::size_t>(row)]].name; }
  // -1: not among those shown.
  int RowOf(const std::wstring& name) const;

 private:
  struct Row {
    std::wstring name;
    QString label;
    QString folded;  // what the filter looks in
  };

  std::vector<Row> rows_;
  std::vector<std::size_t> shown_;
};

class VariableChooser final : public QDialog {
 public:
  // `current` is chosen to begin with.
  VariableChooser(const std::wstring& current, QWidget* parent);

  // Nothing when cancelled.
  static std::optional<std::wstring> Choose(const std::wstring& current, QWidget* parent);

  std::wstring Chosen() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Refresh();

  QLineEdit* filter_;
  QListView* list_;
  VariablesModel* model_;
  QPushButton* choose_ = nullptr;
};

}  // namespace xrpt
