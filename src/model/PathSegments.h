#pragma once

#include "geometry/Bezier.h"
#include "geometry/Point2.h"
#include "model/Types.h"

#include <cstddef>
#include <span>

namespace rhomba {

class PathObject;

enum class SegmentKind { Move, Line, Bezier, Close };

// Which nodes one step of a path owns, read from the type bytes alone.
struct NodeSpan {
    SegmentKind kind = SegmentKind::Move;
    // Index of the first node the segment owns (the move or line node, the first control point
    // of a Bezier); for a close, the index of the figure's move node.
    std::size_t index = 0;
    // Nodes owned: three for a Bezier (control, control, end), one for the others.
    std::size_t count = 1;
    // A line or Bezier whose end node closes the figure; a close segment follows it.
    bool closes = false;

    // Index of the node the segment ends at (the end point of a Bezier).
    std::size_t EndIndex() const { return kind == SegmentKind::Close ? index : index + count - 1; }
};

// Walks a path's type bytes segment by segment.
// Note: lenient on malformed type arrays, as loaded files may hold them: a first node that is no
// move starts the figure anyway, a later node without a kind is skipped, and a Bezier node
// without two Bezier nodes after it counts as a line node. A curve cut short by the end of the
// arrays is dropped: the walk ends before it. A close segment follows each segment whose end node
// carries the close bit. The bytes are read as the walk goes, so bits other than the kinds may
// change on the way.
class NodeCursor {
public:
    explicit NodeCursor(std::span<const NodeType> types) : types_(types) {}

    // Fills step with the next step; false at the end of the path.
    bool Next(NodeSpan& step) {
        if (pendingClose_) {
            pendingClose_ = false;
            step = {SegmentKind::Close, figureStart_, 1, false};
            return true;
        }
        std::size_t i = next_;
        while (i > 0 && i < types_.size() && (types_[i] & node::kKindMask) == 0) ++i;
        if (i >= types_.size()) return false;
        const NodeType type = types_[i];
        if (i == 0 || node::IsMoveTo(type)) {
            step = {SegmentKind::Move, i, 1, false};
            figureStart_ = i;
        } else if (node::IsBezier(type) && i + 2 >= types_.size()) {
            next_ = types_.size();
            return false;
        } else if (node::IsBezier(type) && node::IsBezier(types_[i + 1]) &&
                   node::IsBezier(types_[i + 2])) {
            step = {SegmentKind::Bezier, i, 3, (types_[i + 2] & node::kCloseFigure) != 0};
        } else {
            step = {SegmentKind::Line, i, 1, (type & node::kCloseFigure) != 0};
        }
        next_ = i + step.count;
        pendingClose_ = step.closes;
        return true;
    }

private:
    std::span<const NodeType> types_;
    std::size_t next_ = 0;
    std::size_t figureStart_ = 0;
    bool pendingClose_ = false;
};

// One step of a path with its points: a move starts a figure, a line or Bezier runs from start
// to the last of its points, and a close runs from the figure's last point back to its first.
struct PathSegment : NodeSpan {
    // The point the segment starts from (a move starts from its own point).
    Point2 start;
    // Its own points: one for a move, line or close (the figure's first point), three for a
    // Bezier (control, control, end).
    std::span<const Point2> points;

    Point2 End() const { return points.back(); }
    CubicBezier Curve() const { return {start, points[0], points[1], points[2]}; }
};

// Walks a path segment by segment, with the rules of NodeCursor.
class SegmentCursor {
public:
    SegmentCursor(std::span<const Point2> points, std::span<const NodeType> types)
        : points_(points), nodes_(types.first(points.size() < types.size() ? points.size()
                                                                           : types.size())) {}

    // Fills segment with the next step; false at the end of the path.
    bool Next(PathSegment& segment) {
        NodeSpan& step = segment;
        if (!nodes_.Next(step)) return false;
        segment.points = points_.subspan(segment.index, segment.count);
        segment.start = segment.kind == SegmentKind::Move ? segment.points[0] : current_;
        current_ = segment.End();
        return true;
    }

private:
    std::span<const Point2> points_;
    NodeCursor nodes_;
    Point2 current_;
};

// What a path's geometry is written to: the writers and the device output implement it.
class PathSink {
public:
    virtual void MoveTo(Point2 p) = 0;
    virtual void LineTo(Point2 p) = 0;
    virtual void CurveTo(Point2 c1, Point2 c2, Point2 end) = 0;
    virtual void CloseFigure() = 0;

protected:
    ~PathSink() = default;
};

// Hands a path's segments to sink in order, with the rules of NodeCursor.
void WalkPath(std::span<const Point2> points, std::span<const NodeType> types, PathSink& sink);
void WalkPath(const PathObject& path, PathSink& sink);

} // namespace rhomba
