// The first page of a report file, small. It is read and painted a moment after it was asked for, so that going through
// a list stays quick.
#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>
#include <map>

#include "platform/Files.h"

namespace xrpt {

class ReportPreview final : public QWidget {
 public:
  // Larger files would keep the user waiting.
  static constexpr std::uintmax_t kLargest = 8u << 20;  // bytes

  explicit ReportPreview(QWidget* parent);

  // An empty path shows nothing.
  void Show(const Path& file, const FileStamp& stamp);
  bool HasPicture() const { return !picture_.isNull(); }

  QSize sizeHint() const override { return {210, 280}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Known {
    FileStamp stamp;
    QImage picture;
  };

  void Make();
  QString Notice() const;

  Path file_;
  FileStamp stamp_;
  QImage picture_;
  std::map<Path, Known> known_;
  QTimer moment_;
};

}  // namespace xrpt
