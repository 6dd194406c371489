#include "ui/NodeMenuRules.h"

#include "support/Paths.h"

namespace rhomba::test {
namespace {

constexpr NodeType M = node::kMoveTo, L = node::kLineTo, B = node::kBezierTo,
                   C = node::kCloseFigure, S = node::kSelected;

TEST(NodeMenuRules, SplitNeedsASelectedEndFollowedByMoreOfItsFigure) {
    EXPECT_FALSE(SplitRule(
        *NodePath({{{0, 0}, M}, {{10, 0}, L}, {{10, 10}, L | C}, {{20, 0}, M}, {{30, 0}, L | C}})));
    EXPECT_TRUE(SplitRule(*NodePath({{{0, 0}, M}, {{10, 0}, L | S}, {{10, 5}, B}, {{15, 5}, B},
                                     {{15, 10}, B | S}, {{20, 10}, L | S}})));
}

TEST(NodeMenuRules, EnabledEntriesFollowTheSelectedNodes) {
    auto owned = NodePath({{{0, 0}, M}, {{10, 0}, L}, {{10, 10}, L}, {{5, 5}, M}, {{6, 6}, L}});
    PathObject& path = *owned;
    NodeMenuState state = NodeMenuRules(&path);
    EXPECT_TRUE(state[kNodeAdd]);
    EXPECT_TRUE(state[kNodeProperties]);
    for (int entry : {kNodeJoinLine, kNodeJoinIntersection, kNodeDelete, kNodeSplit, kNodeToCurve,
                      kNodeToLine, kNodeReduce}) {
        EXPECT_FALSE(state[entry]) << entry;
    }
    path.SetType(2, L | S);
    path.SetType(3, M | S);
    state = NodeMenuRules(&path);
    EXPECT_FALSE(state[kNodeAdd]);
    EXPECT_TRUE(state[kNodeJoinLine]);
    EXPECT_TRUE(state[kNodeDelete]);
    EXPECT_FALSE(state[kNodeSplit]);   // both selected nodes already end their figures
    EXPECT_FALSE(state[kNodeToCurve]); // a selected move whose last node is not selected
    path.SetType(3, M);
    path.SetType(1, L | S);
    state = NodeMenuRules(&path);
    EXPECT_FALSE(state[kNodeJoinLine]); // node 1 is no end node
    EXPECT_TRUE(state[kNodeSplit]);
    EXPECT_FALSE(state[kNodeToCurve]); // two selected lines
    path.SetType(1, L);
    EXPECT_TRUE(NodeMenuRules(&path)[kNodeToCurve]);
    EXPECT_FALSE(NodeMenuRules(&path)[kNodeToLine]);
    const NodeMenuState none = NodeMenuRules(nullptr);
    EXPECT_TRUE(none[kNodeAdd]);
    EXPECT_FALSE(none[kNodeProperties]);
}

} // namespace
} // namespace rhomba::test
