#include "shapes/CircleShape.h"

#include "geometry/Isometric.h"
#include "shapes/GeneratedPath.h"

#include <cmath>

namespace rhomba {

namespace {

// Control length of a quarter circle per unit radius.
constexpr double kKappa = 0.55228474983079;

// The quarter from angle quarter * 90 to the next, radius r.
void AppendQuarter(PathObject& path, double r, int quarter) {
    const double k = kKappa * r;
    switch (quarter) {
    case 0:
        path.AddNode({r, k}, node::kBezierTo);
        path.AddNode({k, r}, node::kBezierTo);
        path.AddNode({0, r}, node::kBezierTo);
        break;
    case 1:
        path.AddNode({-k, r}, node::kBezierTo);
        path.AddNode({-r, k}, node::kBezierTo);
        path.AddNode({-r, 0}, node::kBezierTo);
        break;
    case 2:
        path.AddNode({-r, -k}, node::kBezierTo);
        path.AddNode({-k, -r}, node::kBezierTo);
        path.AddNode({0, -r}, node::kBezierTo);
        break;
    default:
        path.AddNode({k, -r}, node::kBezierTo);
        path.AddNode({r, -k}, node::kBezierTo);
        path.AddNode({r, 0}, node::kBezierTo);
        break;
    }
}

} // namespace

double FoldFullTurnDegrees(double degrees) {
    if (!std::isfinite(degrees)) return 0;
    // Far-off values are brought near first so that the loops below stay short.
    if (std::fabs(degrees) > 1e6) degrees = std::fmod(degrees, 360.0);
    while (degrees < 0) degrees += 360;
    while (degrees >= 360) degrees -= 360;
    return degrees;
}

std::unique_ptr<PathObject> BuildCircle(const CircleSettings& settings) {
    auto path = NewGeneratedPath();
    const double start = FoldFullTurnDegrees(settings.startDegrees);
    const double end = FoldFullTurnDegrees(settings.endDegrees);
    const double r = settings.radiusMillimetres * kPointsPerMillimetre;

    if (start == end) {
        path->AddNode({r, 0}, node::kMoveTo);
        for (int q = 0; q < 4; ++q) AppendQuarter(*path, r, q);
        CloseFigure(*path);
    } else {
        // The arc runs counter-clockwise from start to end, also across 0.
        const double span = end > start ? end - start : end - start + 360;
        if (settings.spokes) {
            path->AddNode({0, 0}, node::kMoveTo);
            path->AddNode({r, 0}, node::kLineTo);
        } else {
            path->AddNode({r, 0}, node::kMoveTo);
        }
        int whole = 0;
        while (whole < 3 && span >= 90.0 * (whole + 1)) {
            AppendQuarter(*path, r, whole);
            ++whole;
        }
        AppendArc(*path, r, 90.0 * whole, span);
        if (settings.spokes) path->AddNode({0, 0}, node::kLineTo);
        if (start != 0) path->Transform(Matrix2D::Rotation(start));
    }

    if (settings.centreMark) {
        path->AddNode({-1, 0}, node::kMoveTo);
        path->AddNode({1, 0}, node::kLineTo);
        CloseFigure(*path);
        path->AddNode({0, 1}, node::kMoveTo);
        path->AddNode({0, -1}, node::kLineTo);
        CloseFigure(*path);
    }
    return path;
}

} // namespace rhomba
