// Text ids of the windows, in the catalogues' ranges 60500 to 61199 and 62400 to 62599.
#pragma once

namespace xrpt::text {

inline constexpr int kProgramName = 60500;
inline constexpr int kRibbon = 60501;
inline constexpr int kPageView = 60502;
inline constexpr int kHorizontalRuler = 60503;
inline constexpr int kVerticalRuler = 60504;
inline constexpr int kScrollAcross = 60505;
inline constexpr int kScrollDown = 60506;
inline constexpr int kPagesAndCards = 60507;
inline constexpr int kPages = 60508;
inline constexpr int kCards = 60509;
inline constexpr int kProperties = 60510;
inline constexpr int kProblems = 60511;
inline constexpr int kNoProblems = 60512;
inline constexpr int kHidePanel = 60513;
inline constexpr int kPageTitle = 60514;
inline constexpr int kPageNumber = 60515;
inline constexpr int kPageSelector = 60516;
inline constexpr int kZoom = 60517;
inline constexpr int kPointerPosition = 60518;
inline constexpr int kSelectionGeometry = 60519;
inline constexpr int kSelectedCards = 60520;
inline constexpr int kMixed = 60521;
inline constexpr int kNoColor = 60522;
inline constexpr int kOtherColor = 60523;
inline constexpr int kNoStyle = 60524;
inline constexpr int kFontGroup = 60525;
inline constexpr int kBold = 60526;
inline constexpr int kItalic = 60527;
inline constexpr int kTextLeft = 60528;
inline constexpr int kTextCenter = 60529;
inline constexpr int kTextRight = 60530;
inline constexpr int kTextTop = 60531;
inline constexpr int kTextMiddle = 60532;
inline constexpr int kTextBottom = 60533;
inline constexpr int kFindCommand = 60534;
inline constexpr int kCommands = 60535;
inline constexpr int kShortcuts = 60536;
inline constexpr int kGestures = 60537;
inline constexpr int kGestureMove = 60538;
inline constexpr int kGestureMoveKeys = 60539;
inline constexpr int kGestureMoveFar = 60540;
inline constexpr int kGestureMoveFarKeys = 60541;
inline constexpr int kGestureZoom = 60542;
inline constexpr int kGestureZoomKeys = 60543;
inline constexpr int kGesturePan = 60544;
inline constexpr int kGesturePanKeys = 60545;
inline constexpr int kGestureAdd = 60546;
inline constexpr int kGestureAddKeys = 60547;
inline constexpr int kGestureToggle = 60548;
inline constexpr int kGestureToggleKeys = 60549;
inline constexpr int kGestureNextCard = 60550;
inline constexpr int kGestureNextCardKeys = 60551;
inline constexpr int kGestureNextArea = 60552;
inline constexpr int kGestureNextAreaKeys = 60553;
inline constexpr int kOpenReport = 60554;
inline constexpr int kReports = 60555;
inline constexpr int kReportName = 60556;
inline constexpr int kChangedOn = 60557;
inline constexpr int kFilterReports = 60558;
inline constexpr int kBrowse = 60559;
inline constexpr int kBadName = 60561;
inline constexpr int kNameIsTaken = 60562;
inline constexpr int kDismiss = 60563;
inline constexpr int kExported = 60564;
inline constexpr int kCannotPrint = 60565;
inline constexpr int kGroupGeometry = 60566;
inline constexpr int kGroupContent = 60567;
inline constexpr int kGroupFont = 60568;
inline constexpr int kGroupAlignment = 60569;
inline constexpr int kGroupColors = 60570;
inline constexpr int kGroupFormat = 60571;
inline constexpr int kGroupAnimation = 60572;
inline constexpr int kGroupScale = 60573;
inline constexpr int kGroupSeries = 60574;
inline constexpr int kGroupPage = 60575;

// Titles of the property panel's sections, in the order of `FieldGroup`.
inline constexpr int kFirstFieldGroup = kGroupGeometry;

inline constexpr int kMoreGroups = 62400;
inline constexpr int kMoreCommands = 62401;
inline constexpr int kReplaceFiles = 62402;
inline constexpr int kCannotWrite = 62403;
inline constexpr int kPageTooLarge = 62404;
inline constexpr int kTryAgain = 62405;
inline constexpr int kNewStyleButton = 62410;
inline constexpr int kModifyButton = 62411;
inline constexpr int kDuplicateButton = 62412;
inline constexpr int kRemoveButton = 62413;
inline constexpr int kNewStyle = 62414;
inline constexpr int kModifyStyle = 62415;
inline constexpr int kStyleName = 62416;
inline constexpr int kStyleSample = 62417;
inline constexpr int kStyleSampleText = 62418;
inline constexpr int kNoStylesToPaste = 62419;
inline constexpr int kAddEntry = 62430;
inline constexpr int kRemoveEntry = 62431;
inline constexpr int kMoveEntryUp = 62432;
inline constexpr int kMoveEntryDown = 62433;
inline constexpr int kNoVariable = 62434;
inline constexpr int kAlternatives = 62435;
inline constexpr int kNoCondition = 62436;
inline constexpr int kConditionExample = 62437;
inline constexpr int kBackground = 62438;
inline constexpr int kChooseVariable = 62440;
inline constexpr int kFilterVariables = 62441;
inline constexpr int kVariables = 62442;
inline constexpr int kChoosePicture = 62443;
inline constexpr int kFilterPictures = 62444;
inline constexpr int kPictures = 62445;
inline constexpr int kAddPictures = 62446;
inline constexpr int kNoPicture = 62447;
inline constexpr int kPictureFiles = 62448;

// The system's own.
inline constexpr int kCancel = 380;

}  // namespace xrpt::text
