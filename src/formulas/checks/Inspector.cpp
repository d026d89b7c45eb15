#include "formulas/checks/Inspector.h"

namespace xrpt {

bool Inspector::Raise(const CheckCode& code, const tagSDebugData& data, std::optional<std::wstring> detail,
                      bool dontConsider) const {
  Finding finding;
  finding.code = &code;
  finding.place = data.place;
  finding.cardId = data.ctrlId;
  finding.kindTextId = data.kindTextId;
  finding.detail = std::move(detail);
  finding.dontConsider = dontConsider;
  found_(finding, data);
  return false;
}

const ExpressionReading& Inspector::Read(const XmlNode& expression, tagSDebugData& data) const {
  std::string joined;
  return data.readings.Read(host_, expression.WholeText(joined), data.formules.get());
}

bool Inspector::IsInPlant(std::wstring_view variable) {
  if (!plant_) plant_ = host_.driverVariables->NewDriverVariable();
  plant_->Setup(variable);
  return plant_->Lock();
}

}  // namespace xrpt
