#include "geometry/Length.h"
#include "geometry/NumberText.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

TEST(ParseLength, UnitTableWithDecimalCommaAndMillimetresForBareNumbers) {
    EXPECT_EQ(ParseLength("12,5"), 12.5);
    EXPECT_EQ(ParseLength("  7.25  "), 7.25);
    EXPECT_EQ(ParseLength("-3"), -3);
    EXPECT_EQ(ParseLength("12,5 cm"), 125);
    EXPECT_EQ(ParseLength("2dm"), 200);
    EXPECT_EQ(ParseLength("1,5 m"), 1500);
    EXPECT_EQ(ParseLength("2 km"), 2000000);
    EXPECT_EQ(ParseLength("3000 nm"), 0.003);
    EXPECT_EQ(ParseLength("5\xB5"), 0.005);
    EXPECT_EQ(ParseLength("5 \xB5m"), 0.005);
    EXPECT_EQ(ParseLength("1 mi"), 1609344);
    EXPECT_EQ(ParseLength("4 mm"), 4);
}

TEST(ParseLength, ImperialUnitsGoThroughThePointFactor) {
    const double k = 2.834653369727658;
    EXPECT_EQ(ParseLength("1 in"), 1 / k * 72);
    EXPECT_NE(ParseLength("1 in"), 25.4);
    EXPECT_EQ(ParseLength("1 ft"), 1 / k * 72 * 12);
    EXPECT_EQ(ParseLength("1 yd"), 1 / k * 72 * 36);
    EXPECT_EQ(ParseLength("10 pt"), 10 / k);
}

TEST(ParseLength, UnknownOrMiscasedUnitsMeanMillimetresAndUnreadableTextZero) {
    EXPECT_EQ(ParseLength("3 furlong"), 3);
    EXPECT_EQ(ParseLength("3 MM"), 3);
    EXPECT_EQ(ParseLength("3 CM"), 3);
    // Unreadable text gives zero.
    EXPECT_EQ(ParseLength("0 km"), 0);
    EXPECT_EQ(ParseLength("abc"), 0);
    EXPECT_EQ(ParseLength(""), 0);
    EXPECT_EQ(ParseLength("km"), 0);
    EXPECT_EQ(ParseLength("inf"), 0);
    EXPECT_EQ(ParseLength("0x10"), 0);
}

TEST(FormatLength, ShowsGStyleWithUnit) {
    EXPECT_EQ(FormatLength(12.5), "12.5 mm");
    EXPECT_EQ(FormatLength(100), "100 mm");
    EXPECT_EQ(FormatLength(1234567), "1.23457e+06 mm");
    EXPECT_EQ(FormatLength(0.0001), "0.0001 mm");
    EXPECT_EQ(FormatLength(0.00001), "1e-05 mm");
}

TEST(ReadLeadingNumber, StopsWhereTheNumberEnds) {
    std::size_t end = 0;
    EXPECT_EQ(ReadLeadingNumber("  -1.5e2xyz", end), -150);
    EXPECT_EQ(end, 8u);
    EXPECT_EQ(ReadLeadingNumber("3e", end), 3);
    EXPECT_EQ(end, 1u);
    EXPECT_EQ(ReadLeadingNumber(".5", end), 0.5);
    EXPECT_EQ(ReadLeadingNumber("-.", end), 0);
    EXPECT_EQ(end, 0u);
    EXPECT_TRUE(ReadLeadingNumber("1e400", end) == 0 && end == 0); // too large is no number
}

} // namespace
} // namespace rhomba
