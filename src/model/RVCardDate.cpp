#include "model/RVCardDate.h"

#include <ctime>

#include "model/DateFormat.h"
#include "platform/Host.h"

namespace xrpt {
namespace {

std::tm Now() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return local;
}

}  // namespace

std::span<const CardRow> RVCardDate::Rows() {
  using Date = RVCardDate;
  static constexpr CardRow kRows[] = {
      Holding(TextRole::Words,
              Field<Date, codec::String, &Date::pattern>(nullptr, "pattern", nullptr,
                                                         {text::kPattern, FieldGroup::Format, FieldEditor::Text})),
      WhenNotEmpty<Date, &Date::value>(Field<Date, codec::String, &Date::value>(
          nullptr, "value", nullptr, {text::kSampleValue, FieldGroup::Content, FieldEditor::Text})),
  };
  return kRows;
}

const CardClass& RVCardDate::Class() {
  static const CardClass kind = DeriveCard<RVCardDate>("date", text::kDateCard, RVCardLabel::Class(), Rows());
  return kind;
}

RVCardDate::RVCardDate(ModelServices& services) : RVCardLabel(services), value(services.locale->DateTimeText(Now())) {}

std::wstring RVCardDate::ShownText() const {
  const ModelServices& services = Services();
  RVDateTime moment{};
  if (!services.dates->String2DateTime(value, moment)) moment = Now();
  return ParseDate(pattern, moment, *services.locale);
}

}  // namespace xrpt
