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

namespace xrpt {

class RVReportPage;

class Thumbnails final : public QObject {
 public:
  static constexpr int kSide = 72;  // of the square they fit into, canvas pixels

  explicit Thumbnails(QObject* parent);
  ~Thumbnails() override;

  // The picture as it was painted last; one of another state, told by its serial, is asked for. Null before the first.
  QPixmap Of(const RVReportPage& page, std::uint64_t serial, double scale);

  std::function<void()> painted;

 private:
  struct Entry {
    std::wstring id;  // of its page: another may come to stand at its address
    std::uint64_t serial = 0;
    double scale = 0.0;
    QPixmap picture;
  };
  void Ask(const RVReportPage& page, double scale);
  void Take(const RVReportPage* page, const std::wstring& id, const QImage& picture);

  std::map<const RVReportPage*, Entry> entries_;  // by address, never looked into
  QThreadPool worker_;
};

}  // namespace xrpt
