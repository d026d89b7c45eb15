// Small pictures of pages for lists, painted on another thread: a list shows what there is and is told when there is
// more.
#pragma once

#include <QObject>
#include <QPixmap>
#include <QThreadPool>
#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "canvas/RVUndo.h"

namespace xrpt {

class RVReportPage;

class Thumbnails final : public QObject {
 public:
  static constexpr int kSide = 72;  // of the square they fit into, canvas pixels

  explicit Thumbnails(QObject* parent);
  ~Thumbnails() override;

  // The picture as it was painted last; a new one is asked for when the page has changed since, or what all pages share
  // (`resources` counts that). Null before the first.
  QPixmap Of(const RVReportPage& page, std::uint64_t resources, double scale);

  std::function<void()> painted;

 private:
  struct Entry {
    std::wstring id;  // of its page: another may come to stand at its address
    RVUndo state;     // of the page when it was asked for
    std::uint64_t resources = 0;
    double scale = 0.0;
    QPixmap picture;
  };
  void Ask(const RVReportPage& page, double scale);
  void Take(const RVReportPage* page, const std::wstring& id, const QImage& picture);

  std::map<const RVReportPage*, Entry> entries_;  // by address, never looked into
  QThreadPool worker_;
};

}  // namespace xrpt
