#include "shapes/CircleShape.h"

#include "geometry/Isometric.h"

#include "support/Paths.h"

#include <gtest/gtest.h>

#include <cmath>

namespace rhomba {
namespace {

using test::ExpectNear;

constexpr double kR = 28.34653369727658;

CircleSettings Arc(double start, double end, bool spokes = false, bool centre = false) {
    CircleSettings s;
    s.startDegrees = start;
    s.endDegrees = end;
    s.spokes = spokes;
    s.centreMark = centre;
    return s;
}

TEST(CircleShape, EqualAnglesGiveAClosedCircleOfThirteenNodes) {
    auto path = BuildCircle(Arc(0, 0));
    ASSERT_EQ(path->NodeCount(), 13u);
    EXPECT_TRUE(path->HasFill());
    EXPECT_EQ(path->TypeAt(0), node::kMoveTo);
    EXPECT_EQ(path->PointAt(0), (Point2{kR, 0}));
    EXPECT_EQ(path->PointAt(1), (Point2{kR, 0.55228474983079 * kR}));
    EXPECT_EQ(path->PointAt(3), (Point2{0, kR}));
    EXPECT_EQ(path->PointAt(6), (Point2{-kR, 0}));
    EXPECT_EQ(path->PointAt(9), (Point2{0, -kR}));
    EXPECT_EQ(path->PointAt(12), (Point2{kR, 0}));
    EXPECT_EQ(path->TypeAt(12), node::kBezierTo | node::kCloseFigure);
    // 100 and 460 fold to the same angle: still a full circle, turned by nothing.
    EXPECT_EQ(BuildCircle(Arc(100, 460))->NodeCount(), 13u);
}

TEST(CircleShape, QuarterPieEndsWithAnEmptyBezier) {
    auto path = BuildCircle(Arc(0, 90, true));
    ASSERT_EQ(path->NodeCount(), 2u + 3 + 3 + 1);
    EXPECT_EQ(path->PointAt(0), (Point2{0, 0}));
    EXPECT_EQ(path->PointAt(1), (Point2{kR, 0}));
    EXPECT_EQ(path->TypeAt(1), node::kLineTo);
    EXPECT_EQ(path->PointAt(4), (Point2{0, kR}));
    for (std::size_t i = 5; i <= 7; ++i) EXPECT_EQ(path->PointAt(i), (Point2{0, kR})) << i;
    EXPECT_EQ(path->PointAt(8), (Point2{0, 0}));
    EXPECT_EQ(path->TypeAt(8), node::kLineTo);
}

TEST(CircleShape, RemainderUsesTheTangentLength) {
    auto path = BuildCircle(Arc(0, 60));
    ASSERT_EQ(path->NodeCount(), 4u);
    const double k = 4.0 / 3.0 * std::tan(60 / kDegreesPerRadian / 4) * kR;
    ExpectNear(path->PointAt(1), {kR, k});
    const double c = std::cos(60 / kDegreesPerRadian), s = std::sin(60 / kDegreesPerRadian);
    ExpectNear(path->PointAt(2), {c * kR + k * s, s * kR - k * c});
    ExpectNear(path->PointAt(3), {c * kR, s * kR});
}

TEST(CircleShape, ArcIsTurnedToItsStartAndRunsCounterClockwise) {
    // Start 450 is 90; the arc runs from the top to the left.
    auto path = BuildCircle(Arc(450, 180));
    ASSERT_EQ(path->NodeCount(), 1u + 3 + 3);
    ExpectNear(path->PointAt(0), {0, kR});
    ExpectNear(path->PointAt(3), {-kR, 0});
    ExpectNear(path->PointAt(6), {-kR, 0});

    // End before start: the counter-clockwise arc from 330 (typed -30) across 0 to 30.
    auto across = BuildCircle(Arc(-30, 30));
    ASSERT_EQ(across->NodeCount(), 4u);
    const double r = 330 / kDegreesPerRadian;
    ExpectNear(across->PointAt(0), {std::cos(r) * kR, std::sin(r) * kR});
    ExpectNear(across->PointAt(3), {std::cos(r) * kR, -std::sin(r) * kR});

    // 300 degrees of span: three whole quarters, then 30 more.
    EXPECT_EQ(BuildCircle(Arc(10, 310))->NodeCount(), 1u + 4 * 3);
}

TEST(CircleShape, CentreCrossIsNotTurned) {
    auto path = BuildCircle(Arc(45, 90, false, true));
    ASSERT_EQ(path->NodeCount(), 4u + 4);
    EXPECT_EQ(path->PointAt(4), (Point2{-1, 0}));
    EXPECT_EQ(path->TypeAt(5), node::kLineTo | node::kCloseFigure);
    EXPECT_EQ(path->PointAt(6), (Point2{0, 1}));
    EXPECT_EQ(path->PointAt(7), (Point2{0, -1}));
    EXPECT_EQ(path->TypeAt(7), node::kLineTo | node::kCloseFigure);
}

TEST(CircleShape, FoldingKeepsAnglesInOneTurn) {
    EXPECT_EQ(FoldFullTurnDegrees(450), 90);
    EXPECT_EQ(FoldFullTurnDegrees(-30), 330);
    EXPECT_EQ(FoldFullTurnDegrees(360), 0);
    EXPECT_EQ(FoldFullTurnDegrees(-720), 0);
    EXPECT_EQ(FoldFullTurnDegrees(1e300), FoldFullTurnDegrees(std::fmod(1e300, 360.0)));
    EXPECT_EQ(FoldFullTurnDegrees(INFINITY), 0);
}

} // namespace
} // namespace rhomba
