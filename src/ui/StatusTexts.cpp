#include "ui/StatusTexts.h"

#include "format/Rounding.h"
#include "geometry/Isometric.h"

#include <algorithm>
#include <cstdio>

namespace rhomba {

namespace {

std::string TwoDecimals(const char* label, double x, double y) {
    char text[128];
    std::snprintf(text, sizeof text, "%s: %.2f  %.2f", label, RoundDecimals(x, 2),
                  RoundDecimals(y, 2));
    std::string shown(text);
    std::replace(shown.begin(), shown.end(), '.', ',');
    return shown;
}

} // namespace

std::string CursorPointsText(double x, double y) { return TwoDecimals("pt", x, y); }

std::string CursorMillimetresText(double x, double y) {
    return TwoDecimals("mm", x / kPointsPerMillimetre, y / kPointsPerMillimetre);
}

} // namespace rhomba
