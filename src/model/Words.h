// Word lists that several card kinds share, with the values files and code know them by.
#pragma once

#include "model/FieldTable.h"

namespace xrpt {

// Alignment codes.
inline constexpr int kAlignLeft = 1;
inline constexpr int kAlignRight = 2;
inline constexpr int kAlignTop = 4;
inline constexpr int kAlignBottom = 8;
inline constexpr int kAlignCenter = 16;

inline constexpr Word kHorizontalWords[] = {
    {"LEFT", kAlignLeft, 60100}, {"CENTER", kAlignCenter, 60101}, {"RIGHT", kAlignRight, 60102}};
inline constexpr Word kVerticalWords[] = {
    {"TOP", kAlignTop, 60103}, {"CENTER", kAlignCenter, 60101}, {"BOTTOM", kAlignBottom, 60104}};

// FontStyle.
inline constexpr Word kFontStyleWords[] = {
    {"NORMAL", 0, 60110}, {"BOLD", 1, 60111}, {"ITALIC", 2, 60112}, {"ITALICBOLD", 3, 60113}};

// How a text or picture moves while a report is shown.
enum class Behavior { None = 0, Scroll = 1, Alternate = 2 };
enum class Direction { Left = 0, Right = 1, Up = 2, Down = 3 };

inline constexpr Word kBehaviorWords[] = {
    {"BEHAVIOR_NONE", 0, 60120}, {"BEHAVIOR_SCROLL", 1, 60121}, {"BEHAVIOR_ALTERNATE", 2, 60122}};
inline constexpr Word kDirectionWords[] = {{"DIRECTION_LEFT", 0, 60130},
                                           {"DIRECTION_RIGHT", 1, 60131},
                                           {"DIRECTION_UP", 2, 60132},
                                           {"DIRECTION_DOWN", 3, 60133}};

}  // namespace xrpt
