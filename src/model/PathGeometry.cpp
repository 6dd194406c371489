#include "model/PathGeometry.h"

#include "geometry/Bezier.h"
#include "geometry/SegmentProximity.h"
#include "model/PathObject.h"
#include "model/PathSegments.h"

#include <algorithm>
#include <cmath>

namespace rhomba {

bool PathObject::GetBounds(Rect2& bounds, bool withPenWidth) {
    if (points_.empty() || !HasFinitePoints()) return false;
    // Note: the box of all points, control points included, not the exact curve extent: every
    // transformation centres on this box, so it has to be cheap to predict.
    Rect2 box = Rect2::Empty();
    for (const Point2& p : points_) box.Include(p);
    if (withPenWidth) {
        const double half = penWidth_ / 2;
        box.left -= half;
        box.right += half;
        box.top += half;
        box.bottom -= half;
    }
    bounds = box;
    return true;
}

GraphicObject* PathObject::HitTest(Point2 probe, double tolerance) {
    SegmentCursor cursor(points_, types_);
    PathSegment s;
    while (cursor.Next(s)) {
        switch (s.kind) {
        case SegmentKind::Move: break;
        case SegmentKind::Line:
        case SegmentKind::Close:
            if (IsNearSegment(probe, s.start, s.End(), tolerance)) return this;
            break;
        case SegmentKind::Bezier:
            if (IsNearBezier(probe, s.Curve(), tolerance)) return this;
            break;
        }
    }
    return nullptr;
}

NearestNode FindNearestNode(const PathObject& path, Point2 p) {
    NearestNode best;
    double bestSquared = 0;
    const auto& points = path.Points();
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double dx = points[i].x - p.x, dy = points[i].y - p.y;
        const double d = dx * dx + dy * dy;
        if (best.index < 0 || d < bestSquared) {
            best.index = static_cast<long>(i);
            bestSquared = d;
        }
    }
    if (best.index >= 0) best.distance = std::sqrt(bestSquared);
    return best;
}

long HitNode(const PathObject& path, Point2 p, double tolerance) {
    const NearestNode nearest = FindNearestNode(path, p);
    return nearest.index >= 0 && nearest.distance <= tolerance ? nearest.index : -1;
}

double DistanceToPath(const PathObject& path, Point2 p) {
    double best = HUGE_VAL;
    SegmentCursor cursor(path.Points(), path.Types());
    PathSegment s;
    while (cursor.Next(s)) {
        switch (s.kind) {
        case SegmentKind::Move: break;
        case SegmentKind::Line:
        case SegmentKind::Close: best = std::min(best, DistanceToSegment(p, s.start, s.End())); break;
        case SegmentKind::Bezier:
            // The curve lies within its control points' box: one farther than the best so far
            // cannot be nearer.
            if (!IsNearBezierBox(p, s.Curve(), best)) break;
            best = std::min(best, NearestOnBezier(s.Curve(), p).distance);
            break;
        }
    }
    return best;
}

std::size_t SelectNodesInRect(PathObject& path, Point2 corner1, Point2 corner2) {
    const double left = std::min(corner1.x, corner2.x), right = std::max(corner1.x, corner2.x);
    const double bottom = std::min(corner1.y, corner2.y), top = std::max(corner1.y, corner2.y);
    std::size_t count = 0;
    for (std::size_t i = 0; i < path.NodeCount(); ++i) {
        const Point2 q = path.PointAt(i);
        const bool inside = q.x >= left && q.x <= right && q.y >= bottom && q.y <= top;
        const NodeType t = path.TypeAt(i);
        path.SetType(i, inside ? static_cast<NodeType>(t | node::kSelected)
                               : static_cast<NodeType>(t & ~node::kSelected));
        if (inside) ++count;
    }
    return count;
}

} // namespace rhomba
