// The texts of formulas, virtual devices, search and replace, by number.
#pragma once

namespace xrpt::text {

// The system's own.
inline constexpr int kRefersToItself = 32445;
inline constexpr int kExpressionNotAnalysed = 32446;
inline constexpr int kUndefinedVariables = 32447;
inline constexpr int kExpressionNotEvaluated = 32448;
inline constexpr int kExpressionEmpty = 32449;
inline constexpr int kNameAlreadyUsed = 32450;
inline constexpr int kNameNotValid = 32451;
inline constexpr int kExpressionFails = 32452;
inline constexpr int kModuleInExpression = 37540;
inline constexpr int kNameTitle = 355;
inline constexpr int kVirtualDeviceName = 36135;
inline constexpr int kVirtualDeviceExists = 36203;
inline constexpr int kTooManyVirtualDevices = 36258;
inline constexpr int kGoBackVariableName = 36246;
inline constexpr int kGoBackVariableExists = 36248;
inline constexpr int kTooManyGoBackVariables = 36259;

}  // namespace xrpt::text
