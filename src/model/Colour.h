#pragma once

#include "model/Types.h"

#include <cstdint>
#include <string_view>

namespace rhomba {

// A COLORREF (red in the low byte) as the 0xRRGGBB that texts show, and back: the same swap
// both ways.
constexpr std::uint32_t SwapRedBlue(std::uint32_t colour) {
    return ((colour & 0xFF) << 16) | (colour & 0xFF00) | ((colour >> 16) & 0xFF);
}

// The colour that a hexadecimal RRGGBB at the start of text gives, read as strtoul would: the
// digits up to the first other character, of which the last six count; no digits read as black.
ColorRef ReadHexColour(std::string_view text);

} // namespace rhomba
