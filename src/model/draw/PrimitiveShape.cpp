#include "model/draw/PrimitiveShape.h"

#include <cmath>
#include <numbers>

namespace xrpt {
namespace {

struct Turn {
  double cosine;
  double sine;
};

// Quarter turns are exact, so that an upright line is upright.
Turn TurnOf(double degrees) {
  const double angle = std::isfinite(degrees) ? std::fmod(degrees, 360.0) * std::numbers::pi / 180.0 : 0.0;
  const auto clean = [](double v) { return std::abs(v) < 1e-12 ? 0.0 : v; };
  return {clean(std::cos(angle)), clean(std::sin(angle))};
}

SizeD Shrunk(SizeD card, double turnedWidth, double turnedHeight) {
  if (!(turnedWidth > 0.0 && turnedHeight > 0.0)) return {};
  const double scale = std::min({1.0, card.width / turnedWidth, card.height / turnedHeight});
  return {card.width * scale, card.height * scale};
}

}  // namespace

std::pair<PointD, PointD> LineThrough(SizeD card, double degrees) {
  const Turn turn = TurnOf(degrees);
  const double along = std::abs(turn.cosine);
  const double across = std::abs(turn.sine);
  double half = along > 0.0 ? card.width * 0.5 / along : card.height * 0.5;
  if (across > 0.0) half = std::min(half, card.height * 0.5 / across);
  return {{-half * turn.cosine, half * turn.sine}, {half * turn.cosine, -half * turn.sine}};
}

SizeD TurnedBoxInside(SizeD card, double degrees) {
  const Turn turn = TurnOf(degrees);
  const double along = std::abs(turn.cosine);
  const double across = std::abs(turn.sine);
  return Shrunk(card, card.width * along + card.height * across, card.width * across + card.height * along);
}

SizeD TurnedEllipseInside(SizeD card, double degrees) {
  const Turn turn = TurnOf(degrees);
  return Shrunk(card, std::hypot(card.width * turn.cosine, card.height * turn.sine),
                std::hypot(card.width * turn.sine, card.height * turn.cosine));
}

}  // namespace xrpt
