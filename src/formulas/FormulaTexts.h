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
inline constexpr int kConditionNotLogical = 32485;
inline constexpr int kNameTitle = 355;
inline constexpr int kVirtualDeviceName = 36135;
inline constexpr int kVirtualDeviceExists = 36203;
inline constexpr int kTooManyVirtualDevices = 36258;
inline constexpr int kGoBackVariableName = 36246;
inline constexpr int kGoBackVariableExists = 36248;
inline constexpr int kTooManyGoBackVariables = 36259;

// Ours, in the range 61890 to 61905: what operators do, in the order of the chooser, and what a condition comes to.
inline constexpr int kPlusHelp = 61890;
inline constexpr int kMinusHelp = 61891;
inline constexpr int kTimesHelp = 61892;
inline constexpr int kDividedHelp = 61893;
inline constexpr int kPowerHelp = 61894;
inline constexpr int kLessHelp = 61895;
inline constexpr int kNotMoreHelp = 61896;
inline constexpr int kMoreHelp = 61897;
inline constexpr int kNotLessHelp = 61898;
inline constexpr int kEqualHelp = 61899;
inline constexpr int kDifferentHelp = 61900;
inline constexpr int kAndHelp = 61901;
inline constexpr int kOrHelp = 61902;
inline constexpr int kNotHelp = 61903;
inline constexpr int kConditionHolds = 61904;
inline constexpr int kConditionDoesNotHold = 61905;

}  // namespace xrpt::text
