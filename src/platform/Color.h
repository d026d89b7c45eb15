// Colours as the files hold them: 32 bits 0x00BBGGRR, red in the low byte.
#pragma once

#include <cstdint>

namespace xrpt {

using Color = std::uint32_t;

// "No colour": nothing is painted. A back colour of this value is left out of the file.
inline constexpr Color kNoColor = 0xFFFFFFFF;
inline constexpr Color kBlack = 0x000000;
inline constexpr Color kWhite = 0xFFFFFF;

constexpr Color Rgb(unsigned r, unsigned g, unsigned b) { return (r & 0xFF) | (g & 0xFF) << 8 | (b & 0xFF) << 16; }
constexpr std::uint8_t RedOf(Color c) { return static_cast<std::uint8_t>(c); }
constexpr std::uint8_t GreenOf(Color c) { return static_cast<std::uint8_t>(c >> 8); }
constexpr std::uint8_t BlueOf(Color c) { return static_cast<std::uint8_t>(c >> 16); }

}  // namespace xrpt
