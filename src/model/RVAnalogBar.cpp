#include "model/RVAnalogBar.h"

namespace xrpt {
namespace {

using Bar = RVAnalogBar;

constexpr FieldPanel ScalePanel(int textId) { return {textId, FieldGroup::Scale, FieldEditor::Threshold}; }

template <auto Member>
constexpr CardRow ScaleEnd(const char* name, int textId) {
  return Holding(TextRole::Expression, WhenNotEmpty<Bar, Member>(Field<Bar, codec::String, Member>(
                                           nullptr, name, nullptr, ScalePanel(textId))));
}

}  // namespace

std::span<const CardRow> RVAnalogBar::Rows() {
  using codec::kNone;
  using KindCodec = codec::OneOf<kVariableKindWords, kNone, kNone>;
  // A missing or unknown word deliberately reads as MAX.
  using BandsCodec = codec::OneOf<kBarBandsWords, static_cast<int>(BarBands::Max), kNone>;
  using OrientationCodec = codec::OneOf<kBarOrientationWords, kNone, 0>;
  static constexpr CardRow kRows[] = {
      Field<Bar, KindCodec, &Bar::typeVar>(nullptr, "typeVar", nullptr,
                                           {text::kVariableKind, FieldGroup::Content, FieldEditor::Choice}),
      Field<Bar, BandsCodec, &Bar::type>(nullptr, "type", "", {text::kBands, FieldGroup::Scale, FieldEditor::Choice}),
      Field<Bar, OrientationCodec, &Bar::orientation>(nullptr, "orientation", nullptr,
                                                      {text::kBarOrientation, FieldGroup::Format, FieldEditor::Choice}),
      // Read after the orientation and against it.
      Through<Bar, &Bar::AssignPosition, &Bar::PositionText, &Bar::PositionWords>(
          Field<Bar, OrientationCodec, &Bar::positionValue>(
              nullptr, "positionValue", nullptr, {text::kValuePosition, FieldGroup::Format, FieldEditor::Choice})),
      Holding(TextRole::Variable,
              WhenNotEmpty<Bar, &Bar::variable>(Field<Bar, codec::String, &Bar::variable>(
                  nullptr, "variable", nullptr, {text::kVariable, FieldGroup::Content, FieldEditor::Variable}))),
      Field<Bar, codec::Truncated, &Bar::decimals>(nullptr, "decimals", "3",
                                                   {text::kDecimals, FieldGroup::Format, FieldEditor::Integer, 0, 9}),
      ScaleEnd<&Bar::maxValue>("maxValue", text::kMaxValue),
      ScaleEnd<&Bar::minValue>("minValue", text::kMinValue),
      ScaleEnd<&Bar::preMaxValue>("preMaxValue", text::kPreMaxValue),
      ScaleEnd<&Bar::alarmMaxValue>("alarmMaxValue", text::kAlarmMaxValue),
      ScaleEnd<&Bar::preMinValue>("preMinValue", text::kPreMinValue),
      ScaleEnd<&Bar::alarmMinValue>("alarmMinValue", text::kAlarmMinValue),
      Field<Bar, codec::Bool, &Bar::showAnnotation>(nullptr, "showAnnotation", "",
                                                    {text::kShowAnnotation, FieldGroup::Format, FieldEditor::Check}),
  };
  return kRows;
}

const CardClass& RVAnalogBar::Class() {
  static const CardClass kind =
      DeriveCard<RVAnalogBar>("analogBar", text::kAnalogBarCard, RVCardControl::Class(), Rows());
  return kind;
}

std::span<const Word> RVAnalogBar::PositionWords() const {
  return IsVertical() ? std::span<const Word>(kVerticalBarPositionWords) : kHorizontalBarPositionWords;
}

void RVAnalogBar::AssignPosition(std::string_view text) {
  for (const Word& word : PositionWords()) {
    if (text == word.text) positionValue = static_cast<ValuePosition>(word.value);
  }
}

const char* RVAnalogBar::PositionText() const {
  return PositionWords()[positionValue == ValuePosition::After ? 1 : 0].text;
}

}  // namespace xrpt
