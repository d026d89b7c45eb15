// Text ids of the dialogs over formulas, data sources and searching, in the catalogue's range 61906 to 61999, and the
// system's own that they show.
#pragma once

namespace xrpt::text {

inline constexpr int kFormulas = 61906;
inline constexpr int kFormula = 61907;
inline constexpr int kFormulaExpression = 61909;
inline constexpr int kWizardButton = 61910;
inline constexpr int kWizard = 61911;
inline constexpr int kFormulaValue = 61912;
inline constexpr int kUses = 61913;
inline constexpr int kFilterChoices = 61915;
inline constexpr int kChoices = 61916;
inline constexpr int kVariableChoices = 61917;
inline constexpr int kHourTypes = 61918;
inline constexpr int kFunctions = 61919;
inline constexpr int kOperators = 61920;
inline constexpr int kGoBackTo = 61921;
inline constexpr int kPresentValue = 61922;
inline constexpr int kUpdateUses = 61923;  // name, count, new name
inline constexpr int kRemoveUsed = 61924;  // name, count
inline constexpr int kUpdateThem = 61925;
inline constexpr int kLeaveThem = 61926;

inline constexpr int kFindAndReplace = 61940;
inline constexpr int kFindWhat = 61941;
inline constexpr int kSearchIn = 61942;
inline constexpr int kThisPage = 61943;
inline constexpr int kWholeReport = 61944;
inline constexpr int kFindNext = 61946;
inline constexpr int kFindPrevious = 61947;
inline constexpr int kMatches = 61948;
inline constexpr int kWhere = 61949;
inline constexpr int kMatchCount = 61950;  // count
inline constexpr int kMatchOf = 61951;     // place, count
inline constexpr int kOneMatch = 61952;
inline constexpr int kReplacedCount = 61953;  // count
inline constexpr int kBefore = 61954;
inline constexpr int kAfter = 61955;

// The system's own.
inline constexpr int kSearchWord = 218;
inline constexpr int kNewEntry = 311;
inline constexpr int kModifyEntry = 312;
inline constexpr int kNameColumn = 355;
inline constexpr int kRemoveRow = 378;
inline constexpr int kAccept = 379;
inline constexpr int kCopyEntries = 732;
inline constexpr int kPasteEntries = 742;
inline constexpr int kTextColumn = 32426;
inline constexpr int kTextNotFound = 32442;
inline constexpr int kPageOfReport = 32518;
inline constexpr int kReplaceWord = 34893;
inline constexpr int kReplaceWith = 34894;
inline constexpr int kReplaceAllMatches = 34895;
inline constexpr int kMatchCase = 34896;
inline constexpr int kAllReplaced = 34899;
inline constexpr int kIdentifier = 36132;
inline constexpr int kVirtualDevices = 36133;
inline constexpr int kGoBackVariables = 36244;

}  // namespace xrpt::text
