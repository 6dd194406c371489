#pragma once

#include <string>

namespace rhomba {

// Rounds half away from zero to the given number of decimals (0 to 6): floor(v * f + 0.5) / f
// when v is not negative (so -0 becomes 0), ceil(v * f - 0.5) / f otherwise. Values too large
// to carry decimals, infinities and NaN come back unchanged.
double RoundDecimals(double value, int decimals);

// Appends exactly what AppendG gives for RoundDecimals(value, decimals): printf's "%g", with
// zero always "0" and a value that is not finite written as 0. The writers' hot path: most
// coordinates take an integer shortcut instead of the general formatter.
void AppendRounded(std::string& out, double value, int decimals);

} // namespace rhomba
