#include "geometry/Angles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace rhomba {
namespace {

constexpr double kPi = 3.141592653589793;

TEST(VectorAngle, QuadrantsAndAxes) {
    EXPECT_EQ(VectorAngle(1, 0), 0);
    EXPECT_EQ(VectorAngle(-1, 0), kPi);
    EXPECT_EQ(VectorAngle(0, -1), 6.283185307179586 - 1.5707963267948966);
    EXPECT_EQ(VectorAngle(0, 1), 1.5707963267948966);
    EXPECT_DOUBLE_EQ(VectorAngle(-1, -1), 1.25 * kPi);
    EXPECT_DOUBLE_EQ(VectorAngle(1, -2), 2 * kPi - std::atan(2.0));
    EXPECT_DOUBLE_EQ(VectorAngle(-3, 1), kPi - std::atan(1.0 / 3));
    // Odd but kept:
    EXPECT_EQ(VectorAngle(0, 0), 0.7853981633974483);
    EXPECT_EQ(VectorAngle(1, -0.0), 0); // a negative zero is not below zero
    EXPECT_EQ(VectorAngle(std::numeric_limits<double>::quiet_NaN(), 1), 0);
}

TEST(FoldHalfTurn, FoldsIntoClosedHalfTurn) {
    EXPECT_DOUBLE_EQ(FoldHalfTurn(3 * kPi / 4), -kPi / 4);
    EXPECT_EQ(FoldHalfTurn(kPi / 2), kPi / 2);
    EXPECT_EQ(FoldHalfTurn(-kPi / 2), -kPi / 2);
    EXPECT_DOUBLE_EQ(FoldHalfTurn(-5 * kPi / 4), -kPi / 4);
    // Absurd input does not hang.
    EXPECT_TRUE(std::isinf(FoldHalfTurn(std::numeric_limits<double>::infinity())));
    EXPECT_LE(std::fabs(FoldHalfTurn(1e300)), kPi / 2);
}

} // namespace
} // namespace rhomba
