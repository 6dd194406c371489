// The steps that other concerns add to "apply": each drives the same code as its menu command
// or dialog, so these tests check the wiring (words read, model reached, result saved), not the
// geometry, which the concern's own tests pin.
#include "cli/Cli.h"
#include "format/NativeReader.h"
#include "model/Document.h"
#include "model/PathObject.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace rhomba::cli {
namespace {

class ConcernSteps : public ::testing::Test {
protected:
    // Runs "apply" from input (a native text, or "-" for a new drawing) and loads the result.
    int Apply(const std::string& input, std::vector<std::string> steps) {
        std::string in = "-";
        if (input != "-") {
            in = Temp("in.rhomba");
            std::ofstream(in, std::ios::binary) << input;
        }
        std::vector<std::string> args{"apply", in, Temp("out.rhomba")};
        args.insert(args.end(), steps.begin(), steps.end());
        std::ostringstream out, err;
        const int code = cli::Run(args, out, err);
        errors = err.str();
        std::ifstream saved(Temp("out.rhomba"), std::ios::binary);
        result.Reset();
        ParseNative(result, std::string(std::istreambuf_iterator<char>(saved), {}), false);
        return code;
    }

    static std::string Temp(const std::string& name) {
        return (std::filesystem::path(testing::TempDir()) / name).string();
    }

    std::vector<PathObject*> Paths() {
        std::vector<PathObject*> paths;
        Layer& layer = result.CurrentLayer();
        for (std::size_t i = 0; i < layer.ChildCount(); ++i) {
            if (layer.ChildAt(i)->GetKind() == ObjectKind::Path) {
                paths.push_back(static_cast<PathObject*>(layer.ChildAt(i)));
            }
        }
        return paths;
    }

    Document result;
    std::string errors;
};

// Path #3 from (0, 0) to (3, 0), and path #4 from (10, 0) to (10, 5).
const std::string kTwoLines =
    "Rhomba Version 1.0\r\n\r\nLayer EVP \r\n\r\nM\t0\t0\r\nL\t3\t0\r\nS\r\n"
    "\r\nM\t10\t0\r\nL\t10\t5\r\nS\r\n\r\nRhombaEnd\r\n";

TEST_F(ConcernSteps, GeneratorsAddTheirPathToANewDrawing) {
    ASSERT_EQ(Apply("-", {"polygon 4 10 top 0 0 1", "circle 10 0 360 0 0"}), kExitOk);
    ASSERT_EQ(Paths().size(), 2u);
    EXPECT_EQ(Paths()[0]->Types()[0] & node::kKindMask, node::kMoveTo);
    // A radius the polygon dialog refuses says why and adds nothing; the run goes on.
    ASSERT_EQ(Apply("-", {"polygon 4 0 top 0 0 1", "sine 10 0 4 0 0"}), kExitOk);
    EXPECT_FALSE(errors.empty());
    EXPECT_EQ(Paths().size(), 1u);
}

TEST_F(ConcernSteps, TransformationsActOnTheSelectionInMillimetres) {
    ASSERT_EQ(Apply(kTwoLines, {"select id 3", "move 10 0"}), kExitOk);
    const double moved = 10 * 2.834653369727658;
    EXPECT_NEAR(Paths()[0]->PointAt(0).x, moved, 1e-4);
    EXPECT_EQ(Paths()[1]->PointAt(0).x, 10); // not selected

    // The dialogs refuse an empty selection with the program's message; the run goes on.
    ASSERT_EQ(Apply(kTwoLines, {"rotate 90 ccw", "select id 4", "rotate 90 ccw"}), kExitOk);
    EXPECT_NE(errors.find("Kein Object markiert!"), std::string::npos);
    EXPECT_NEAR(Paths()[1]->PointAt(0).x, 12.5, 1e-9); // turned about its centre (10, 2.5)
}

TEST_F(ConcernSteps, NodeStepsWorkOnTheChosenNodes) {
    ASSERT_EQ(Apply(kTwoLines, {"nodes 3 1", "node to-curve 1"}), kExitOk);
    PathObject& curve = *Paths()[0];
    ASSERT_EQ(curve.NodeCount(), 4u);
    EXPECT_TRUE(node::IsBezier(curve.TypeAt(3)));
    // The thirds (0.99999, 1.99998) come back at the file's four decimals.
    EXPECT_EQ(curve.PointAt(1).x, 1);
    EXPECT_EQ(curve.PointAt(2).x, 2);
}

TEST_F(ConcernSteps, CombineAndSplitAreInverse) {
    ASSERT_EQ(Apply(kTwoLines, {"select all", "combine"}), kExitOk);
    ASSERT_EQ(Paths().size(), 1u);
    EXPECT_EQ(Paths()[0]->NodeCount(), 4u);

    ASSERT_EQ(Apply(kTwoLines, {"select all", "combine", "split"}), kExitOk);
    ASSERT_EQ(Paths().size(), 2u);
    EXPECT_EQ(Paths()[1]->PointAt(1), (Point2{10, 5}));
}

} // namespace
} // namespace rhomba::cli
