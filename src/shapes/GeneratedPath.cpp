#include "shapes/GeneratedPath.h"

#include "geometry/Isometric.h"
#include "model/Document.h"

#include <cmath>

namespace rhomba {

namespace {

// The point at an angle on the unit circle; the quarter angles are exact, so that an arc
// continuing a whole quarter starts on the quarter's end point.
Point2 UnitAt(double degrees) {
    if (degrees == 0) return {1, 0};
    if (degrees == 90) return {0, 1};
    if (degrees == 180) return {-1, 0};
    if (degrees == 270) return {0, -1};
    const double r = degrees / kDegreesPerRadian;
    return {std::cos(r), std::sin(r)};
}

} // namespace

std::unique_ptr<PathObject> NewGeneratedPath() {
    auto path = std::make_unique<PathObject>();
    path->SetStrokeColor(0x000000);
    path->SetStroke(true);
    path->SetPenWidth(PathObject::kDefaultPenWidth);
    path->SetDashDot(DashDot{});
    path->SetFillColor(PathObject::kDefaultFillColor);
    path->SetFill(true);
    return path;
}

bool AddGeneratedPath(Document& document, std::unique_ptr<PathObject> path) {
    if (path == nullptr || path->NodeCount() == 0) return false;
    document.AddObject(std::move(path));
    return true;
}

void AppendArc(PathObject& path, double radius, double fromDegrees, double toDegrees) {
    const Point2 a = UnitAt(fromDegrees);
    const Point2 b = UnitAt(toDegrees);
    const double k = 4.0 / 3.0 * std::tan((toDegrees - fromDegrees) / kDegreesPerRadian / 4);
    // The tangent at (cos t, sin t) is (-sin t, cos t).
    path.AddNode({(a.x - k * a.y) * radius, (a.y + k * a.x) * radius}, node::kBezierTo);
    path.AddNode({(b.x + k * b.y) * radius, (b.y - k * b.x) * radius}, node::kBezierTo);
    path.AddNode({b.x * radius, b.y * radius}, node::kBezierTo);
}

void CloseFigure(PathObject& path) {
    const std::size_t n = path.NodeCount();
    if (n == 0) return;
    path.SetType(n - 1, static_cast<NodeType>(path.TypeAt(n - 1) | node::kCloseFigure));
}

} // namespace rhomba
