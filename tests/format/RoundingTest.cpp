#include "format/Rounding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <random>

namespace rhomba {
namespace {

std::string Printf(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

std::string Fast(double value, int decimals) {
    std::string out;
    AppendRounded(out, value, decimals);
    return out;
}

TEST(Rounding, RoundsHalfAwayFromZero) {
    EXPECT_EQ(RoundDecimals(2.5, 0), 3);
    EXPECT_EQ(RoundDecimals(-2.5, 0), -3);
    EXPECT_EQ(RoundDecimals(1.23456, 4), 1.2346);
    EXPECT_EQ(RoundDecimals(5e9, 2), 5e9); // no decimals left to round
}

// The shortcut must give printf's bytes for every value: ties at the sixth digit, carries into
// a seventh, negative zero, exponent forms and values beyond its range.
TEST(Rounding, AppendRoundedPrintsLikePrintf) {
    const double cases[] = {0,        -0.0,      -0.00001,  0.00004,  0.00005, 0.0001,
                            123.4565, 123.4575,  999999.5,  999999.4, 99999.95, 1e6,
                            1234567,  -842.0001, 595.2756,  1e-7,     4.5e9,   1e300,
                            NAN,      INFINITY,  100000.05, 12.5,     0.1,     2.834653369727658};
    for (double value : cases) {
        for (int decimals = 0; decimals <= 6; ++decimals) {
            EXPECT_EQ(Fast(value, decimals), Printf(RoundDecimals(value, decimals)))
                << value << " at " << decimals;
        }
    }
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> exponent(-7, 10);
    std::uniform_int_distribution<int> decimals(0, 6);
    for (int i = 0; i < 200000; ++i) {
        double value = std::pow(10.0, exponent(random));
        if (i % 2) value = -value;
        // Every third value sits on a decimal grid, where ties at the sixth digit live.
        if (i % 3 == 0) value = std::round(value * 1e4) / 1e4 + 0.00005;
        const int d = decimals(random);
        ASSERT_EQ(Fast(value, d), Printf(RoundDecimals(value, d))) << value << " at " << d;
    }
}

} // namespace
} // namespace rhomba
