#pragma once

namespace rhomba {

// Rounds half away from zero to the given number of decimals (0 to 6); values too large to
// carry decimals, infinities and NaN come back unchanged.
double RoundDecimals(double value, int decimals);

} // namespace rhomba
