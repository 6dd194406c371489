#include "model/PathGeometry.h"

#include "model/Document.h"
#include "model/PathObject.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

void FillCurve(PathObject& path) {
    path.AddNode({0, 0}, node::kMoveTo);
    path.AddNode({0, 100}, node::kBezierTo);
    path.AddNode({100, 100}, node::kBezierTo);
    path.AddNode({100, 0}, node::kBezierTo);
    path.AddNode({100, -20}, node::kLineTo | node::kCloseFigure);
}

TEST(PathGeometry, BoundsCoverControlPointsAndHalfThePen) {
    PathObject path;
    FillCurve(path);
    path.SetPenWidth(4);
    Rect2 box;
    ASSERT_TRUE(path.GetBounds(box, false));
    EXPECT_EQ(box, (Rect2{0, 100, 100, -20})); // the control points, not the curve's peak at 75
    ASSERT_TRUE(path.GetBounds(box, true));
    EXPECT_EQ(box, (Rect2{-2, 102, 102, -22}));

    PathObject empty;
    Rect2 untouched{1, 2, 3, 4};
    EXPECT_FALSE(empty.GetBounds(untouched, true));
    EXPECT_EQ(untouched, (Rect2{1, 2, 3, 4}));
}

TEST(PathGeometry, HitTestFollowsCurvesAndTheClosingSegment) {
    Document document;
    auto owned = std::make_unique<PathObject>();
    FillCurve(*owned);
    PathObject& path = *owned;
    document.AddObject(std::move(owned));
    EXPECT_EQ(document.CurrentLayer().HitTest({100, -10}, 1), &path);
    EXPECT_EQ(path.HitTest({50, 76}, 2), &path);
    EXPECT_EQ(path.HitTest({50, 50}, 2), nullptr);   // inside the arch
    EXPECT_EQ(path.HitTest({50, 99}, 2), nullptr);   // near the control polygon only
    EXPECT_EQ(path.HitTest({101, -10}, 2), &path);   // the line
    EXPECT_EQ(path.HitTest({50, -11}, 2), &path);    // the closing line back to (0, 0)
    path.SetType(4, node::kLineTo);
    EXPECT_EQ(path.HitTest({50, -11}, 2), nullptr);  // open now
}

TEST(PathGeometry, NearestAndHitNode) {
    PathObject path;
    FillCurve(path);
    const NearestNode n = FindNearestNode(path, {97, 96});
    EXPECT_EQ(n.index, 2);
    EXPECT_DOUBLE_EQ(n.distance, 5);
    EXPECT_EQ(HitNode(path, {97, 96}, 5), 2);
    EXPECT_EQ(HitNode(path, {97, 96}, 4.9), -1);
    EXPECT_EQ(FindNearestNode(PathObject(), {0, 0}).index, -1);
}

TEST(PathGeometry, RubberBandSelectsNodesInside) {
    PathObject path;
    FillCurve(path);
    path.SetType(0, node::kMoveTo | node::kSelected);
    EXPECT_EQ(SelectNodesInRect(path, {110, 10}, {90, -30}), 2u);
    EXPECT_EQ(path.TypeAt(0), node::kMoveTo);
    EXPECT_EQ(path.TypeAt(3), node::kBezierTo | node::kSelected);
    EXPECT_EQ(path.TypeAt(4), node::kLineTo | node::kCloseFigure | node::kSelected);
}

} // namespace
} // namespace rhomba
