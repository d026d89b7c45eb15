// What helps whoever lays a page out and is no part of it: a word on cards that have nothing to show yet, and a mark on
// texts that their cards cut off.
#pragma once

#include "canvas/PagePainter.h"

namespace xrpt {

// The text id of what the card lacks to be seen; 0 when it lacks nothing.
int MissingTextId(const RVCardControl& card);

// Whether the card's text does not fit into it.
bool IsTextCut(const RVCardControl& card, const tagDraw& draw);

// For all cards in the clip that are shown, over a page that was painted the same way.
void DrawCardHints(Graphics& graphics, const CardList& cards, const tagDraw& draw, const PagePaint& how = {});

}  // namespace xrpt

namespace xrpt::text {

inline constexpr int kNoText = 62600;
inline constexpr int kNoFormula = 62601;
inline constexpr int kNoPattern = 62602;
inline constexpr int kNoPictureYet = 62603;
inline constexpr int kNoAlternatives = 62604;
inline constexpr int kNoSeries = 62605;
inline constexpr int kNoBarVariable = 62606;

}  // namespace xrpt::text
