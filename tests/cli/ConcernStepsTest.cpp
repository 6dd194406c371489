// The steps that other concerns add to "apply": each drives the same code as its menu command
// or dialog, so these tests check the wiring (words read, model reached, result saved), not the
// geometry, which the concern's own tests pin.
#include "CliHarness.h"

namespace rhomba::cli {
namespace {

using ConcernSteps = CliHarness;

// Path #3 from (0, 0) to (3, 0), and path #4 from (10, 0) to (10, 5).
const std::string kTwoLines =
    "Rhomba Version 1.0\r\n\r\nLayer EVP \r\n\r\nM\t0\t0\r\nL\t3\t0\r\nS\r\n"
    "\r\nM\t10\t0\r\nL\t10\t5\r\nS\r\n\r\nRhombaEnd\r\n";

TEST_F(ConcernSteps, GeneratorsAddTheirPathToANewDrawing) {
    ASSERT_EQ(Apply("-", {"polygon", "4", "10", "top", "0", "0", "1", "circle 10 0 360 0 0"}),
              kExitOk);
    ASSERT_EQ(result.CurrentLayer().ChildCount(), 2u);
    EXPECT_EQ(PathAt(0, 0).Types()[0] & node::kKindMask, node::kMoveTo);
    // A radius the polygon dialog refuses says why and adds nothing; the run goes on.
    ASSERT_EQ(Apply("-", {"polygon 4 0 top 0 0 1", "sine", "10", "0", "4", "0", "0"}), kExitOk);
    EXPECT_NE(err.find("polygon: "), std::string::npos);
    EXPECT_EQ(result.CurrentLayer().ChildCount(), 1u);
}

TEST_F(ConcernSteps, TransformationsActOnTheSelectionInMillimetres) {
    ASSERT_EQ(Apply(kTwoLines, {"select id 3", "move", "10", "0"}), kExitOk);
    EXPECT_NEAR(PathAt(0, 0).PointAt(0).x, 10 * 2.834653369727658, 1e-4);
    EXPECT_EQ(PathAt(0, 1).PointAt(0).x, 10); // not selected

    // The dialogs refuse an empty selection with the program's message; the run goes on.
    ASSERT_EQ(Apply(kTwoLines, {"rotate", "90", "ccw", "select", "id", "4", "rotate 90 ccw"}),
              kExitOk);
    EXPECT_NE(err.find("Kein Object markiert!"), std::string::npos);
    EXPECT_NEAR(PathAt(0, 1).PointAt(0).x, 12.5, 1e-9); // turned about its centre (10, 2.5)
}

TEST_F(ConcernSteps, NodeStepsWorkOnTheChosenNodes) {
    ASSERT_EQ(Apply(kTwoLines, {"nodes", "3", "1", "node", "to-curve", "1"}), kExitOk);
    PathObject& curve = PathAt(0, 0);
    ASSERT_EQ(curve.NodeCount(), 4u);
    EXPECT_TRUE(node::IsBezier(curve.TypeAt(3)));
    // The thirds (0.99999, 1.99998) come back at the file's four decimals.
    EXPECT_EQ(curve.PointAt(1).x, 1);
    EXPECT_EQ(curve.PointAt(2).x, 2);
}

TEST_F(ConcernSteps, CombineAndSplitAreInverse) {
    ASSERT_EQ(Apply(kTwoLines, {"select all", "combine"}), kExitOk);
    ASSERT_EQ(result.CurrentLayer().ChildCount(), 1u);
    EXPECT_EQ(PathAt(0, 0).NodeCount(), 4u);
    ASSERT_EQ(Apply(kTwoLines, {"select", "all", "combine", "split"}), kExitOk);
    ASSERT_EQ(result.CurrentLayer().ChildCount(), 2u);
    EXPECT_EQ(PathAt(0, 1).PointAt(1), (Point2{10, 5}));
}

} // namespace
} // namespace rhomba::cli
