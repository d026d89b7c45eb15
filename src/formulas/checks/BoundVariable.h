// The variable a graph's series or a bar is bound to.
#pragma once

#include "formulas/checks/ReferenceCheck.h"

namespace xrpt {

// `unknown` is raised for a variable that neither the report nor the plant has. Surrounding brackets play no part.
bool CheckBoundVariable(Inspector& inspector, std::wstring name, const tagSDebugData& data, ReferenceCheck& references,
                        const CheckCode& unknown);

}  // namespace xrpt
