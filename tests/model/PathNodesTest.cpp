#include "model/PathFigures.h"
#include "model/PathNodes.h"
#include "model/PathReduction.h"

#include "geometry/Bezier.h"
#include "model/PathGeometry.h"
#include "model/PathObject.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace rhomba {
namespace {

constexpr NodeType M = node::kMoveTo, L = node::kLineTo, B = node::kBezierTo, C = node::kCloseFigure,
                   S = node::kSelected;

void Build(PathObject& path, const std::vector<std::pair<Point2, int>>& nodes) {
    path.ClearNodes();
    for (const auto& [p, t] : nodes) path.AddNode(p, static_cast<NodeType>(t));
}

std::vector<int> Types(const PathObject& path) {
    return std::vector<int>(path.Types().begin(), path.Types().end());
}

TEST(PathNodes, ToCurveUsesTheTruncatedThirds) {
    PathObject path;
    Build(path, {{{0, 0}, M}, {{3, 0}, L | C | S}});
    ASSERT_TRUE(ConvertToCurve(path, 1));
    ASSERT_EQ(path.NodeCount(), 4u);
    EXPECT_DOUBLE_EQ(path.PointAt(1).x, 0.99999);
    EXPECT_DOUBLE_EQ(path.PointAt(2).x, 1.99998);
    EXPECT_EQ(Types(path), (std::vector<int>{M, B, B, B | C | S}));

    // Back and forth: the former controls are not remembered.
    path.SetPoint(1, {1, 5});
    ASSERT_TRUE(ConvertToLine(path, 3));
    EXPECT_EQ(Types(path), (std::vector<int>{M, L | C | S}));
    ASSERT_TRUE(ConvertToCurve(path, 1));
    EXPECT_DOUBLE_EQ(path.PointAt(1).y, 0);
    EXPECT_DOUBLE_EQ(path.PointAt(1).x, 0.99999);
}

TEST(PathNodes, MoveNodeMeansTheClosingSegmentOnlyWhenClosed) {
    PathObject path;
    Build(path, {{{0, 0}, M}, {{3, 0}, L}, {{3, 3}, L}});
    EXPECT_FALSE(ConvertToCurve(path, 0));
    EXPECT_FALSE(ConvertToLine(path, 0));
    EXPECT_EQ(path.NodeCount(), 3u);
    path.SetType(2, L | C);
    ASSERT_TRUE(ConvertToCurve(path, 0));
    EXPECT_EQ(Types(path), (std::vector<int>{M, L, B, B, B | C}));
    EXPECT_FALSE(ConvertToCurve(path, 2)); // a control point is no segment end
    EXPECT_FALSE(ConvertToLine(path, 2));
}

TEST(PathNodes, AddOnLinesDropsThePerpendicularFoot) {
    PathObject path;
    Build(path, {{{0, 0}, M}, {{100, 0}, L}, {{100, 100}, L}, {{0, 0}, L}});
    ASSERT_TRUE(AddNodeAt(path, {40, 3}, 10));
    EXPECT_EQ(path.PointAt(1), (Point2{40, 0}));
    EXPECT_EQ(path.TypeAt(1), L);
    ASSERT_TRUE(AddNodeAt(path, {97, 60}, 10));  // vertical
    EXPECT_EQ(path.PointAt(3), (Point2{100, 60}));
    ASSERT_TRUE(AddNodeAt(path, {40, 50}, 10));  // the diagonal
    EXPECT_NEAR(path.PointAt(5).x, 45, 1e-12);
    EXPECT_NEAR(path.PointAt(5).y, 45, 1e-12);
    EXPECT_FALSE(AddNodeAt(path, {50, 20}, 10)); // 20 from the base, 21 from the diagonal
    EXPECT_EQ(path.NodeCount(), 7u);
}

TEST(PathNodes, AddPrefersTheNearestAndOfEqualsTheEarlier) {
    PathObject path;
    Build(path, {{{0, 0}, M}, {{0, 10}, L}, {{0, 20}, L}});
    // (3, 10) is 3 away from both segments: the first one gets the node.
    ASSERT_TRUE(AddNodeAt(path, {3, 10}, 10));
    EXPECT_EQ(Types(path).size(), 4u);
    EXPECT_EQ(path.PointAt(1), (Point2{0, 10}));
    EXPECT_EQ(path.PointAt(2), (Point2{0, 10}));
    Build(path, {{{0, 0}, M}, {{100, 0}, L}, {{100, 5}, M}, {{0, 5}, L}});
    ASSERT_TRUE(AddNodeAt(path, {50, 3}, 10)); // nearer to the later segment
    EXPECT_EQ(path.PointAt(3), (Point2{50, 5}));
}

TEST(PathNodes, AddOnTheClosingSegmentHandsOnTheCloseBit) {
    PathObject path;
    Build(path, {{{0, 0}, M}, {{100, 0}, L}, {{100, 100}, L | C}});
    ASSERT_TRUE(AddNodeAt(path, {48, 52}, 10));
    EXPECT_EQ(Types(path), (std::vector<int>{M, L, L, L | C}));
    EXPECT_EQ(path.PointAt(3), (Point2{50, 50}));
}

TEST(PathNodes, AddOnCurvesKeepsTheirShape) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> coordinate(-300, 300), parameter(0.05, 0.95);
    for (int round = 0; round < 100; ++round) {
        PathObject path;
        const CubicBezier c{{coordinate(random), coordinate(random)}, {coordinate(random), coordinate(random)},
                            {coordinate(random), coordinate(random)}, {coordinate(random), coordinate(random)}};
        Build(path, {{c.p0, M}, {c.p1, B}, {c.p2, B}, {c.p3, B | C}});
        const Point2 q = c.At(parameter(random)) + Point2{0.5, -0.5};
        if (!AddNodeAt(path, q, 10)) continue; // a closing line may lie nearer
        if (path.NodeCount() == 5) continue;
        ASSERT_EQ(Types(path), (std::vector<int>{M, B, B, B, B, B, B | C}));
        // The split parameter, read back from the first control of the first half.
        const Point2 d = c.p1 - c.p0, e = path.PointAt(1) - c.p0;
        const double t = std::fabs(d.x) > std::fabs(d.y) ? e.x / d.x : e.y / d.y;
        const CubicBezier first{path.PointAt(0), path.PointAt(1), path.PointAt(2), path.PointAt(3)};
        const CubicBezier second{path.PointAt(3), path.PointAt(4), path.PointAt(5), path.PointAt(6)};
        EXPECT_LT(std::hypot(path.PointAt(3).x - q.x, path.PointAt(3).y - q.y), 0.75);
        for (int k = 0; k <= 20; ++k) {
            const double u = k / 20.0;
            const Point2 a = first.At(u) - c.At(u * t), b = second.At(u) - c.At(t + u * (1 - t));
            EXPECT_LT(std::hypot(a.x, a.y), 1e-9);
            EXPECT_LT(std::hypot(b.x, b.y), 1e-9);
        }
    }
}

TEST(PathNodes, JoinClosesTheFigureBySnapOrSegment) {
    PathObject path;
    Build(path, {{{0, 0}, M | S}, {{10, 0}, L}, {{5, 8}, L}, {{0.0005, 0.0004}, L | S}});
    ASSERT_TRUE(JoinWithLine(path, 3, 0));
    EXPECT_EQ(path.NodeCount(), 4u);
    EXPECT_EQ(path.PointAt(3), (Point2{0, 0}));
    EXPECT_EQ(path.TypeAt(3), L | S | C);

    Build(path, {{{0, 0}, M}, {{10, 0}, L}, {{5, 8}, L}, {{0.002, 0}, L}});
    ASSERT_TRUE(JoinWithLine(path, 0, 3));
    EXPECT_EQ(Types(path), (std::vector<int>{M, L, L, L, L | C}));
    EXPECT_EQ(path.PointAt(4), (Point2{0, 0}));
    EXPECT_FALSE(JoinWithLine(path, 0, 4)); // closed now: no end nodes left
}

TEST(PathNodes, JoinCoversAllFourCases) {
    PathObject path;
    // End of the first figure to the start of the directly following one.
    Build(path, {{{0, 0}, M}, {{1, 0}, L}, {{2, 0}, M}, {{3, 0}, L}});
    ASSERT_TRUE(JoinWithLine(path, 1, 2));
    EXPECT_EQ(Types(path), (std::vector<int>{M, L, L, L}));

    // End to end: the second figure is reversed, its curve with it.
    Build(path, {{{0, 0}, M}, {{1, 0}, L | S}, {{9, 9}, M}, {{9, 5}, B}, {{5, 5}, B}, {{5, 0}, B | S}});
    ASSERT_TRUE(JoinWithLine(path, 1, 5));
    EXPECT_EQ(Types(path), (std::vector<int>{M, L | S, L | S, B, B, B}));
    EXPECT_EQ(path.PointAt(2), (Point2{5, 0}));
    EXPECT_EQ(path.PointAt(3), (Point2{5, 5}));
    EXPECT_EQ(path.PointAt(5), (Point2{9, 9}));

    // Start to start: the later figure, reversed, comes first.
    Build(path, {{{0, 0}, M | S}, {{1, 0}, L}, {{5, 0}, M | S}, {{5, 1}, L}, {{5, 2}, L}});
    ASSERT_TRUE(JoinWithLine(path, 0, 2));
    EXPECT_EQ(Types(path), (std::vector<int>{M, L, L | S, L | S, L}));
    EXPECT_EQ(path.PointAt(0), (Point2{5, 2}));
    EXPECT_EQ(path.PointAt(3), (Point2{0, 0}));

    // Start of one figure to the end of a later one: the first follows the second.
    Build(path, {{{0, 0}, M}, {{1, 0}, L}, {{5, 0}, M}, {{5, 1}, L}});
    ASSERT_TRUE(JoinWithLine(path, 0, 3));
    EXPECT_EQ(Types(path), (std::vector<int>{M, L, L, L}));
    EXPECT_EQ(path.PointAt(2), (Point2{0, 0}));

    // Not end nodes: nothing happens.
    Build(path, {{{0, 0}, M}, {{1, 0}, L}, {{2, 0}, L}, {{5, 0}, M}, {{5, 1}, L}});
    EXPECT_FALSE(JoinWithLine(path, 1, 3));
    EXPECT_EQ(path.NodeCount(), 5u);
}

TEST(PathNodes, JoinAtIntersectionMeetsInOneCorner) {
    PathObject path;
    Build(path, {{{0, 0}, M}, {{10, 0}, L}, {{20, 5}, M}, {{20, 20}, L}});
    ASSERT_TRUE(JoinAtIntersection(path, 1, 2));
    ASSERT_EQ(path.NodeCount(), 3u);
    EXPECT_EQ(path.PointAt(1), (Point2{20, 0}));
    EXPECT_EQ(Types(path), (std::vector<int>{M, L, L}));

    // The two ends of one figure: it closes at the corner.
    Build(path, {{{0, 5}, M}, {{0, 10}, L}, {{10, 10}, L}, {{10, 0}, L}, {{5, 0}, L}});
    ASSERT_TRUE(JoinAtIntersection(path, 0, 4));
    EXPECT_EQ(path.PointAt(0), (Point2{0, 0}));
    EXPECT_EQ(path.PointAt(4), (Point2{0, 0}));
    EXPECT_EQ(path.TypeAt(4), L | C);

    // Parallel ends: a straight join.
    Build(path, {{{0, 0}, M}, {{10, 0}, L}, {{20, 5}, M}, {{30, 5}, L}});
    ASSERT_TRUE(JoinAtIntersection(path, 1, 2));
    EXPECT_EQ(path.PointAt(1), (Point2{10, 0}));
    EXPECT_EQ(path.PointAt(2), (Point2{20, 5}));
}

TEST(PathNodes, DeleteKeepsFiguresConnected) {
    PathObject path;
    Build(path,
          {{{0, 0}, M}, {{10, 0}, L | S}, {{20, 0}, L}, {{20, 5}, B}, {{25, 9}, B}, {{30, 9}, B}});
    EXPECT_EQ(DeleteSelectedNodes(path), 1u);
    EXPECT_EQ(Types(path), (std::vector<int>{M, L, B, B, B}));
    EXPECT_EQ(path.PointAt(3), (Point2{25, 9}));

    // Two curves around a deleted node become one with the outer controls.
    Build(path, {{{0, 0}, M}, {{0, 5}, B}, {{5, 10}, B}, {{10, 10}, B | S}, {{15, 10}, B}, {{20, 5}, B},
                 {{20, 0}, B | C}});
    DeleteSelectedNodes(path);
    EXPECT_EQ(Types(path), (std::vector<int>{M, B, B, B | C}));
    EXPECT_EQ(path.PointAt(1), (Point2{0, 5}));
    EXPECT_EQ(path.PointAt(2), (Point2{20, 5}));

    // The move goes: the next node starts the figure; the close bit stays.
    Build(path, {{{0, 0}, M | S}, {{10, 0}, L}, {{10, 10}, L}, {{0, 10}, L | C}});
    DeleteSelectedNodes(path);
    EXPECT_EQ(Types(path), (std::vector<int>{M, L, L | C}));
    EXPECT_EQ(path.PointAt(0), (Point2{10, 0}));

    // A figure left with one node disappears; the path keeps the rest.
    Build(path, {{{0, 0}, M}, {{10, 0}, L | S}, {{5, 5}, M}, {{6, 6}, L}});
    DeleteSelectedNodes(path);
    EXPECT_EQ(Types(path), (std::vector<int>{M, L}));
    EXPECT_EQ(path.PointAt(0), (Point2{5, 5}));

    Build(path, {{{0, 0}, M | S}, {{10, 0}, L}});
    DeleteSelectedNodes(path);
    EXPECT_EQ(path.NodeCount(), 0u);
}

TEST(PathNodes, SplitStartsAFigureAfterEachSelectedEndAndOpensEveryFigure) {
    PathObject path;
    Build(path, {{{0, 0}, M}, {{10, 0}, L}, {{10, 10}, L | C}, {{20, 0}, M}, {{30, 0}, L | C}});
    SplitAtSelectedNodes(path);
    EXPECT_EQ(Types(path), (std::vector<int>{M, L, L, M, L}));
    Build(path, {{{0, 0}, M}, {{10, 0}, L | S}, {{10, 5}, B}, {{15, 5}, B}, {{15, 10}, B | S}, {{20, 10}, L | S}});
    SplitAtSelectedNodes(path);
    EXPECT_EQ(Types(path), (std::vector<int>{M, L | S, M, B, B, B | S, M, L | S}));
    EXPECT_EQ(path.PointAt(2), (Point2{10, 0}));
    EXPECT_EQ(path.PointAt(6), (Point2{15, 10}));
    EXPECT_EQ(CountFigures(path), 3u);
}

// The largest distance of the original polyline, finely sampled, from the reduced path.
double Deviation(const PathObject& original, const PathObject& reduced) {
    double worst = 0;
    for (std::size_t k = 1; k < original.NodeCount(); ++k) {
        const Point2 a = original.PointAt(k - 1), b = original.PointAt(k);
        for (double t : {0.0, 0.5, 1.0}) {
            worst = std::max(worst, DistanceToPath(reduced, a + (b - a) * t));
        }
    }
    return worst;
}

TEST(PathNodes, ReduceACircleToAFewCurves) {
    PathObject circle;
    for (int k = 0; k < 1000; ++k) {
        const double a = 6.283185307179586 * k / 1000;
        circle.AddNode({100 * std::cos(a), 100 * std::sin(a)},
                       static_cast<NodeType>((k == 0 ? M : k == 999 ? L | C : L) | S));
    }
    PathObject before;
    before.AppendFrom(circle);
    ReduceSelectedNodes(circle);
    EXPECT_LE(circle.NodeCount(), 17u);
    EXPECT_LE(Deviation(before, circle), 2.8);
    EXPECT_EQ(circle.TypeAt(circle.NodeCount() - 1) & C, C);
    EXPECT_EQ(circle.PointAt(0), before.PointAt(0));
}

TEST(PathNodes, ReduceKeepsCornersAndStraightensLines) {
    PathObject path;
    path.AddNode({0, 0}, M | S);
    for (int k = 1; k <= 10; ++k) path.AddNode({k * 5.0, 0}, L | S);
    for (int k = 1; k <= 10; ++k) path.AddNode({50, k * 5.0}, L | S);
    ReduceSelectedNodes(path);
    EXPECT_EQ(Types(path), (std::vector<int>{M | S, L | S, L | S}));
    EXPECT_EQ(path.PointAt(1), (Point2{50, 0}));

    // Only the selected run is touched.
    PathObject partial;
    partial.AddNode({0, 0}, M);
    for (int k = 1; k <= 10; ++k) partial.AddNode({k * 5.0, 0}, static_cast<NodeType>(k >= 4 ? L | S : L));
    ReduceSelectedNodes(partial);
    EXPECT_EQ(partial.NodeCount(), 6u); // the run starts at its first selected node
    EXPECT_EQ(partial.PointAt(4), (Point2{20, 0}));
    EXPECT_EQ(partial.PointAt(5), (Point2{50, 0}));

    // A corner and a curve leave nothing to save: the nodes are copied as they were.
    Build(partial,
          {{{0, 0}, M | S}, {{10, 0}, L | S}, {{10, 5}, B}, {{15, 5}, B}, {{15, 10}, B | S}});
    ReduceSelectedNodes(partial);
    EXPECT_EQ(Types(partial), (std::vector<int>{M | S, L | S, B, B, B | S}));
}

TEST(PathNodes, ReduceStaysWithinToleranceOnRandomSmoothPaths) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> amplitude(5, 60), frequency(0.005, 0.05);
    for (int round = 0; round < 8; ++round) {
        PathObject path;
        const double a = amplitude(random), f = frequency(random), g = frequency(random);
        for (int k = 0; k < 600; ++k) {
            const double x = k * 0.8;
            path.AddNode({x, a * std::sin(f * x) + a / 2 * std::cos(g * x)}, static_cast<NodeType>((k == 0 ? M : L) | S));
        }
        PathObject before;
        before.AppendFrom(path);
        ReduceSelectedNodes(path);
        EXPECT_LT(path.NodeCount(), before.NodeCount() / 10);
        EXPECT_LE(Deviation(before, path), 2.8) << round;
    }
}

} // namespace
} // namespace rhomba
