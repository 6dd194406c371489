#include "ui/tools/DrawnShapes.h"

#include "geometry/Angles.h"
#include "geometry/Isometric.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "shapes/GeneratedPath.h"

#include <algorithm>
#include <cmath>

namespace rhomba {

namespace {

// The Bezier control distance of a quarter ellipse, per unit radius.
constexpr double kQuarterArc = 0.55228474983079;

struct Box {
    double x1, y1, x2, y2;
};

Box Ordered(Point2 a, Point2 b) {
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

} // namespace

std::unique_ptr<PathObject> NewDrawnPath(const Document& document) {
    auto path = NewGeneratedPath();
    const StyleDefaults& style = document.defaults;
    path->SetStrokeColor(style.strokeColor);
    path->SetStroke(style.strokeOn);
    path->SetPenWidth(style.penWidth);
    path->SetFillColor(style.fillColor);
    path->SetFill(style.fillOn);
    return path;
}

std::unique_ptr<PathObject> RectanglePath(Point2 a, Point2 b) {
    const Box r = Ordered(a, b);
    auto path = NewGeneratedPath();
    path->AddNode({r.x1, r.y1}, node::kMoveTo);
    path->AddNode({r.x1, r.y2}, node::kLineTo);
    path->AddNode({r.x2, r.y2}, node::kLineTo);
    path->AddNode({r.x2, r.y1}, node::kLineTo | node::kCloseFigure);
    return path;
}

std::unique_ptr<PathObject> EllipsePath(Point2 a, Point2 b) {
    const Box r = Ordered(a, b);
    const double rx = (r.x2 - r.x1) / 2, ry = (r.y2 - r.y1) / 2;
    const double cx = r.x1 + rx, cy = r.y1 + ry;
    const double kx = rx * kQuarterArc, ky = ry * kQuarterArc;
    auto path = NewGeneratedPath();
    auto curve = [&](Point2 c1, Point2 c2, Point2 end) {
        path->AddNode(c1, node::kBezierTo);
        path->AddNode(c2, node::kBezierTo);
        path->AddNode(end, node::kBezierTo);
    };
    path->AddNode({r.x1, cy}, node::kMoveTo);
    curve({r.x1, cy + ky}, {cx - kx, r.y2}, {cx, r.y2});
    curve({cx + kx, r.y2}, {r.x2, cy + ky}, {r.x2, cy});
    curve({r.x2, cy - ky}, {cx + kx, r.y1}, {cx, r.y1});
    curve({cx - kx, r.y1}, {r.x1, cy - ky}, {r.x1, cy});
    CloseFigure(*path);
    return path;
}

void AppendSegment(PathObject& path, Point2 start, Point2 end) {
    const std::size_t n = path.NodeCount();
    const bool continues =
        n > 0 && path.PointAt(n - 1) == start && (path.TypeAt(n - 1) & node::kCloseFigure) == 0;
    if (!continues) path.AddNode(start, node::kMoveTo);
    path.AddNode(end, node::kLineTo);
}

double DirectionDegrees(Point2 a, Point2 b) {
    return VectorAngle(b.x - a.x, b.y - a.y) * kDegreesPerRadian;
}

Point2 SnapToFifteenDegrees(Point2 start, Point2 q) {
    const double length = std::hypot(q.x - start.x, q.y - start.y);
    const double degrees = 15 * std::trunc((DirectionDegrees(start, q) + 7.5) / 15);
    const double radians = degrees / kDegreesPerRadian;
    return {start.x + length * std::cos(radians), start.y + length * std::sin(radians)};
}

std::vector<GraphicObject*> ObjectsInside(Document& document, const Rect2& box) {
    std::vector<GraphicObject*> inside;
    for (std::size_t i = 0; i < document.LayerCount(); ++i) {
        Layer& layer = document.LayerAt(i);
        if (layer.IsHidden()) continue;
        for (std::size_t k = 0; k < layer.ChildCount(); ++k) {
            GraphicObject* object = layer.ChildAt(k);
            Rect2 bounds;
            if (object->IsHidden() || !object->GetBounds(bounds, false) || bounds.IsEmpty())
                continue;
            if (bounds.left >= box.left && bounds.right <= box.right &&
                bounds.bottom >= box.bottom && bounds.top <= box.top) {
                inside.push_back(object);
            }
        }
    }
    return inside;
}

} // namespace rhomba
