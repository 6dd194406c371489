#include "format/Rounding.h"

#include "geometry/NumberText.h"

#include <cmath>
#include <cstdint>

namespace rhomba {

namespace {

constexpr double kScale[] = {1, 10, 100, 1000, 10000, 100000, 1000000};
constexpr std::uint64_t kPowers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000,
                                     100000000, 1000000000};

int ClampDecimals(int decimals) { return decimals < 0 ? 0 : decimals > 6 ? 6 : decimals; }

// The rounded value times 10^decimals, as an integral double.
double RoundScaled(double value, int decimals) {
    const double scaled = value * kScale[decimals];
    return value >= 0 ? std::floor(scaled + 0.5) : std::ceil(scaled - 0.5);
}

int DigitCount(std::uint64_t m) {
    int count = 1;
    while (m >= 10) m /= 10, ++count;
    return count;
}

// The "%g" text of m * 10^-scale for an m of at most six digits, when %g would print it in
// fixed notation; false when it would switch to an exponent.
bool AppendFixed(std::string& out, bool negative, std::uint64_t m, int scale) {
    const int exponent = DigitCount(m) - 1 - scale;
    if (exponent < -4 || exponent >= 6) return false;
    while (scale > 0 && m % 10 == 0) m /= 10, --scale; // %g drops trailing zeros
    char digits[24];
    int length = 0;
    for (std::uint64_t rest = m; rest != 0 || length == 0; rest /= 10) {
        digits[length++] = static_cast<char>('0' + rest % 10);
    }
    if (negative) out.push_back('-');
    if (scale <= 0) {
        for (int i = length; i-- > 0;) out.push_back(digits[i]);
        out.append(static_cast<std::size_t>(-scale), '0');
        return true;
    }
    if (length <= scale) {
        out.append("0.");
        out.append(static_cast<std::size_t>(scale - length), '0');
        for (int i = length; i-- > 0;) out.push_back(digits[i]);
        return true;
    }
    for (int i = length; i-- > 0;) {
        out.push_back(digits[i]);
        if (i == scale) out.push_back('.');
    }
    return true;
}

} // namespace

double RoundDecimals(double value, int decimals) {
    decimals = ClampDecimals(decimals);
    // Beyond 2^52 / 10^6 a double has no decimals left to round, and scaling could overflow.
    if (!(std::fabs(value) < 4.0e9)) return value;
    return RoundScaled(value, decimals) / kScale[decimals];
}

void AppendRounded(std::string& out, double value, int decimals) {
    decimals = ClampDecimals(decimals);
    const double rounded = RoundDecimals(value, decimals);
    // The rounded value is the integer n = round(value * 10^d) divided by 10^d, correct to half
    // an ulp. Printed to six significant digits it shows n's own digits, rounded at the sixth:
    // the double's error is far below one unit of n, so only an exact tie in n needs the
    // general formatter to look at the binary value.
    const double scaled = RoundScaled(value, decimals);
    if (!(std::fabs(value) < 1.0e9) || scaled == 0) {
        AppendG(out, rounded);
        return;
    }
    const bool negative = scaled < 0;
    std::uint64_t m = static_cast<std::uint64_t>(std::fabs(scaled));
    int scale = decimals;
    const int extra = DigitCount(m) - 6;
    if (extra > 0) {
        const std::uint64_t unit = kPowers[extra];
        const std::uint64_t rest = m % unit;
        const std::uint64_t half = unit / 2;
        m /= unit;
        scale -= extra;
        if (rest == half) {
            AppendG(out, rounded);
            return;
        }
        if (rest > half && ++m == 1000000) {
            AppendG(out, rounded);
            return;
        }
    }
    if (!AppendFixed(out, negative, m, scale)) AppendG(out, rounded);
}

} // namespace rhomba
