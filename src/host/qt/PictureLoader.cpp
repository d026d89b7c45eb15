#include "host/qt/PictureLoader.h"

#include <algorithm>
#include <utility>

#include "host/qt/QtPictures.h"

namespace xrpt {

QImage PreparedPicture(const PicturePtr& picture, QSize size) {
  const PicturePtr pixels = WithPixels(picture, size.width(), size.height());
  const QImage image = pixels ? ToImage(*pixels) : QImage();
  const bool fits = image.isNull() || size.isEmpty() || image.size() == size;
  return fits ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

PictureLoader::PictureLoader(std::function<void()> arrived)
    : arrived_(std::move(arrived)), thread_([this](const std::stop_token& stop) { Run(stop); }) {}

PictureLoader::~PictureLoader() { Clear(); }

void PictureLoader::Ask(const PicturePtr& picture, QSize size) {
  const auto isAsked = [&](const Prepared& other) { return other.picture == picture && other.size == size; };
  const std::lock_guard guard(mutex_);
  const bool isComing = isBusy_ && isAsked(queue_.front());
  if (isComing || std::any_of(done_.begin(), done_.end(), isAsked)) return;
  queue_.push_back({picture, size, {}});
  asked_.notify_one();
}

void PictureLoader::Clear() {
  const std::lock_guard guard(mutex_);
  queue_.erase(queue_.begin() + (isBusy_ ? 1 : 0), queue_.end());
}

std::vector<PictureLoader::Prepared> PictureLoader::TakeArrived() {
  const std::lock_guard guard(mutex_);
  return std::exchange(done_, {});
}

void PictureLoader::Run(const std::stop_token& stop) {
  std::unique_lock guard(mutex_);
  while (asked_.wait(guard, stop, [this] { return !queue_.empty(); })) {
    isBusy_ = true;
    Prepared next = queue_.front();
    guard.unlock();
    next.image = PreparedPicture(next.picture, next.size);
    guard.lock();
    isBusy_ = false;
    queue_.pop_front();
    done_.push_back(std::move(next));
    if (done_.size() > 1 || stop.stop_requested()) continue;
    guard.unlock();
    arrived_();
    guard.lock();
  }
}

}  // namespace xrpt
