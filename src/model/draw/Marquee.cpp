#include "model/draw/Marquee.h"

#include <algorithm>
#include <cmath>

#include "model/draw/DrawScale.h"

namespace xrpt {
namespace {

// `value` moved by whole periods into [0, period).
double Wrapped(double value, double period) {
  const double rest = std::fmod(value, period);
  return rest < 0.0 ? rest + period : rest;
}

double Scrolled(double from, double distance, const MarqueeTrack& track) {
  const double cycle = track.room + track.length;
  return cycle > 0.0 ? Wrapped(from + distance + track.length, cycle) - track.length : from;
}

// There and back between `low` and `high`; starting backwards is being on the way back already.
double Alternated(double from, double distance, double low, double high) {
  const double span = high - low;
  if (!(span > 0.0)) return from;
  const double start = std::clamp(from, low, high) - low;
  const double travelled = distance >= 0.0 ? start + distance : 2.0 * span - start - distance;
  const double phase = Wrapped(travelled, 2.0 * span);
  return low + (phase <= span ? phase : 2.0 * span - phase);
}

}  // namespace

bool MovesSideways(const Animation& animation) {
  return animation.direction == Direction::Left || animation.direction == Direction::Right;
}

double MarqueeDistance(const Animation& animation, std::int32_t milliseconds) {
  const std::int32_t delay = animation.scrollDelay < 1 ? 50 : animation.scrollDelay;
  const std::int32_t amount = std::max(animation.scrollAmount, 1);
  return std::floor(static_cast<double>(std::max(milliseconds, 0)) / delay) * amount * kPointsPerPixel;
}

double MarqueePosition(const Animation& animation, std::int32_t milliseconds, const MarqueeTrack& track) {
  if (animation.behavior == Behavior::None || milliseconds <= 0) return track.rest;
  const bool backwards = animation.direction == Direction::Left || animation.direction == Direction::Up;
  const double distance = MarqueeDistance(animation, milliseconds) * (backwards ? -1.0 : 1.0);
  if (animation.behavior == Behavior::Scroll) return Scrolled(track.rest, distance, track);
  const double slack = track.room - track.length;
  return Alternated(track.rest, distance, std::min(slack, 0.0), std::max(slack, 0.0));
}

}  // namespace xrpt
