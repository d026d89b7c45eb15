#include "model/RVCardFormule.h"

#include "model/NumberFormat.h"
#include "platform/Numbers.h"

namespace xrpt {

// The two paddings are written as the count they pad to, not as T or F, and read as "more than 0": padding to a free or
// zero count does not survive a save.
std::span<const CardRow> RVCardFormule::Rows() {
  using Formule = RVCardFormule;
  static constexpr CardRow kRows[] = {
      Holding(TextRole::Expression,
              WhenNotEmpty<Formule, &Formule::value>(Field<Formule, codec::String, &Formule::value>(
                  nullptr, "value", nullptr, {text::kExpression, FieldGroup::Content, FieldEditor::Expression}))),
      Field<Formule, codec::Integer, &Formule::integers>(
          nullptr, "integers", "-1", {text::kIntegers, FieldGroup::Format, FieldEditor::Integer, -1, 12}),
      ReadBy<Formule, &Formule::ReadLeftPadding>(
          WriteBy<Formule, &Formule::WriteLeftPadding>(Field<Formule, codec::Bool, &Formule::leftPadding>(
              nullptr, "leftPadding", nullptr, {text::kLeftPadding, FieldGroup::Format, FieldEditor::Check}))),
      Field<Formule, codec::Integer, &Formule::decimals>(
          nullptr, "decimals", "3", {text::kDecimals, FieldGroup::Format, FieldEditor::Integer, -1, 9}),
      ReadBy<Formule, &Formule::ReadRightPadding>(
          WriteBy<Formule, &Formule::WriteRightPadding>(Field<Formule, codec::Bool, &Formule::rightPadding>(
              nullptr, "rightPadding", nullptr, {text::kRightPadding, FieldGroup::Format, FieldEditor::Check}))),
      Field<Formule, codec::Bool, &Formule::thousandSeparator>(
          nullptr, "thousandSeparator", nullptr, {text::kThousandSeparator, FieldGroup::Format, FieldEditor::Check}),
      When<Formule, &Formule::HasVariableDefault>(Field<Formule, codec::Bool, &Formule::enableVariableDefaultValue>(
          nullptr, "enableVariableDefaultValue", "", {text::kVariableDefault, FieldGroup::Format, FieldEditor::Check})),
  };
  return kRows;
}

const CardClass& RVCardFormule::Class() {
  static const CardClass kind = DeriveCard<RVCardFormule>("formule", text::kFormuleCard, RVCardLabel::Class(), Rows());
  return kind;
}

void RVCardFormule::ParseFormat(std::wstring_view format, std::int32_t& integers, std::int32_t& decimals,
                                bool& leftPadding, bool& rightPadding) {
  const NumberFormat parsed = ParseNumberFormat(format);
  integers = parsed.integers;
  decimals = parsed.decimals;
  leftPadding = parsed.leftPadding;
  rightPadding = parsed.rightPadding;
}

std::wstring RVCardFormule::ShownText() const {
  const auto number = ReadWholeNumber(value);
  if (!number) return value;
  const LocaleService& locale = *Services().locale;
  return FormatDouble(*number, {integers, decimals, thousandSeparator, leftPadding, rightPadding},
                      {locale.DecimalSeparator(), locale.ThousandsSeparator()});
}

void RVCardFormule::ReadLeftPadding(const XmlNode& count) { leftPadding = ParseInteger(count.RawText()) > 0; }

void RVCardFormule::WriteLeftPadding(XmlWriter& out) const {
  if (leftPadding) out.Plain("leftPadding", codec::Integer::Show(integers));
}

void RVCardFormule::ReadRightPadding(const XmlNode& count) { rightPadding = ParseInteger(count.RawText()) > 0; }

void RVCardFormule::WriteRightPadding(XmlWriter& out) const {
  if (rightPadding) out.Plain("rightPadding", codec::Integer::Show(decimals));
}

}  // namespace xrpt
