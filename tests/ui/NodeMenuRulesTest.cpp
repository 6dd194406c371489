#include "ui/NodeMenuRules.h"

#include "model/TextObject.h"
#include "support/Paths.h"

namespace rhomba::test {
namespace {

// A path from letters: m move, l line, b curve point; upper case selected, '*' closes the figure.
std::unique_ptr<PathObject> PathOf(const std::string& nodes) {
    auto path = std::make_unique<PathObject>();
    for (char c : nodes) {
        const std::size_t n = path->NodeCount();
        if (c == '*') {
            path->SetType(n - 1, static_cast<NodeType>(path->TypeAt(n - 1) | node::kCloseFigure));
            continue;
        }
        const char kind = static_cast<char>(std::tolower(c));
        const int type = kind == 'm' ? node::kMoveTo : kind == 'l' ? node::kLineTo : node::kBezierTo;
        path->AddNode({n * 10.0, n % 2 * 10.0}, static_cast<NodeType>(type | (kind != c ? node::kSelected : 0)));
    }
    return path;
}

// Entries 1 to 9 by their initials ("Hinzufuegen", "Verbinden mit Linie", ... "Eigenschaften"),
// '-' where grayed.
std::string Enabled(const GraphicObject* first) {
    const NodeMenuState state = NodeMenuRules(first);
    std::string out;
    for (int entry = kNodeAdd; entry <= kNodeProperties; ++entry) out += state[entry] ? "HVSLTKIRE"[entry - 1] : '-';
    return out;
}

TEST(NodeMenuRules, EnabledEntriesFollowTheSelectedNodes) {
    const std::pair<const char*, const char*> cases[] = {
        {"mllml", "H-------E"},
        // Two open ends: joinable; both end their figures, so nothing to split; a selected move
        // whose figure's last node is not selected is no segment to convert.
        {"mlLMl", "-VSL---RE"},
        {"mLLml", "---LT--RE"},   // two lines: split, but no single segment to convert
        {"mlLml", "---L-K-RE"},   // one line ending its figure
        {"mlL*", "---LTK-RE"},    // a closed figure's end splits
        {"mlbbB", "---L--IRE"},   // one curve
        {"mLbbBL", "---LT--RE"},  // lines and a curve
        {"mlbB", "---L---RE"},    // a curve cut short at the end is no segment
    };
    for (const auto& [nodes, expected] : cases) EXPECT_EQ(Enabled(PathOf(nodes).get()), expected) << nodes;
    EXPECT_EQ(Enabled(nullptr), "H--------");
    TextObject text;
    EXPECT_EQ(Enabled(&text), "H--------");
    EXPECT_FALSE(SplitRule(*PathOf("mll*ml*")));
}

} // namespace
} // namespace rhomba::test
