#include "geometry/Length.h"

#include "geometry/Isometric.h"
#include "geometry/NumberText.h"

#include <algorithm>
#include <cmath>

namespace rhomba {

namespace {

// value / divide * times1 * times2, evaluated left to right like the unit table reads.
struct Unit {
    std::string_view text;
    double divide;
    double times1;
    double times2;
};

// Note: inches, feet and yards go through points (72 to the inch) with the program's own
// millimetre factor, so 1 in is 25.39993 mm, not 25.4; a mile is exact.
const Unit kUnits[] = {
    {"nm", 1000000, 1, 1},
    {"\xB5m", 1000, 1, 1},
    {"\xB5", 1000, 1, 1},
    {"mm", 1, 1, 1},
    {"cm", 1, 10, 1},
    {"dm", 1, 100, 1},
    {"m", 1, 1000, 1},
    {"km", 1, 1000000, 1},
    {"pt", kPointsPerMillimetre, 1, 1},
    {"in", kPointsPerMillimetre, 72, 1},
    {"ft", kPointsPerMillimetre, 72, 12},
    {"yd", kPointsPerMillimetre, 72, 36},
    {"mi", 1, 1609344, 1},
};

double Convert(double value, const Unit& unit) {
    return value / unit.divide * unit.times1 * unit.times2;
}

} // namespace

double ParseLength(std::string_view text) {
    std::string copy(Trim(text));
    std::replace(copy.begin(), copy.end(), ',', '.');

    std::size_t end = 0;
    const double value = ReadLeadingNumber(copy, end);
    if (value == 0) return 0;

    const std::string_view rest = Trim(std::string_view(copy).substr(end));
    if (rest.empty()) return value;
    for (const Unit& unit : kUnits) {
        if (rest != unit.text) continue;
        // A length beyond what a double holds reads as 0, as unreadable text does.
        const double millimetres = Convert(value, unit);
        return std::isfinite(millimetres) ? millimetres : 0;
    }
    return value;
}

std::string FormatLength(double millimetres) { return FormatG(millimetres) + " mm"; }

} // namespace rhomba
