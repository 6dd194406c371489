// libFuzzer target for the glyph-record walker: any bytes, as a font driver might hand them
// over, give closed figures of whole segments and never read past the buffer. The first two
// bytes are the pen position.
#include "FuzzCheck.h"

#include "model/PathObject.h"
#include "text/GlyphRecords.h"

#include <cmath>
#include <cstdint>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rhomba;
    using namespace rhomba::fuzz;
    if (size < 2) return 0;
    const double penX = static_cast<std::int16_t>(data[0] | data[1] << 8);
    // A copy of exactly the records, so that AddressSanitizer sees any read beyond them.
    const std::vector<std::uint8_t> records(data + 2, data + size);
    PathObject path;
    const int figures = AppendGlyphFigures(records, penX, path);

    int moves = 0;
    std::size_t curve = 0;
    for (std::size_t i = 0; i < path.NodeCount(); ++i) {
        const NodeType type = path.TypeAt(i);
        const Point2 p = path.PointAt(i);
        Require(std::isfinite(p.x) && std::isfinite(p.y), "points are numbers");
        if (node::IsBezier(type)) {
            curve = (curve + 1) % 3;
            continue;
        }
        Require(curve == 0, "curves come in threes");
        if (node::IsMoveTo(type)) {
            Require(i == 0 || (path.TypeAt(i - 1) & node::kCloseFigure), "figures are closed");
            ++moves;
        }
    }
    Require(curve == 0, "curves come in threes");
    Require(moves == figures, "one move per figure");
    Require(path.NodeCount() == 0 || (path.TypeAt(path.NodeCount() - 1) & node::kCloseFigure),
            "the last figure is closed");
    return 0;
}
