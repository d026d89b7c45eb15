// Text ids of what the editor says and asks, as hosts number them.
#pragma once

namespace xrpt::text {

inline constexpr int kUntitled = 32468;
inline constexpr int kSaveChanges = 32472;  // a question
inline constexpr int kReplaceDone = 34899;
inline constexpr int kFormulasInCircle = 32445;
inline constexpr int kDeletePageQuestion = 60448;
inline constexpr int kPictureNotRead = 62450;
inline constexpr int kNoPictureFile = 62451;

// Names and files of reports.
inline constexpr int kBadName = 60561;
inline constexpr int kNameIsTaken = 60562;
inline constexpr int kRenameReport = 62460;
inline constexpr int kDuplicateReport = 62461;
inline constexpr int kDeleteReport = 62462;   // a question; names the report
inline constexpr int kDeleteReports = 62463;  // the same of several; how many
inline constexpr int kDeleteReportDetail = 62464;
inline constexpr int kDeleteAnswer = 62465;
inline constexpr int kReportNotRemoved = 62466;
inline constexpr int kLetterPaper = 62480;
inline constexpr int kLegalPaper = 62481;

// Pictures of the store.
inline constexpr int kNoPictureFolder = 62510;
inline constexpr int kDeletePicture = 62511;   // a question; names the picture
inline constexpr int kDeletePictures = 62512;  // the same of several; how many
inline constexpr int kDeleteUnused = 62513;    // a question; how many
inline constexpr int kPictureIsUsed = 62514;
inline constexpr int kUsesNotKnown = 62515;
inline constexpr int kNoUnusedPictures = 62516;

// A camera's picture.
inline constexpr int kNoServer = 62556;
inline constexpr int kNoCamera = 62557;
inline constexpr int kNoAnswer = 62558;  // and why
inline constexpr int kNoPictureInAnswer = 62559;

}  // namespace xrpt::text
