#include "model/draw/AnalogScale.h"

#include <algorithm>
#include <cmath>

#include "platform/SampleData.h"

namespace xrpt {
namespace {

constexpr double kLargestNumber = 1e15;

// Texts of one side's thresholds, as shares of the way from the scale's middle outwards.
struct Side {
  const std::wstring& preAlarm;
  const std::wstring& alarm;
};

std::optional<double> NumberOf(const std::wstring& text) {
  const auto number = ReadWholeNumber(text);
  if (!number || std::abs(*number) > kLargestNumber) return std::nullopt;
  return number;
}

class ScaleMaker {
 public:
  ScaleMaker(const RVAnalogBar& card, const NumberSeparators& separators) : card_(card), separators_(separators) {}

  AnalogScale Normal() {
    low_ = NumberOf(card_.minValue).value_or(0.0);
    high_ = NumberOf(card_.maxValue).value_or(low_ + 100.0);
    if (high_ < low_) std::swap(low_, high_);
    if (high_ == low_) high_ = low_ + 1.0;
    Mark(0.0, Number(low_));
    Mark(1.0, Number(high_));
    const auto at = [this](double number) { return (number - low_) / (high_ - low_); };
    Bands(Watches(BarBands::Min), Watches(BarBands::Max), LowSide(), HighSide(), at, at);
    ShowValue(0.0);
    scale_.valueText = Number(low_ + (high_ - low_) * scale_.value, true);
    return std::move(scale_);
  }

  AnalogScale PowerFactor() {
    const double inductive = PowerFactorEnd(card_.minValue, 0.8);
    const double capacitive = PowerFactorEnd(card_.maxValue, inductive);
    Mark(0.0, Number(inductive) + L" ind");
    Mark(1.0, Number(capacitive) + L" cap");
    Mark(0.5, L"1");
    const auto left = [inductive](double pf) { return 0.5 * (std::abs(pf) - inductive) / (1.0 - inductive); };
    const auto right = [capacitive](double pf) { return 1.0 - 0.5 * (std::abs(pf) - capacitive) / (1.0 - capacitive); };
    const Side low = card_.type == BarBands::Max ? HighSide() : LowSide();
    const Side high = card_.type == BarBands::Min ? LowSide() : HighSide();
    Bands(true, true, low, high, left, right);
    ShowValue(0.5);
    // Loads are inductive far more often than not.
    scale_.value = std::min(scale_.value, 0.49);
    scale_.valueText = Number(inductive + scale_.value * 2.0 * (1.0 - inductive), true) + L" ind";
    return std::move(scale_);
  }

 private:
  Side LowSide() const { return {card_.preMinValue, card_.alarmMinValue}; }
  Side HighSide() const { return {card_.preMaxValue, card_.alarmMaxValue}; }
  bool Watches(BarBands side) const { return card_.type == BarBands::MaxMin || card_.type == side; }

  static double PowerFactorEnd(const std::wstring& text, double otherwise) {
    const double end = std::abs(NumberOf(text).value_or(1.0));
    return end < 1.0 ? end : otherwise;
  }

  std::wstring Number(double value, bool everyDecimal = false) const {
    const std::int32_t decimals = std::clamp(card_.decimals, 0, 9);
    return FormatDouble(value, {-1, decimals, false, false, everyDecimal}, separators_);
  }
  void Mark(double at, const std::wstring& text) { scale_.marks.push_back({at, text}); }

  // Where a threshold stands, kept inside the scale; `usual` for an expression, `end` for none.
  template <class Position>
  double Threshold(const std::wstring& text, double usual, double end, const Position& position) {
    if (text.empty()) return end;
    const auto number = NumberOf(text);
    const double at = number ? std::clamp(position(*number), 0.0, 1.0) : usual;
    Mark(at, number ? Number(*number) : text);
    return at;
  }

  template <class Left, class Right>
  void Bands(bool watchesLow, bool watchesHigh, Side low, Side high, const Left& left, const Right& right) {
    double cuts[] = {0.0, 0.0, 1.0, 1.0};
    if (watchesLow) {
      cuts[0] = Threshold(low.alarm, 0.1, 0.0, left);
      cuts[1] = Threshold(low.preAlarm, 0.2, cuts[0], left);
    }
    if (watchesHigh) {
      cuts[3] = Threshold(high.alarm, 0.9, 1.0, right);
      cuts[2] = Threshold(high.preAlarm, 0.8, cuts[3], right);
    }
    // Thresholds in the wrong order do not overlap; what comes first from the low end wins.
    for (std::size_t i = 1; i < 4; ++i) cuts[i] = std::max(cuts[i], cuts[i - 1]);
    const BandLevel levels[] = {BandLevel::Alarm, BandLevel::PreAlarm, BandLevel::Normal, BandLevel::PreAlarm,
                                BandLevel::Alarm};
    double from = 0.0;
    for (std::size_t i = 0; i < 5; ++i) {
      const double to = i < 4 ? cuts[i] : 1.0;
      if (to > from || (i == 2 && scale_.bands.empty())) scale_.bands.push_back({from, to, levels[i]});
      from = to;
    }
    normalFrom_ = cuts[1];
    normalTo_ = cuts[2];
  }

  // A sample that gives no alarm.
  void ShowValue(double origin) {
    scale_.origin = origin;
    scale_.value = normalFrom_ + (normalTo_ - normalFrom_) * (0.25 + 0.5 * SampleShape(card_.variable, 0));
  }

  const RVAnalogBar& card_;
  const NumberSeparators& separators_;
  AnalogScale scale_;
  double low_ = 0.0;
  double high_ = 1.0;
  double normalFrom_ = 0.0;
  double normalTo_ = 1.0;
};

}  // namespace

AnalogScale ScaleOf(const RVAnalogBar& card, const NumberSeparators& separators) {
  ScaleMaker maker(card, separators);
  return card.typeVar == VariableKind::Pf ? maker.PowerFactor() : maker.Normal();
}

BandLevel LevelAt(const AnalogScale& scale, double at) {
  for (const BarBand& band : scale.bands) {
    if (at <= band.to) return band.level;
  }
  return scale.bands.empty() ? BandLevel::Normal : scale.bands.back().level;
}

}  // namespace xrpt
