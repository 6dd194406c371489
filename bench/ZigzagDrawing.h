#pragma once
// The drawing the repaint measurements share: 100,000 nodes in 1000 zigzag paths.

#include "model/Document.h"
#include "model/PathObject.h"

#include <memory>

namespace rhomba::bench {

inline constexpr int kZigzagPaths = 1000;
inline constexpr int kZigzagNodesPerPath = 100;

// Zigzag figures of lines and curves over an A4 page, every fifth path dashed; nothing selected.
inline void BuildZigzagDrawing(Document& document, int paths = kZigzagPaths) {
    for (int p = 0; p < paths; ++p) {
        auto path = std::make_unique<PathObject>();
        path->ReserveNodes(kZigzagNodesPerPath);
        const double y0 = 20 + (p % 80) * 10, x0 = 20 + (p / 80) * 40;
        path->AddNode({x0, y0}, node::kMoveTo);
        for (int i = 1; i < kZigzagNodesPerPath; ++i) {
            // Runs of three Bezier points, then lines, so both kinds are walked.
            const NodeType t = (i % 6 >= 1 && i % 6 <= 3) ? node::kBezierTo : node::kLineTo;
            path->AddNode({x0 + i * 0.35, y0 + (i % 2) * 4}, t);
        }
        if (p % 5 == 0) path->SetDashDot({3, 1, 1, 1, 0, 0, 0, 0});
        path->SetPenWidth(0.5 + (p % 3) * 0.25);
        document.AddObject(std::move(path));
    }
    document.ClearSelection();
}

} // namespace rhomba::bench
