// The library's fixed palette, as COLORREF values (0x00BBGGRR). Buttons, tabs, dialogs and
// list rows all paint from these; nothing else names a colour of the scheme.
#pragma once

#include <cstdint>

namespace kiv::rules {

using Colour = std::uint32_t;

inline constexpr Colour kSteelBlue = 0xAC824E;     // RGB(78,130,172): button fill, selected tab
inline constexpr Colour kLightBlue = 0xF4EBDD;     // RGB(221,235,244): hovered button, even rows
inline constexpr Colour kPaleBlueGrey = 0xD1C0A5;  // RGB(165,192,209): disabled text, unselected tab
inline constexpr Colour kDarkBlue = 0x6D5330;      // RGB(48,83,109): unselected tab text
inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kBlack = 0x000000;

}  // namespace kiv::rules
