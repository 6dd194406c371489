#include "ui/tools/NodeGrab.h"

#include "support/Paths.h"

namespace rhomba::test {
namespace {

// An on-curve node wins over a shown control point that is not strictly nearer, the first node
// too; the controls of the one selected node are shown.
TEST(NodeGrab, NearestNodeWinsOverAControlThatIsNotNearer) {
    auto path = NodePath({{{0, 0}, node::kMoveTo | node::kSelected}, {{30, 0}, node::kBezierTo},
                          {{70, 30}, node::kBezierTo}, {{100, 30}, node::kBezierTo}});
    const GrabbableNode node = NearestGrabbableNode(*path, {0, 1}, true);
    EXPECT_EQ(node.index, 0);
    EXPECT_FALSE(node.control);
    EXPECT_EQ(node.distance, 1);
    const GrabbableNode control = NearestGrabbableNode(*path, {29, 0}, true);
    EXPECT_EQ(control.index, 1);
    EXPECT_TRUE(control.control);
    EXPECT_EQ(control.distance, 1);
    EXPECT_EQ(NearestGrabbableNode(*path, {29, 0}, false).index, 0);
    // A closed figure whose every node is selected shows the controls of its start and end.
    auto closed = NodePath({{{0, 0}, node::kMoveTo | node::kSelected}, {{30, 0}, node::kBezierTo | node::kSelected},
                            {{70, 30}, node::kBezierTo | node::kSelected},
                            {{0, 0}, node::kBezierTo | node::kSelected | node::kCloseFigure}});
    EXPECT_TRUE(NearestGrabbableNode(*closed, {29, 0}, true).control);
}

// The drag's feedback runs the segments that touch the moved node, the closing one included.
TEST(NodeGrab, OutlineRunsTheTouchedSegmentsWithTheMovedNode) {
    auto path = Polyline({{0, 0}, {10, 0}, {10, 10}}, true);
    const NodeDrag drag(*path, 0);
    ExpectPoints(*drag.Outline(*path, {1, 1}), {{1, 1}, {10, 0}, {10, 10}, {1, 1}}, 0);
}

} // namespace
} // namespace rhomba::test
