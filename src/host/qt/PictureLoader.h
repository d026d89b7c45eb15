// Prepares pictures in a thread of its own, so that a page is shown before its pictures are there and the user goes on
// meanwhile. What was asked for first is prepared first.
#pragma once

#include <QImage>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "platform/Picture.h"

namespace xrpt {

// The picture's pixels at a size (an empty one: its own), null when it cannot be had. In any thread.
QImage PreparedPicture(const PicturePtr& picture, QSize size);

class PictureLoader {
 public:
  struct Prepared {
    PicturePtr picture;
    QSize size;
    QImage image;
  };
  // Called in the loader's thread when something has arrived and nothing was waiting to be taken.
  explicit PictureLoader(std::function<void()> arrived);
  ~PictureLoader();
  PictureLoader(const PictureLoader&) = delete;
  PictureLoader& operator=(const PictureLoader&) = delete;

  // What is being prepared, or waits to be taken, is not asked for again.
  void Ask(const PicturePtr& picture, QSize size);
  // Takes back what was not begun.
  void Clear();
  std::vector<Prepared> TakeArrived();

 private:
  void Run(const std::stop_token& stop);

  std::function<void()> arrived_;
  std::mutex mutex_;
  std::condition_variable_any asked_;
  std::deque<Prepared> queue_;  // the first of them is being prepared
  bool isBusy_ = false;
  std::vector<Prepared> done_;
  std::jthread thread_;
};

}  // namespace xrpt
