// The texts of the expression evaluator, by number.
#pragma once

namespace xrpt::text {

// The system's own.
inline constexpr int kEmptyExpression = 32449;
inline constexpr int kCannotBeAnalysed = 32446;
inline constexpr int kCannotBeEvaluated = 32448;
inline constexpr int kFailsWhenEvaluated = 32452;
inline constexpr int kRefersToModule = 37540;

inline constexpr int kEndsTooSoon = 61800;
inline constexpr int kNotExpected = 61801;
inline constexpr int kOperatorMissing = 61802;
inline constexpr int kParenthesisNotClosed = 61803;
inline constexpr int kBracketNotClosed = 61804;
inline constexpr int kNoVariableName = 61805;
inline constexpr int kNoSuchFunction = 61806;
inline constexpr int kWriteFunctionAs = 61807;
inline constexpr int kDecimalPoint = 61808;
inline constexpr int kPerhapsMeant = 61809;
inline constexpr int kTooLong = 61810;
inline constexpr int kTooDeep = 61811;
inline constexpr int kFormulasTooLong = 61812;
inline constexpr int kFormulaNotAnalysed = 61813;
inline constexpr int kFormulaInCircle = 61814;
inline constexpr int kNameNotDefined = 61815;
inline constexpr int kNamesNotDefined = 61816;
inline constexpr int kNoLiveValueYet = 61817;

// Help and example of each function follow in pairs.
inline constexpr int kFirstFunction = 61830;

}  // namespace xrpt::text
