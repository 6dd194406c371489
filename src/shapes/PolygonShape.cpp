#include "shapes/PolygonShape.h"

#include "geometry/Isometric.h"
#include "shapes/GeneratedPath.h"

#include <vector>

namespace rhomba {

namespace {

// Rotation angle that brings the corner straight above the origin to the asked side; Rotation
// turns counter-clockwise, so the right side is three quarter turns away.
double FirstCornerTurn(int position) {
    switch (position) {
    case kCornerRight: return 270;
    case kCornerBottom: return 180;
    case kCornerLeft: return 90;
    default: return 0;
    }
}

} // namespace

std::unique_ptr<PathObject> BuildPolygon(const PolygonSettings& settings) {
    auto path = NewGeneratedPath();
    const int n = settings.corners;
    if (n < 3) return path;

    const double r = settings.radiusMillimetres * kPointsPerMillimetre;
    std::vector<Point2> corners;
    corners.reserve(static_cast<std::size_t>(n));
    Point2 corner{0, r};
    const double turn = FirstCornerTurn(settings.firstCorner);
    if (turn != 0) corner = Matrix2D::Rotation(turn).TransformPoint(corner);
    // Each corner is the previous one turned, as the dialog always built them.
    const Matrix2D step = Matrix2D::Rotation(360.0 / n);
    for (int k = 0; k < n; ++k) {
        corners.push_back(corner);
        corner = step.TransformPoint(corner);
    }

    const std::size_t count = corners.size();
    if (settings.piePieces) {
        for (std::size_t k = 0; k < count; ++k) {
            path->AddNode({0, 0}, node::kMoveTo);
            path->AddNode(corners[k], node::kLineTo);
            path->AddNode(corners[(k + 1) % count], node::kLineTo);
            CloseFigure(*path);
        }
    }
    if (settings.spokes) {
        for (const Point2& p : corners) {
            path->AddNode({0, 0}, node::kMoveTo);
            path->AddNode(p, node::kLineTo);
        }
    }
    if (settings.outline) {
        path->AddNode(corners[0], node::kMoveTo);
        for (std::size_t k = 1; k < count; ++k) path->AddNode(corners[k], node::kLineTo);
        CloseFigure(*path);
    }
    return path;
}

} // namespace rhomba
