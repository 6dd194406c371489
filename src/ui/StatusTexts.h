#pragma once

#include <string>

namespace rhomba {

// The cursor position as the status strip shows it, with decimal commas and two decimals
// rounded half away from zero: "pt: 12,35  -0,01" and "mm: 4,35  -0,00".
std::string CursorPointsText(double x, double y);
std::string CursorMillimetresText(double x, double y);

} // namespace rhomba
