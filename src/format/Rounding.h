#pragma once

#include <string>

namespace rhomba {

// Rounds half away from zero to the given number of decimals (0 to 6); values too large to
// carry decimals, infinities and NaN come back unchanged.
double RoundDecimals(double value, int decimals);

// Appends exactly what printf("%g") gives for RoundDecimals(value, decimals). The writers' hot
// path: most coordinates take an integer shortcut instead of the general formatter.
void AppendRounded(std::string& out, double value, int decimals);

} // namespace rhomba
