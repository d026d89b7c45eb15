// The variable a graph's series or a bar is bound to.
#pragma once

#include "formulas/checks/ReferenceCheck.h"

namespace xrpt {

// By the element that holds its name. `unknown` is raised for a variable that neither the report nor the plant has.
bool CheckBoundVariable(Inspector& inspector, const XmlNode& name, const tagSDebugData& data,
                        ReferenceCheck& references, const CheckCode& unknown);

}  // namespace xrpt
