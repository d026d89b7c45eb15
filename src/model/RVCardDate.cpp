#include "model/RVCardDate.h"

#include <ctime>

#include "platform/Host.h"

namespace xrpt {

std::span<const FieldRow> RVCardDate::Rows() {
  using Date = RVCardDate;
  static constexpr FieldRow kRows[] = {
      Field<Date, codec::String, &Date::pattern>(nullptr, "pattern", nullptr,
                                                 {text::kPattern, FieldGroup::Format, FieldEditor::Text}),
      WhenNotEmpty<Date, &Date::value>(Field<Date, codec::String, &Date::value>(
          nullptr, "value", nullptr, {text::kSampleValue, FieldGroup::Content, FieldEditor::Text})),
  };
  return kRows;
}

const CardClass& RVCardDate::Class() {
  static const CardClass kind = DeriveCard<RVCardDate>("date", text::kDateCard, RVCardLabel::Class(), Rows());
  return kind;
}

RVCardDate::RVCardDate() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  value = CurrentHost().locale->DateTimeText(local);
}

}  // namespace xrpt
