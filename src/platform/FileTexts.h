// Numbers of the texts that say what became of files and ask what shall, in the catalogues' range 62200 to 62399.
#pragma once

namespace xrpt::text {

inline constexpr int kNotSaved = 62200;
inline constexpr int kChangedOnDisk = 62201;
inline constexpr int kNameIsNoFile = 62202;
inline constexpr int kFileIsAnothers = 62203;
inline constexpr int kUnreadable = 62204;
inline constexpr int kDamaged = 62205;
inline constexpr int kOtherDocument = 62206;
inline constexpr int kOpenElsewhere = 62207;
inline constexpr int kSaveCancelled = 62208;

// Questions, and what there is to know about them.
inline constexpr int kSaveChangesTo = 62220;
inline constexpr int kOverwriteChanged = 62221;
inline constexpr int kOverwriteDetail = 62222;
inline constexpr int kOverwriteAnother = 62223;
inline constexpr int kOverwriteAnotherDetail = 62224;
inline constexpr int kLoseStyles = 62225;
inline constexpr int kLoseStylesDetail = 62226;
inline constexpr int kOpenLocked = 62227;
inline constexpr int kOpenLockedDetail = 62228;
inline constexpr int kSaveLocked = 62229;
inline constexpr int kHolder = 62230;
inline constexpr int kRemovedOnDisk = 62231;
inline constexpr int kRemovedDetail = 62232;

// Their answers.
inline constexpr int kSaveAnswer = 62240;
inline constexpr int kDontSave = 62241;
inline constexpr int kOverwrite = 62242;
inline constexpr int kSaveAsAnswer = 62243;
inline constexpr int kShowDifferences = 62244;
inline constexpr int kSaveAnyway = 62245;
inline constexpr int kOpenReadOnly = 62246;
inline constexpr int kTakeOver = 62247;
inline constexpr int kCancelAnswer = 380;

// What is said above the page.
inline constexpr int kChangedMeanwhile = 62260;
inline constexpr int kGoneMeanwhile = 62261;
inline constexpr int kReload = 62262;
inline constexpr int kReloadAndLose = 62263;
inline constexpr int kTakenOver = 62264;
inline constexpr int kReadOnly = 62265;
inline constexpr int kReadOnlyBecause = 62266;
inline constexpr int kStylesLost = 62267;
inline constexpr int kMoreRecovered = 62268;
inline constexpr int kShowRecovered = 62269;
inline constexpr int kNotKept = 62270;
inline constexpr int kRecoveredOpened = 62271;

// Work that a session left behind.
inline constexpr int kUnsavedWork = 62280;
inline constexpr int kUnsavedWorkDetail = 62281;
inline constexpr int kKeptOn = 62282;
inline constexpr int kOnDisk = 62283;
inline constexpr int kNotOnDisk = 62284;
inline constexpr int kOpenRecovered = 62285;
inline constexpr int kDiscardRecovered = 62286;
inline constexpr int kLater = 62287;
inline constexpr int kDiscardForGood = 62288;
inline constexpr int kNeverSaved = 62289;

// How a file and a report differ.
inline constexpr int kDifferences = 62300;
inline constexpr int kPlaceColumn = 62301;
inline constexpr int kOnDiskColumn = 62302;
inline constexpr int kHereColumn = 62303;
inline constexpr int kNoDifferences = 62304;
inline constexpr int kMissing = 62305;
inline constexpr int kPageOf = 62306;
inline constexpr int kFormulasDiffer = 62307;
inline constexpr int kDevicesDiffer = 62308;
inline constexpr int kGoBacksDiffer = 62309;
inline constexpr int kReportDiffers = 62310;
inline constexpr int kMoreDifferences = 62311;
inline constexpr int kDiskUnreadable = 62312;
inline constexpr int kOtherOrder = 62313;
inline constexpr int kPresent = 62314;

// Choosing a file.
inline constexpr int kSaveAsTitle = 62320;
inline constexpr int kSaveAsFile = 62321;
inline constexpr int kFileColumn = 62322;

}  // namespace xrpt::text
