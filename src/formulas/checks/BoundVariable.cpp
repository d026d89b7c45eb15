#include "formulas/checks/BoundVariable.h"

namespace xrpt {

bool CheckBoundVariable(Inspector& inspector, const XmlNode& name, const tagSDebugData& data,
                        ReferenceCheck& references, const CheckCode& unknown) {
  const BoundVariable& variable = inspector.Look(name);
  bool ok = references.VirtualDevice(variable.device);
  ok = references.GoBack(variable.goBack) && ok;
  const bool isOwn = IsVirtualDevice(variable.device) || IsGoBack(variable.goBack);
  return isOwn || variable.isInPlant ? ok : inspector.Raise(unknown, data);
}

}  // namespace xrpt
