#include "model/RVCardPrimitive.h"

namespace xrpt {

std::span<const CardRow> RVCardPrimitive::Rows() {
  using Primitive = RVCardPrimitive;
  using codec::kNone;
  using ContourCodec = codec::OneOf<kContourTypeWords, kNone, kNone>;
  using TypeCodec = codec::OneOf<kPrimitiveTypeWords, kNone, kNone>;
  static constexpr CardRow kRows[] = {
      // A missing size or orientation reads as 0, not as a new card's.
      Field<Primitive, codec::Decimal, &Primitive::size>(
          nullptr, "size", "", {text::kContourSize, FieldGroup::Format, FieldEditor::Decimal, 0.0, 1000.0}),
      Field<Primitive, codec::Bool, &Primitive::isBackTransparent>(
          nullptr, "isBackTransparent", "", {text::kBackTransparent, FieldGroup::Colors, FieldEditor::Check}),
      Field<Primitive, ContourCodec, &Primitive::contourType>(
          nullptr, "contourType", nullptr, {text::kContourType, FieldGroup::Format, FieldEditor::Choice}),
      Field<Primitive, TypeCodec, &Primitive::type>(nullptr, "type", nullptr,
                                                    {text::kShape, FieldGroup::Content, FieldEditor::Choice}),
      Field<Primitive, codec::Decimal, &Primitive::orientation>(
          nullptr, "orientation", "", {text::kOrientation, FieldGroup::Format, FieldEditor::Angle, -360.0, 360.0}),
  };
  return kRows;
}

const CardClass& RVCardPrimitive::Class() {
  static const CardClass kind =
      DeriveCard<RVCardPrimitive>("primitive", text::kPrimitiveCard, RVCardControl::Class(), Rows());
  return kind;
}

RVCardPrimitive::RVCardPrimitive(ModelServices& services) : RVCardControl(services) {
  color = kBlack;
  backcolor = kWhite;
}

}  // namespace xrpt
