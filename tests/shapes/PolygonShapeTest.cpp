#include "shapes/PolygonShape.h"

#include "support/Paths.h"

#include <gtest/gtest.h>

#include <cmath>

namespace rhomba {
namespace {

using test::ExpectNear;

constexpr double kR = 28.34653369727658;

PolygonSettings Polygon(int corners, int first = kCornerTop) {
    PolygonSettings s;
    s.corners = corners;
    s.radiusMillimetres = 10;
    s.firstCorner = first;
    return s;
}

TEST(PolygonShape, SquareStandingOnACorner) {
    auto path = BuildPolygon(Polygon(4));
    ASSERT_EQ(path->NodeCount(), 4u);
    EXPECT_EQ(path->PointAt(0), (Point2{0, kR}));
    EXPECT_EQ(path->TypeAt(0), node::kMoveTo);
    // Counter-clockwise: the second corner lies on the left.
    ExpectNear(path->PointAt(1), {-kR, 0});
    ExpectNear(path->PointAt(2), {0, -kR});
    ExpectNear(path->PointAt(3), {kR, 0});
    EXPECT_EQ(path->TypeAt(3), node::kLineTo | node::kCloseFigure);
}

TEST(PolygonShape, FirstCornerOnTheNamedSide) {
    ExpectNear(BuildPolygon(Polygon(5, kCornerRight))->PointAt(0), {kR, 0});
    ExpectNear(BuildPolygon(Polygon(5, kCornerBottom))->PointAt(0), {0, -kR});
    ExpectNear(BuildPolygon(Polygon(5, kCornerLeft))->PointAt(0), {-kR, 0});
}

TEST(PolygonShape, TriangleWithPiePiecesHasTwelveNodes) {
    PolygonSettings s = Polygon(3);
    s.piePieces = true;
    auto path = BuildPolygon(s);
    ASSERT_EQ(path->NodeCount(), 12u);
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_EQ(path->PointAt(3 * k), (Point2{0, 0}));
        EXPECT_EQ(path->TypeAt(3 * k), node::kMoveTo);
        EXPECT_EQ(path->TypeAt(3 * k + 2), node::kLineTo | node::kCloseFigure);
        // Each piece runs to its corner and on to the next, the last back to the first.
        EXPECT_EQ(path->PointAt(3 * k + 2), path->PointAt(3 * ((k + 1) % 3) + 1));
    }
    EXPECT_EQ(path->PointAt(9), path->PointAt(1));
    EXPECT_EQ(path->TypeAt(11), node::kLineTo | node::kCloseFigure);
}

TEST(PolygonShape, SpokesAreOpenAndComeBeforeTheOutline) {
    PolygonSettings s = Polygon(6);
    s.spokes = true;
    auto path = BuildPolygon(s);
    ASSERT_EQ(path->NodeCount(), 12u + 6);
    EXPECT_EQ(path->TypeAt(1), node::kLineTo);
    EXPECT_EQ(path->PointAt(1), (Point2{0, kR}));
    EXPECT_EQ(path->TypeAt(12), node::kMoveTo);
}

TEST(PolygonShape, NoFigureOrTooFewCornersGivesAnEmptyPath) {
    PolygonSettings s = Polygon(5);
    s.outline = false;
    EXPECT_EQ(BuildPolygon(s)->NodeCount(), 0u);
    EXPECT_EQ(BuildPolygon(Polygon(0))->NodeCount(), 0u);
    EXPECT_EQ(BuildPolygon(Polygon(2))->NodeCount(), 0u);
}

} // namespace
} // namespace rhomba
