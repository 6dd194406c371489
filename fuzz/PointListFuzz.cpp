// libFuzzer target for the coordinates page's point list: any text must parse or be refused
// without a crash; what parses must be a well-formed path of numbers whose list, read again,
// gives the same list.
#include "FuzzCheck.h"

#include "model/PathObject.h"
#include "model/PointList.h"

#include <cmath>
#include <cstdint>
#include <string>

namespace rhomba::fuzz {
namespace {

void RequireWellFormed(const NodeRun& run) {
    Require(run.points.size() == run.types.size() && run.points.size() >= 2, "two nodes or more");
    Require(node::IsMoveTo(run.types[0]), "a list starts with a move");
    std::size_t curve = 0; // Bezier points of the current run of three
    for (std::size_t i = 0; i < run.points.size(); ++i) {
        const NodeType type = run.types[i];
        Require(std::isfinite(run.points[i].x) && std::isfinite(run.points[i].y),
                "points are numbers");
        Require(!(node::IsMoveTo(type) && (type & node::kCloseFigure)), "a move closes nothing");
        if (node::IsBezier(type)) {
            curve = (curve + 1) % 3;
        } else {
            Require(curve == 0, "curves come in threes");
        }
    }
    Require(curve == 0, "curves come in threes");
}

} // namespace
} // namespace rhomba::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rhomba;
    using namespace rhomba::fuzz;
    const std::string text(reinterpret_cast<const char*>(data), size);
    NodeRun run;
    if (!ParsePointList(text, run)) return 0;
    RequireWellFormed(run);

    PathObject path;
    Require(ApplyPointList(path, text), "a list that parses applies");
    const std::string list = FormatPointList(path);
    Require(HoldsNoInfinityOrNan(list), "the list shows numbers");
    PathObject again;
    Require(ApplyPointList(again, list), "a shown list parses");
    Require(FormatPointList(again) == list, "a shown list reads back to itself");
    return 0;
}
