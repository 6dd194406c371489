#include "shapes/SineCurve.h"

#include "geometry/Isometric.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

constexpr double kA = 20 * kPointsPerMillimetre; // 56.69306739455316

SineSettings Curve(double start, double end, bool axes = false, bool ticks = false) {
    SineSettings s;
    s.startDegrees = start;
    s.endDegrees = end;
    s.axes = axes;
    s.tickMarks = ticks;
    return s;
}

TEST(SineCurve, FullPeriodWithAxes) {
    auto path = BuildSineCurve(Curve(0, 360, true));
    EXPECT_FALSE(path->HasFill());
    EXPECT_TRUE(path->HasStroke());
    ASSERT_EQ(path->NodeCount(), 4u + 1 + 4 * 3);
    // The axes: x from the origin to 2 pi A, y from A to -A.
    EXPECT_EQ(path->PointAt(0), (Point2{0, 0}));
    EXPECT_NEAR(path->PointAt(1).x, kTwoPi * kA, 1e-9);
    EXPECT_EQ(path->PointAt(2), (Point2{0, kA}));
    EXPECT_EQ(path->PointAt(3), (Point2{0, -kA}));
    EXPECT_EQ(path->TypeAt(0), node::kMoveTo);
    EXPECT_EQ(path->TypeAt(3), node::kLineTo);
    // One figure of four quarter waves.
    EXPECT_EQ(path->TypeAt(4), node::kMoveTo);
    EXPECT_EQ(path->PointAt(4), (Point2{0, 0}));
    for (std::size_t i = 5; i < path->NodeCount(); ++i) EXPECT_EQ(path->TypeAt(i), node::kBezierTo);
    EXPECT_NEAR(path->PointAt(5).x, 0.50783654420825 * kA, 1e-9);
    EXPECT_NEAR(path->PointAt(7).x, kHalfPi * kA, 1e-9);
    EXPECT_NEAR(path->PointAt(7).y, kA, 1e-9);
    EXPECT_NEAR(path->PointAt(13).x, 1.5 * kPi * kA, 1e-9);
    EXPECT_NEAR(path->PointAt(13).y, -kA, 1e-9);
    EXPECT_NEAR(path->PointAt(16).x, kTwoPi * kA, 1e-9);
    EXPECT_NEAR(path->PointAt(16).y, 0, 1e-9);
}

TEST(SineCurve, QuartersAreDrawnWhole) {
    auto path = BuildSineCurve(Curve(45, 100));
    ASSERT_EQ(path->NodeCount(), 1u + 2 * 3);
    EXPECT_EQ(path->PointAt(0), (Point2{0, 0}));
    EXPECT_NEAR(path->PointAt(6).x, kPi * kA, 1e-9);
}

TEST(SineCurve, ThirdQuarterStartsFromTheUnshiftedMovePoint) {
    auto path = BuildSineCurve(Curve(200, 260));
    ASSERT_EQ(path->NodeCount(), 4u);
    EXPECT_EQ(path->PointAt(0), (Point2{0, 0}));
    EXPECT_NEAR(path->PointAt(1).x, (kPi + 0.50783654420825) * kA, 1e-9);
    EXPECT_NEAR(path->PointAt(1).y, -0.50783654420825 * kA, 1e-9);
    EXPECT_NEAR(path->PointAt(3).x, 1.5 * kPi * kA, 1e-9);
    EXPECT_NEAR(path->PointAt(3).y, -kA, 1e-9);

    // The fourth quarter's move point is (pi / 2, -1) of its period, also pi to the left.
    auto fourth = BuildSineCurve(Curve(-80, -10));
    ASSERT_EQ(fourth->NodeCount(), 4u);
    EXPECT_NEAR(fourth->PointAt(0).x, (kHalfPi - kTwoPi) * kA, 1e-9);
    EXPECT_NEAR(fourth->PointAt(0).y, -kA, 1e-9);
    EXPECT_NEAR(fourth->PointAt(3).x, 0, 1e-9);
}

TEST(SineCurve, NothingBeyondTwoPeriodsEitherWay) {
    auto path = BuildSineCurve(Curve(-5000, 5000));
    ASSERT_EQ(path->NodeCount(), 1u + 16 * 3);
    EXPECT_NEAR(path->PointAt(0).x, -4 * kPi * kA, 1e-9);
    EXPECT_NEAR(path->PointAt(48).x, 4 * kPi * kA, 1e-9);
}

TEST(SineCurve, EmptySpanLeavesOnlyTheAxes) {
    EXPECT_EQ(BuildSineCurve(Curve(0, 0, true))->NodeCount(), 4u);
    EXPECT_EQ(BuildSineCurve(Curve(0, 0, false))->NodeCount(), 0u);
}

TEST(SineCurve, TickMarksNeedTheAxes) {
    EXPECT_EQ(BuildSineCurve(Curve(0, 90, false, true))->NodeCount(), 4u);
    auto path = BuildSineCurve(Curve(0, 180, true, true));
    // Ticks at 0, 90 and 180 degrees, between the axes and the curve.
    ASSERT_EQ(path->NodeCount(), 4u + 3 * 2 + 1 + 2 * 3);
    EXPECT_EQ(path->PointAt(4), (Point2{0, kA / 20}));
    EXPECT_EQ(path->PointAt(5), (Point2{0, -kA / 20}));
    EXPECT_NEAR(path->PointAt(8).x, kPi * kA, 1e-9);
    // The x axis reaches the origin also when the curve lies right of it.
    auto right = BuildSineCurve(Curve(90, 180, true));
    EXPECT_EQ(right->PointAt(0), (Point2{0, 0}));
}

} // namespace
} // namespace rhomba
