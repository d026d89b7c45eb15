#include "formulas/checks/Inspector.h"

#include "platform/ImageFiles.h"
#include "platform/Text.h"

namespace xrpt {
namespace {

std::wstring_view WithoutBrackets(std::wstring_view name) {
  const bool wrapped = name.size() > 1 && name.front() == L'[' && name.back() == L']';
  return wrapped ? name.substr(1, name.size() - 2) : name;
}

}  // namespace

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

const ExpressionReading& Inspector::Read(const XmlNode& expression, const tagSDebugData& data) {
  std::string joined;
  return expressions_.Read(host_, expression.WholeText(joined), data.formules);
}

const BoundVariable& Inspector::Look(const XmlNode& name) {
  std::string joined;
  const std::string_view text = name.WholeText(joined);
  if (const BoundVariable* known = variables_.Find(text)) return *known;
  const std::wstring whole = FromUtf8(text);
  const std::wstring_view plain = WithoutBrackets(whole);
  BoundVariable variable{host_.variables->SplitFilterDriverVariable(plain),
                         host_.variables->SplitBackFilterDriverVariable(plain), false};
  const bool isOwn = IsVirtualDevice(variable.device) || IsGoBack(variable.goBack);
  variable.isInPlant = !isOwn && IsInPlant(plain);
  return variables_.Add(text, std::move(variable));
}

bool Inspector::IsMoment(const XmlNode& text) {
  std::string joined;
  const std::string_view utf8 = text.WholeText(joined);
  if (const bool* known = moments_.Find(utf8)) return *known;
  RVDateTime moment{};
  return moments_.Add(utf8, host_.dates->String2DateTime(FromUtf8(utf8), moment));
}

bool Inspector::HasPicture(const XmlNode& image) {
  const XmlNode id = image.Node("imageId");
  const XmlNode path = image.Node("imagePath");
  std::string idText, pathText;
  std::string key(path.WholeText(pathText));
  key += '\n';
  key += id.WholeText(idText);
  if (const bool* known = pictures_.Find(key)) return *known;
  return pictures_.Add(key, HasImageFile(host_, id.Value(), path.Value()));
}

bool Inspector::IsInPlant(std::wstring_view variable) {
  if (!plant_) plant_ = host_.driverVariables->NewDriverVariable();
  plant_->Setup(variable);
  return plant_->Lock();
}

void Inspector::Forget() {
  plant_.reset();
  variables_.Clear();
  pictures_.Clear();
  moments_.Clear();
  expressions_.Clear();
}

}  // namespace xrpt
