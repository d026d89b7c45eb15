// The pictures of the images folder, with previews, to choose one from.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QThreadPool>
#include <optional>
#include <unordered_map>

#include "desktop/dialogs/NameChooser.h"
#include "platform/Picture.h"

namespace xrpt {

// Previews are made off the main thread, of what is looked at.
class PicturesModel final : public NamesModel {
 public:
  static constexpr int kPreview = 96;  // pixels a side

  explicit PicturesModel(QObject* parent);
  ~PicturesModel() override;

  // Reads the folder again.
  void Reload();
  // Other pictures; previews that are known stay.
  void ShowNames(const std::vector<std::wstring>& names);
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  void Ask(const std::wstring& name) const;
  void Take(const std::wstring& name, const QImage& preview);

  mutable std::unordered_map<std::wstring, QPixmap> previews_;  // by name; empty while asked for
  mutable QThreadPool workers_;
};

// A picture as it is, or scaled down to a square of so many pixels. Null for one that cannot be had.
QImage FitPicture(PicturePtr picture, int side);

// A list of previews, side by side.
void ShowAsPictures(QListView& list);

class PictureChooser final : public NameChooser {
 public:
  // `current` is chosen to begin with.
  PictureChooser(const std::wstring& current, QWidget* parent);

  // The name of a picture, empty for none; nothing when cancelled.
  static std::optional<std::wstring> Choose(const std::wstring& current, QWidget* parent);

 private:
  void AddButtons();
  void AddFiles();

  PicturesModel* model_;
  bool none_ = false;
};

}  // namespace xrpt
