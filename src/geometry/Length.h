#pragma once

#include <string>
#include <string_view>

namespace rhomba {

// Reads a typed length (Windows-1252 bytes) as millimetres: a number with a decimal point or
// comma, optionally followed by a unit ("nm", "µm", "µ", "mm", "cm", "dm", "m", "km", "pt", "in",
// "ft", "yd", "mi"; case matters). Never fails: unreadable text gives 0, an unknown unit means
// millimetres.
double ParseLength(std::string_view text);

// A millimetre value as an edit control shows it: "%g mm".
std::string FormatLength(double millimetres);

} // namespace rhomba
