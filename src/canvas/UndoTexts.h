// Text ids of undo steps, in the catalogues' ranges 60400 to 60499 and 62640 to 62699. A text with %d is for several
// cards; the one 50 above it is for one card.
#pragma once

#include <string>

#include "canvas/RVUndo.h"

namespace xrpt {

// "Move 3 cards", "Move card"; empty for a step without a name.
std::wstring UndoText(const UndoName& name);

}  // namespace xrpt

namespace xrpt::text {

inline constexpr int kSelect = 60400;
inline constexpr int kMove = 60401;
inline constexpr int kResize = 60402;
inline constexpr int kInsert = 60403;
inline constexpr int kDeleteCards = 60404;
inline constexpr int kPasteCards = 60405;
inline constexpr int kAlign = 60406;
inline constexpr int kDistribute = 60407;
inline constexpr int kCenter = 60408;
inline constexpr int kSameSizes = 60409;
inline constexpr int kToFront = 60410;
inline constexpr int kToBack = 60411;
inline constexpr int kChange = 60412;
inline constexpr int kTurnPage = 60413;
inline constexpr int kChangePage = 60414;
inline constexpr int kItemAdded = 60490;
inline constexpr int kItemRemoved = 60491;
inline constexpr int kItemsReordered = 60492;
inline constexpr int kAlternativeAdded = 60493;
inline constexpr int kAlternativeRemoved = 60494;
inline constexpr int kAlternativesReordered = 60495;
inline constexpr int kAlternativeShown = 60496;
inline constexpr int kStylesChanged = 60415;
inline constexpr int kChangeField = 60416;  // of cards; the field's label stands in it
inline constexpr int kChangePageField = 60417;
inline constexpr int kPageAdded = 60418;
inline constexpr int kPageDeleted = 60419;
inline constexpr int kPageDuplicated = 60420;
inline constexpr int kPageMoved = 60421;
inline constexpr int kReportRenamed = 60422;
inline constexpr int kGridSwitched = 60423;
inline constexpr int kBringCardsBack = 60430;

inline constexpr int kCopyCards = 62640;
inline constexpr int kDuplicateCards = 62641;
inline constexpr int kForward = 62642;
inline constexpr int kBackward = 62643;
inline constexpr int kRestack = 62644;

// In the range of the formulas' texts.
inline constexpr int kReplace = 61880;     // in cards
inline constexpr int kReplaceAll = 61881;  // all over the report
inline constexpr int kFormulasChanged = 61882;
inline constexpr int kSourcesChanged = 61883;

inline constexpr int kTooMuchForClipboard = 60449;  // a refusal, no step

inline constexpr int kOneCardOffset = 50;

}  // namespace xrpt::text
