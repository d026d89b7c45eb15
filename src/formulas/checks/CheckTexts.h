// The texts of the checks, by number; those of the host's codes stand with the codes.
#pragma once

namespace xrpt::text {

// The system's own.
inline constexpr int kNotLogical = 32485;
inline constexpr int kCheckingReport = 33809;  // "%s": the report's name
inline constexpr int kPageNumber = 32518;      // "%d"

// What the editor's own checks find.
inline constexpr int kCardOutsidePage = 62000;
inline constexpr int kTextCutOff = 62001;
inline constexpr int kFontNotInstalled = 62002;
inline constexpr int kPictureLowResolution = 62003;
inline constexpr int kFormulaUnused = 62004;
inline constexpr int kFormulaUnknownName = 62005;
inline constexpr int kStyleUnknown = 62006;
inline constexpr int kCardIdShared = 62007;
inline constexpr int kCardWithoutId = 62008;
inline constexpr int kCardHidden = 62009;
inline constexpr int kReportNameShared = 62010;
inline constexpr int kReportUnreadable = 62011;

// What can be done about it.
inline constexpr int kMoveOntoPage = 62040;
inline constexpr int kMakeHigher = 62041;
inline constexpr int kRemoveFormula = 62042;
inline constexpr int kDropStyle = 62043;
inline constexpr int kGiveNewId = 62044;
inline constexpr int kBringToFront = 62045;

// Why a check cannot be made.
inline constexpr int kFacesUnknown = 62060;
inline constexpr int kPicturesUnknown = 62061;

}  // namespace xrpt::text
