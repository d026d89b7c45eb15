// A list of names to choose one from, narrowed down by a filter: what the choosers of variables and pictures share.
#pragma once

#include <QAbstractListModel>
#include <QDialog>
#include <string>
#include <vector>

class QDialogButtonBox;
class QLineEdit;
class QListView;
class QPushButton;

namespace xrpt {

// All names, or those that match a filter.
class NamesModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  // Rows whose label holds every word of the text, in any case.
  void Filter(const QString& text);
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  const std::wstring& NameAt(int row) const { return rows_[shown_[static_cast<std::size_t>(row)]].name; }
  // -1: not among those shown.
  int RowOf(const std::wstring& name) const;

 protected:
  void Clear() { rows_.clear(); }
  void Add(std::wstring name, const QString& label) { rows_.push_back({std::move(name), label, label.toCaseFolded()}); }
  // After rows were added: shows those that match the filter there is.
  void FilterAgain() { Filter(filter_); }

 private:
  struct Row {
    std::wstring name;
    QString label;
    QString folded;  // what the filter looks in
  };

  std::vector<Row> rows_;
  std::vector<std::size_t> shown_;
  QString filter_;
};

class NameChooser : public QDialog {
 public:
  // Empty when no row is chosen.
  std::wstring Chosen() const;

 protected:
  struct Texts {
    int title;
    int filter;
    int list;
  };
  // The model must outlive the dialog, or belong to it.
  NameChooser(NamesModel& model, const Texts& texts, QWidget* parent);

  void Choose(const std::wstring& name);
  QListView& List() { return *list_; }
  QDialogButtonBox& Buttons() { return *buttons_; }
  void ClearFilter();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Refresh();

  NamesModel& model_;
  QLineEdit* filter_;
  QListView* list_;
  QDialogButtonBox* buttons_;
};

}  // namespace xrpt
