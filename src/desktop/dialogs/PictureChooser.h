// The pictures of the images folder, with previews, to choose one from.
#pragma once

#include <QAbstractListModel>
#include <QDialog>
#include <QPixmap>
#include <QThreadPool>
#include <optional>
#include <string>
#include <vector>

class QLineEdit;
class QListView;
class QPushButton;

namespace xrpt {

// The pictures by name. Previews are made off the main thread, of what is looked at.
class PicturesModel final : public QAbstractListModel {
 public:
  static constexpr int kPreview = 96;  // pixels a side

  explicit PicturesModel(QObject* parent);
  ~PicturesModel() override;

  // Reads the folder again.
  void Reload();
  // Names that hold the text, in any case.
  void Filter(const QString& text);
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  const std::wstring& NameAt(int row) const { return rows_[shown_[static_cast<std::size_t>(row)]].name; }
  // -1: not among those shown.
  int RowOf(const std::wstring& name) const;

 private:
  struct Row {
    std::wstring name;
    bool isAsked = false;
    QPixmap preview;
  };

  void Ask(std::size_t row) const;
  void Take(const std::wstring& name, const QImage& preview);

  mutable std::vector<Row> rows_;
  std::vector<std::size_t> shown_;
  QString filter_;
  mutable QThreadPool workers_;
};

class PictureChooser final : public QDialog {
 public:
  // `current` is chosen to begin with.
  PictureChooser(const std::wstring& current, QWidget* parent);

  // The name of a picture, empty for none; nothing when cancelled.
  static std::optional<std::wstring> Choose(const std::wstring& current, QWidget* parent);

  std::wstring Chosen() const;

 private:
  void AddFiles();
  void ChooseNone();
  void Refresh();

  QLineEdit* filter_;
  QListView* list_;
  PicturesModel* model_;
  QPushButton* choose_ = nullptr;
  bool none_ = false;
};

}  // namespace xrpt
