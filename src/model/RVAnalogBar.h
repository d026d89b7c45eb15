// One variable as a bar against its scale and its alarm thresholds.
#pragma once

#include "model/CommonRows.h"
#include "model/RVCardControl.h"

namespace xrpt {

enum class VariableKind { Normal = 0, Pf = 1 };
enum class BarBands { MaxMin = 0, Max = 1, Min = 2 };
enum class BarOrientation { Horizontal = 0, Vertical = 1 };
// Where the value is written: above or left of the bar, below or right of it.
enum class ValuePosition { Before = 0, After = 1 };

inline constexpr Word kVariableKindWords[] = {{"NORMAL", 0, 60173}, {"PF", 1, 60174}};
inline constexpr Word kBarBandsWords[] = {{"MAX_MIN", 0, 60175}, {"MAX", 1, 60176}, {"MIN", 2, 60177}};
inline constexpr Word kBarOrientationWords[] = {{"H", 0, 60180}, {"V", 1, 60181}};
inline constexpr Word kHorizontalBarPositionWords[] = {{"TOP", 0, 60103}, {"BOTTOM", 1, 60104}};
inline constexpr Word kVerticalBarPositionWords[] = {{"LEFT", 0, 60100}, {"RIGHT", 1, 60102}};

class RVAnalogBar : public RVCardControl {
 public:
  using RVCardControl::RVCardControl;

  static const CardClass& Class();
  const CardClass& GetRuntimeClass() const override { return Class(); }
  std::unique_ptr<RVCardControl> GetClone() const override { return std::make_unique<RVAnalogBar>(*this); }

  void Draw(Graphics& graphics, const tagDraw& draw) const override;
  bool IsVertical() const { return orientation == BarOrientation::Vertical; }

  VariableKind typeVar = VariableKind::Normal;
  BarBands type = BarBands::MaxMin;
  BarOrientation orientation = BarOrientation::Horizontal;
  ValuePosition positionValue = ValuePosition::Before;
  std::wstring variable;
  std::int32_t decimals = 3;
  // Numbers or expressions, kept as text.
  std::wstring maxValue;
  std::wstring minValue;
  std::wstring preMaxValue;
  std::wstring alarmMaxValue;
  std::wstring preMinValue;
  std::wstring alarmMinValue;
  bool showAnnotation = false;

 private:
  static std::span<const CardRow> Rows();
  void AssignPosition(std::string_view text);
  const char* PositionText() const;
  std::span<const Word> PositionWords() const;
};

}  // namespace xrpt
