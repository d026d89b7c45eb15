// Rows that several card kinds have alike: alignments, the font group, the animation of texts and pictures.
#pragma once

#include "model/Codecs.h"
#include "model/FieldRows.h"
#include "model/FieldTexts.h"
#include "model/Words.h"
#include "platform/Fonts.h"

namespace xrpt {

struct Animation {
  Behavior behavior = Behavior::None;
  Direction direction = Direction::Left;
  std::int32_t scrollAmount = 1;  // pixels a step
  std::int32_t scrollDelay = 50;  // milliseconds between steps
  bool operator==(const Animation&) const = default;
};

using HorizontalAlignCodec = codec::OneOf<kHorizontalWords, kAlignCenter, kAlignCenter>;
using VerticalAlignCodec = codec::OneOf<kVerticalWords, kAlignCenter, kAlignCenter>;
using FontStyleCodec = codec::OneOf<kFontStyleWords, 0, 0>;

template <class Owner, auto Horizontal, auto Vertical>
constexpr auto AlignmentRows() {
  return RowsOf(
      Field<Owner, HorizontalAlignCodec, Horizontal>(
          nullptr, "horizontalAlign", "", {text::kHorizontalAlign, FieldGroup::Alignment, FieldEditor::Choice}),
      Field<Owner, VerticalAlignCodec, Vertical>(nullptr, "verticalAlign", "",
                                                 {text::kVerticalAlign, FieldGroup::Alignment, FieldEditor::Choice}));
}

// How a picture fills its card. Missing elements leave the two alone.
template <class Owner, auto AspectRatio, auto RealSize>
constexpr auto ScalingRows() {
  return RowsOf(Field<Owner, codec::Bool, AspectRatio>(nullptr, "maintainAspectRatio", nullptr,
                                                       {text::kAspectRatio, FieldGroup::Scale, FieldEditor::Check}),
                Field<Owner, codec::Bool, RealSize>(nullptr, "maintainRealSize", nullptr,
                                                    {text::kRealSize, FieldGroup::Scale, FieldEditor::Check}));
}

template <class Owner, auto FontMember>
constexpr RowOf<Owner> FontNameRow() {
  return Field<Owner, codec::String, FontMember, &Font::face>(
      "font", "name", "", {text::kFontFace, FieldGroup::Font, FieldEditor::FontFace});
}

template <class Owner, auto FontMember>
constexpr RowOf<Owner> FontStyleRow() {
  return Field<Owner, FontStyleCodec, FontMember, &Font::style>(
      "font", "style", "", {text::kFontStyle, FieldGroup::Font, FieldEditor::Choice});
}

template <class Owner, auto FontMember>
constexpr RowOf<Owner> FontSizeRow() {
  return Field<Owner, codec::Decimal, FontMember, &Font::size>(
      "font", "size", "", {text::kFontSize, FieldGroup::Font, FieldEditor::Decimal, 0.5, 500.0});
}

// `Animates` is the class's question whether there is an animation; without one none of the four is in the file.
template <class Owner, auto Member, auto Animates>
constexpr auto AnimationRows() {
  using BehaviorCodec = codec::OneOf<kBehaviorWords, 0, 1>;
  using DirectionCodec = codec::OneOf<kDirectionWords, 0, 0>;
  return RowsOf(
      When<Owner, Animates>(Field<Owner, BehaviorCodec, Member, &Animation::behavior>(
          nullptr, "behavior", "", {text::kBehavior, FieldGroup::Animation, FieldEditor::Choice})),
      When<Owner, Animates>(Field<Owner, DirectionCodec, Member, &Animation::direction>(
          nullptr, "direction", "", {text::kDirection, FieldGroup::Animation, FieldEditor::Choice})),
      When<Owner, Animates>(Field<Owner, codec::Positive<1>, Member, &Animation::scrollAmount>(
          nullptr, "scrollamount", "1", {text::kScrollAmount, FieldGroup::Animation, FieldEditor::Integer, 1, 1000})),
      When<Owner, Animates>(Field<Owner, codec::Positive<50>, Member, &Animation::scrollDelay>(
          nullptr, "scrolldelay", "50", {text::kScrollDelay, FieldGroup::Animation, FieldEditor::Integer, 1, 60000})));
}

}  // namespace xrpt
