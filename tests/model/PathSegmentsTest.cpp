#include "model/PathSegments.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace rhomba {
namespace {

constexpr NodeType M = node::kMoveTo, L = node::kLineTo, B = node::kBezierTo, C = node::kCloseFigure;

// Writes each step as its letter and the x of its points.
class Recorder final : public PathSink {
public:
    std::string text;
    void MoveTo(Point2 p) override { Add("M", {p}); }
    void LineTo(Point2 p) override { Add("L", {p}); }
    void CurveTo(Point2 c1, Point2 c2, Point2 end) override { Add("C", {c1, c2, end}); }
    void CloseFigure() override { text += "z "; }

private:
    void Add(const char* letter, std::initializer_list<Point2> points) {
        text += letter;
        for (Point2 p : points) text += std::to_string(static_cast<int>(p.x));
        text += ' ';
    }
};

TEST(PathSegments, OneRuleForEveryTypeArray) {
    struct Case {
        const char* what;
        std::vector<NodeType> types;
        const char* walked;
    };
    const Case cases[] = {
        {"figures, curves and closes", {M, L, B, B, B | C, M | C, L | C, L}, "M0 L1 C234 z M5 L6 z L7 "},
        {"a curve cut short at the end is dropped", {M, L, B, B}, "M0 L1 "},
        {"a broken run counts as lines", {M, B, L, L | C}, "M0 L1 L2 L3 z "},
        {"nodes without a kind are skipped", {M, 0, L, C}, "M0 L2 "},
        {"the first node always starts a figure", {L | C, B, B, B}, "M0 C123 "},
    };
    for (const Case& c : cases) {
        std::vector<Point2> points;
        for (std::size_t i = 0; i < c.types.size(); ++i) points.push_back({double(i), 0});
        Recorder recorder;
        WalkPath(points, c.types, recorder);
        EXPECT_EQ(recorder.text, c.walked) << c.what;
    }
}

} // namespace
} // namespace rhomba
