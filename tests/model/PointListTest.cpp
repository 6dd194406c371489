#include "model/PointList.h"

#include "geometry/Isometric.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

TEST(PointList, WritesMillimetresWithDecimalCommasAndReadsThemBack) {
    PathObject path;
    path.AddNode({0, 0}, node::kMoveTo | node::kSelected);
    path.AddNode({10 * kPointsPerMillimetre, 2.5 * kPointsPerMillimetre}, node::kBezierTo);
    path.AddNode({-1, 0}, node::kBezierTo);
    path.AddNode({100, 50}, node::kBezierTo | node::kCloseFigure);
    path.AddNode({60, 0}, node::kMoveTo);
    path.AddNode({70, 5}, node::kLineTo);
    const std::string text = FormatPointList(path);
    EXPECT_EQ(text, "M 0 0\r\nB 10 2,5\r\nB -0,353 0\r\nB 35,278 17,639 Z\r\nM 21,167 0\r\n"
                    "L 24,694 1,764\r\n");
    PathObject copy;
    ASSERT_TRUE(ApplyPointList(copy, text));
    ASSERT_EQ(copy.NodeCount(), path.NodeCount());
    for (std::size_t i = 0; i < path.NodeCount(); ++i) {
        EXPECT_EQ(copy.TypeAt(i), path.TypeAt(i) & ~node::kSelected) << i;
        EXPECT_NEAR(copy.PointAt(i).x, path.PointAt(i).x, 0.0015);
        EXPECT_NEAR(copy.PointAt(i).y, path.PointAt(i).y, 0.0015);
    }
}

TEST(PointList, ReadsLeniently) {
    NodeRun run;
    ASSERT_TRUE(ParsePointList("  1,5\t2\n\n3;4 z\r\nm 5 6\nL 7 8\n", run));
    ASSERT_EQ(run.points.size(), 4u);
    EXPECT_DOUBLE_EQ(run.points[0].x, 1.5 * kPointsPerMillimetre);
    EXPECT_EQ(run.types, (std::vector<NodeType>{node::kMoveTo, node::kLineTo | node::kCloseFigure,
                                                node::kMoveTo, node::kLineTo}));
}

TEST(PointList, FailureLeavesThePathAlone) {
    PathObject path;
    path.AddNode({1, 2}, node::kMoveTo);
    path.AddNode({3, 4}, node::kLineTo);
    for (const char* bad : {"", "M 1 2", "M 1 2\nL 3", "M 1 2\nL 3 x", "M 1 2\nQ 3 4", "M 1 2\nB 3 4\nB 5 6\nL 7 8",
                            "M 1 2\nB 3 4\nB 5 6", "L 1 2\nL 3 4", "M 1 2 Z\nL 3 4", "M 1 2\nL 3 4 Y",
                            "M 1 2\nL 3 4 Z 5", "M 1 2\nL 1e999 4"}) {
        EXPECT_FALSE(ApplyPointList(path, bad)) << bad;
    }
    EXPECT_EQ(path.NodeCount(), 2u);
    EXPECT_EQ(path.PointAt(1), (Point2{3, 4}));
}

} // namespace
} // namespace rhomba
