#pragma once

#include "geometry/Bezier.h"
#include "geometry/Point2.h"
#include "model/Types.h"

#include <cstddef>
#include <span>
#include <vector>

namespace rhomba {

enum class SegmentKind { Move, Line, Bezier, Close };

// One step of a path: a move starts a figure, a line or Bezier runs from start to the last of its
// points, and a close runs from the figure's last point back to its first.
struct PathSegment {
    SegmentKind kind = SegmentKind::Move;
    // Index of the first node the segment owns (the move or line node, the first control point
    // of a Bezier); for a close, the index of the figure's move node.
    std::size_t index = 0;
    // The point the segment starts from (a move starts from its own point).
    Point2 start;
    // Its own points: one for a move, line or close (the figure's first point), three for a
    // Bezier (control, control, end).
    std::span<const Point2> points;

    Point2 End() const { return points.back(); }
    // Index of the node the segment ends at (the end point of a Bezier).
    std::size_t EndIndex() const { return kind == SegmentKind::Close ? index : index + points.size() - 1; }
    CubicBezier Curve() const { return {start, points[0], points[1], points[2]}; }
};

// Walks a path segment by segment.
// Note: lenient on malformed type arrays, as loaded files may hold them: a first node that is no
// move starts the figure anyway, and a Bezier node without two more Bezier nodes after it counts
// as a line node. A close segment follows each segment whose end node carries the close bit.
class SegmentCursor {
public:
    SegmentCursor(const std::vector<Point2>& points, const std::vector<NodeType>& types)
        : points_(points), types_(types) {}

    // Fills segment with the next step; false at the end of the path.
    bool Next(PathSegment& segment) {
        const std::size_t count = points_.size() < types_.size() ? points_.size() : types_.size();
        if (pendingClose_) {
            pendingClose_ = false;
            segment.kind = SegmentKind::Close;
            segment.index = figureStart_;
            segment.start = current_;
            segment.points = std::span<const Point2>(&points_[figureStart_], 1);
            current_ = points_[figureStart_];
            return true;
        }
        if (next_ >= count) return false;
        const std::size_t i = next_;
        const NodeType type = types_[i];
        segment.index = i;
        segment.start = current_;
        if (i == 0 || node::IsMoveTo(type)) {
            segment.kind = SegmentKind::Move;
            segment.start = points_[i];
            segment.points = std::span<const Point2>(&points_[i], 1);
            figureStart_ = i;
            next_ = i + 1;
        } else if (node::IsBezier(type) && i + 2 < count && node::IsBezier(types_[i + 1]) &&
                   node::IsBezier(types_[i + 2])) {
            segment.kind = SegmentKind::Bezier;
            segment.points = std::span<const Point2>(&points_[i], 3);
            next_ = i + 3;
            pendingClose_ = (types_[i + 2] & node::kCloseFigure) != 0;
        } else {
            segment.kind = SegmentKind::Line;
            segment.points = std::span<const Point2>(&points_[i], 1);
            next_ = i + 1;
            pendingClose_ = (type & node::kCloseFigure) != 0;
        }
        current_ = segment.End();
        return true;
    }

private:
    const std::vector<Point2>& points_;
    const std::vector<NodeType>& types_;
    std::size_t next_ = 0;
    std::size_t figureStart_ = 0;
    Point2 current_;
    bool pendingClose_ = false;
};

} // namespace rhomba
