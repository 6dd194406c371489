#include "shapes/SpiralShape.h"

#include "geometry/Isometric.h"

#include <gtest/gtest.h>

#include <cmath>

namespace rhomba {
namespace {

SpiralSettings Spiral(double maxRadius, double growth, bool logarithmic) {
    SpiralSettings s;
    s.maxRadiusMillimetres = maxRadius;
    s.growth = growth;
    s.logarithmic = logarithmic;
    return s;
}

double Radius(Point2 p) { return std::hypot(p.x, p.y); }

// The angle between the outgoing and the incoming handle at a join; 0 when smooth.
double Kink(const PathObject& path, std::size_t join) {
    const Point2 in = path.PointAt(join) - path.PointAt(join - 1);
    const Point2 out = path.PointAt(join + 1) - path.PointAt(join);
    return std::fabs(std::atan2(in.x * out.y - in.y * out.x, in.x * out.x + in.y * out.y));
}

TEST(SpiralShape, ArchimedeanGrowsByTheIncrementPerTurn) {
    // 50 mm at 5 mm per turn: ten turns of four quarter pieces from the centre.
    auto path = BuildSpiral(Spiral(50, 5, false));
    EXPECT_FALSE(path->HasFill());
    ASSERT_EQ(path->NodeCount(), 1u + 40 * 3);
    EXPECT_EQ(path->PointAt(0), (Point2{0, 0}));
    for (int turn = 1; turn <= 10; ++turn) {
        const Point2 p = path->PointAt(static_cast<std::size_t>(turn) * 12);
        EXPECT_NEAR(p.x, turn * 5 * kPointsPerMillimetre, 1e-9) << turn;
        EXPECT_NEAR(p.y, 0, 1e-9) << turn;
    }
    // Counter-clockwise: a quarter turn in, the curve is above the centre.
    EXPECT_NEAR(path->PointAt(3).x, 0, 1e-9);
    EXPECT_NEAR(path->PointAt(3).y, 1.25 * kPointsPerMillimetre, 1e-9);
}

TEST(SpiralShape, ArchimedeanStopsExactlyAtTheMaximumRadius) {
    auto path = BuildSpiral(Spiral(12, 5, false));
    // 2.4 turns: nine whole quarters and a last piece of 0.6 quarter.
    ASSERT_EQ(path->NodeCount(), 1u + 10 * 3);
    const Point2 end = path->PointAt(path->NodeCount() - 1);
    EXPECT_NEAR(Radius(end), 12 * kPointsPerMillimetre, 1e-9);
    EXPECT_NEAR(std::atan2(end.y, end.x), 0.4 * kTwoPi, 1e-9);
    for (std::size_t join = 3; join + 1 < path->NodeCount(); join += 3) {
        EXPECT_LT(Kink(*path, join), 1e-9) << join;
    }
}

TEST(SpiralShape, PiecesFollowTheCurveClosely) {
    // The midpoint of each Bezier against the true spiral at the middle angle.
    auto path = BuildSpiral(Spiral(20, 4, false));
    const double rate = 4 * kPointsPerMillimetre / kTwoPi;
    for (std::size_t i = 0; i + 3 < path->NodeCount(); i += 3) {
        const Point2 p0 = path->PointAt(i), c1 = path->PointAt(i + 1);
        const Point2 c2 = path->PointAt(i + 2), p1 = path->PointAt(i + 3);
        const Point2 mid = (p0 + p1) * 0.125 + (c1 + c2) * 0.375;
        const double theta = (static_cast<double>(i / 3) + 0.5) * kHalfPi;
        EXPECT_NEAR(Radius(mid), rate * theta, 0.01 * kPointsPerMillimetre) << i;
    }
}

TEST(SpiralShape, LogarithmicGrowsByTheFactorPerTurn) {
    // From 1 mm by 2 per turn up to 8 mm: three turns.
    auto path = BuildSpiral(Spiral(8, 2, true));
    ASSERT_EQ(path->NodeCount(), 1u + 12 * 3);
    EXPECT_EQ(path->PointAt(0), (Point2{kPointsPerMillimetre, 0}));
    EXPECT_NEAR(path->PointAt(12).x, 2 * kPointsPerMillimetre, 1e-9);
    EXPECT_NEAR(path->PointAt(24).x, 4 * kPointsPerMillimetre, 1e-9);
    EXPECT_NEAR(Radius(path->PointAt(36)), 8 * kPointsPerMillimetre, 1e-9);
    for (std::size_t join = 3; join + 1 < path->NodeCount(); join += 3) {
        EXPECT_LT(Kink(*path, join), 1e-9) << join;
    }
}

TEST(SpiralShape, NoGrowthOrTooManyTurnsGivesNothing) {
    EXPECT_EQ(SpiralTurns(Spiral(50, 0, false)), -1);
    EXPECT_EQ(SpiralTurns(Spiral(50, 1, true)), -1);
    EXPECT_EQ(SpiralTurns(Spiral(1, 2, true)), 0);
    EXPECT_EQ(BuildSpiral(Spiral(50, 0, false))->NodeCount(), 0u);
    EXPECT_EQ(BuildSpiral(Spiral(50, 0.01, false))->NodeCount(), 0u);
    EXPECT_EQ(BuildSpiral(Spiral(1, 2, true))->NodeCount(), 0u);
    EXPECT_EQ(BuildSpiral(Spiral(NAN, 2, false))->NodeCount(), 0u);
}

} // namespace
} // namespace rhomba
