#include "model/PathSegments.h"

#include "model/PathObject.h"

namespace rhomba {

void WalkPath(std::span<const Point2> points, std::span<const NodeType> types, PathSink& sink) {
    SegmentCursor cursor(points, types);
    PathSegment s;
    while (cursor.Next(s)) {
        switch (s.kind) {
        case SegmentKind::Move: sink.MoveTo(s.End()); break;
        case SegmentKind::Line: sink.LineTo(s.End()); break;
        case SegmentKind::Bezier: sink.CurveTo(s.points[0], s.points[1], s.points[2]); break;
        case SegmentKind::Close: sink.CloseFigure(); break;
        }
    }
}

void WalkPath(const PathObject& path, PathSink& sink) { WalkPath(path.Points(), path.Types(), sink); }

} // namespace rhomba
