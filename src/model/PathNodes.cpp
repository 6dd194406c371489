#include "model/PathNodes.h"

#include "geometry/Bezier.h"
#include "geometry/SegmentProximity.h"
#include "model/PathFigures.h"
#include "model/PathObject.h"
#include "model/PathSegments.h"

#include <cmath>
#include <optional>

namespace rhomba {

namespace {

using node::kCloseFigure;
using node::kKindMask;
using node::IsSelected;
using node::kSelected;
using node::WithKind;

// The segment that ends at node index (a line node or a Bezier end point), if there is one.
std::optional<PathSegment> SegmentEndingAt(const PathObject& path, std::size_t index) {
    SegmentCursor cursor(path.Points(), path.Types());
    PathSegment s;
    while (cursor.Next(s)) {
        if (s.kind == SegmentKind::Move || s.kind == SegmentKind::Close) continue;
        if (s.EndIndex() == index) return s;
        if (s.index > index) break;
    }
    return std::nullopt;
}

// "In Kurve" and "In Linie" mean the closing segment when given a figure's move node; they then
// work on its last node, and only when the figure is closed.
std::optional<std::size_t> SegmentNode(const PathObject& path, std::size_t index) {
    if (index >= path.NodeCount()) return std::nullopt;
    if (!StartsFigure(path, index)) return index;
    const std::size_t last = FigureOf(path, index).last;
    if ((path.TypeAt(last) & kCloseFigure) == 0) return std::nullopt;
    return last;
}

// The segment "In Kurve" or "In Linie" works on for the node index, when it is of that kind.
std::optional<PathSegment> ConvertibleSegment(const PathObject& path, std::size_t index,
                                              SegmentKind kind) {
    const auto at = SegmentNode(path, index);
    if (!at) return std::nullopt;
    const auto segment = SegmentEndingAt(path, *at);
    if (!segment || segment->kind != kind) return std::nullopt;
    return segment;
}

// A converted segment's end node takes the new kind and keeps only its selection and closing.
void SetSegmentKind(PathObject& path, std::size_t at, NodeType kind) {
    path.SetType(at, static_cast<NodeType>((path.TypeAt(at) & (kSelected | kCloseFigure)) | kind));
}

// Reverses an open figure so that it traces the same outline backwards: every node takes the
// kind of the node that followed it, the old last node becomes the move.
void ReverseFigure(NodeRun& run) {
    const std::size_t n = run.types.size();
    if (n == 0) return;
    std::vector<NodeType> kinds(n);
    for (std::size_t m = 0; m < n; ++m) {
        kinds[m] = m == 0 ? node::kMoveTo : static_cast<NodeType>(run.types[n - m] & kKindMask);
    }
    PathObject::Reverse(run);
    for (std::size_t m = 0; m < n; ++m) {
        run.types[m] = static_cast<NodeType>((run.types[m] & ~(kKindMask | kCloseFigure)) | kinds[m]);
    }
}

// Joins two end nodes; returns the index of the node that carries the new straight segment, the
// index of the snapped end node when the figure was closed without one, or nothing when the nodes
// cannot be joined.
struct JoinResult {
    std::size_t node;
    bool segmentAdded;
};
std::optional<JoinResult> Join(PathObject& path, std::size_t a, std::size_t b) {
    const std::size_t n = path.NodeCount();
    if (a == b || a >= n || b >= n) return std::nullopt;
    const std::size_t i = a < b ? a : b;
    const std::size_t j = a < b ? b : a;
    if (!IsOpenEndNode(path, i) || !IsOpenEndNode(path, j)) return std::nullopt;
    const bool iStarts = StartsFigure(path, i);
    const bool jStarts = StartsFigure(path, j);
    const NodeType iSelection = path.TypeAt(i) & kSelected;

    if (!iStarts && jStarts) {
        if (j == i + 1) {
            path.SetType(i, path.TypeAt(i) & ~kCloseFigure);
            path.SetType(j, static_cast<NodeType>((path.TypeAt(j) & kSelected) + node::kLineTo));
            return JoinResult{j, true};
        }
        NodeRun run = path.CutNodes(j, n - j);
        run.types[0] = static_cast<NodeType>(iSelection + node::kLineTo);
        path.InsertNodes(i + 1, run);
        return JoinResult{i + 1, true};
    }
    if (!iStarts && !jStarts) {
        const std::size_t first = FigureOf(path, j).first;
        NodeRun run = path.CutNodes(first, j - first + 1);
        ReverseFigure(run);
        run.types[0] = static_cast<NodeType>(iSelection + node::kLineTo);
        path.InsertNodes(i + 1, run);
        return JoinResult{i + 1, true};
    }
    if (iStarts && jStarts) {
        const std::size_t last = FigureOf(path, j).last;
        NodeRun run = path.CutNodes(j, last - j + 1);
        ReverseFigure(run);
        path.InsertNodes(i, run);
        const std::size_t joined = i + run.types.size();
        const NodeType t = path.TypeAt(joined);
        path.SetType(joined, static_cast<NodeType>((t & kSelected) | node::kLineTo));
        path.SetType(joined - 1, static_cast<NodeType>(path.TypeAt(joined - 1) | (t & kSelected)));
        return JoinResult{joined, true};
    }
    // i starts a figure, j ends one.
    if (FigureOf(path, j).first == i) {
        const Point2 p = path.PointAt(i), q = path.PointAt(j);
        if (std::fabs(p.x - q.x) < 0.001 && std::fabs(p.y - q.y) < 0.001) {
            path.SetPoint(j, p);
            path.SetType(j, path.TypeAt(j) | kCloseFigure);
            return JoinResult{j, false};
        }
        path.InsertNodes(j + 1, NodeRun{{p}, {node::kLineTo | kCloseFigure}});
        return JoinResult{j + 1, true};
    }
    const std::size_t last = FigureOf(path, i).last;
    const std::size_t count = last - i + 1;
    NodeRun run = path.CutNodes(i, count);
    run.types[0] = static_cast<NodeType>((run.types[0] & kSelected) + node::kLineTo);
    path.InsertNodes(j - count + 1, run);
    return JoinResult{j - count + 1, true};
}

// The line or Bezier that starts with node index, if there is one.
std::optional<PathSegment> SegmentStartingAt(const PathObject& path, std::size_t index) {
    SegmentCursor cursor(path.Points(), path.Types());
    PathSegment s;
    while (cursor.Next(s) && s.index <= index) {
        if (s.index == index && (s.kind == SegmentKind::Line || s.kind == SegmentKind::Bezier)) {
            return s;
        }
    }
    return std::nullopt;
}

// A point on the line through an end node's end segment other than the node itself: the first
// of the segment's other points, nearest to the node first, that differs from it.
std::optional<Point2> EndSegmentNeighbour(const PathObject& path, std::size_t k) {
    const Point2 p = path.PointAt(k);
    const FigureRange figure = FigureOf(path, k);
    if (figure.first == figure.last) return std::nullopt;
    std::vector<Point2> others;
    if (k == figure.first) {
        const auto s = SegmentStartingAt(path, k + 1);
        if (s) others.assign(s->points.begin(), s->points.end());
    } else if (const auto s = SegmentEndingAt(path, k)) {
        others.assign(s->points.rbegin() + 1, s->points.rend());
        others.push_back(s->start);
    }
    for (Point2 q : others) {
        if (!(q == p)) return q;
    }
    return std::nullopt;
}

double Cross(Point2 a, Point2 b) { return a.x * b.y - a.y * b.x; }

} // namespace

bool ConvertToCurve(PathObject& path, std::size_t index) {
    const auto segment = ConvertibleSegment(path, index, SegmentKind::Line);
    if (!segment) return false;
    const std::size_t at = segment->EndIndex();
    const Point2 p0 = segment->start, p1 = segment->End();
    const Point2 c1{p0.x + (p1.x - p0.x) * 0.33333, p0.y + (p1.y - p0.y) * 0.33333};
    const Point2 c2{p0.x + (p1.x - p0.x) * 0.66666, p0.y + (p1.y - p0.y) * 0.66666};
    SetSegmentKind(path, at, node::kBezierTo);
    path.InsertNodes(at, NodeRun{{c1, c2}, {node::kBezierTo, node::kBezierTo}});
    return true;
}

bool ConvertToLine(PathObject& path, std::size_t index) {
    const auto segment = ConvertibleSegment(path, index, SegmentKind::Bezier);
    if (!segment) return false;
    const std::size_t at = segment->EndIndex();
    SetSegmentKind(path, at, node::kLineTo);
    path.CutNodes(at - 2, 2);
    return true;
}

double AddNodeTolerance(double zoom) { return zoom > 0 ? 5.0 / zoom : 10.0; }

bool AddNodeAt(PathObject& path, Point2 q, double tolerance) {
    struct Best {
        PathSegment segment;
        std::size_t previousEnd = 0;
    };
    std::optional<Best> best;
    std::size_t previousEnd = 0;
    if (!(tolerance <= 1e300)) tolerance = std::isnan(tolerance) ? -1 : 1e300;
    SegmentCursor cursor(path.Points(), path.Types());
    PathSegment s;
    while (cursor.Next(s)) {
        double distance = 0;
        switch (s.kind) {
        case SegmentKind::Move: previousEnd = s.index; continue;
        case SegmentKind::Line:
        case SegmentKind::Close: distance = DistanceToSegment(q, s.start, s.End()); break;
        case SegmentKind::Bezier: distance = NearestOnBezier(s.Curve(), q).distance; break;
        }
        // While the segment is hit, it is the best so far and the tolerance shrinks by 5 %: the
        // nearest segment wins, and of equally near ones the earlier, since the later one meets a
        // tolerance already below their distance. A segment at distance 0 leaves none for later.
        while (distance <= tolerance && tolerance > 0) {
            best = Best{s, previousEnd};
            tolerance = distance > 0 ? tolerance * 0.95 : -1;
        }
        if (s.kind != SegmentKind::Close) previousEnd = s.EndIndex();
    }
    if (!best) return false;

    const PathSegment& hit = best->segment;
    if (hit.kind == SegmentKind::Bezier) {
        const CubicBezier curve = hit.Curve();
        const BezierHalves halves = SplitBezier(curve, NearestOnBezier(curve, q).t);
        path.SetPoint(hit.index, halves.first.p1);
        path.SetPoint(hit.index + 1, halves.first.p2);
        path.InsertNodes(hit.index + 2,
                         NodeRun{{halves.first.p3, halves.second.p1, halves.second.p2},
                                 {node::kBezierTo, node::kBezierTo, node::kBezierTo}});
        return true;
    }
    const Point2 a = hit.start, b = hit.End();
    Point2 foot;
    if (std::fabs(a.x - b.x) < 1e-6) {
        foot = {a.x, q.y};
    } else if (std::fabs(a.y - b.y) < 1e-6) {
        foot = {q.x, a.y};
    } else {
        const Point2 ab = b - a;
        const double t = ((q.x - a.x) * ab.x + (q.y - a.y) * ab.y) / (ab.x * ab.x + ab.y * ab.y);
        foot = a + ab * t;
    }
    if (hit.kind == SegmentKind::Line) {
        path.InsertNodes(hit.index, NodeRun{{foot}, {node::kLineTo}});
    } else {
        // The closing segment gets its node after the figure's last one, which hands on the
        // close bit.
        const std::size_t last = best->previousEnd;
        path.SetType(last, path.TypeAt(last) & ~kCloseFigure);
        path.InsertNodes(last + 1, NodeRun{{foot}, {node::kLineTo | kCloseFigure}});
    }
    return true;
}

bool JoinWithLine(PathObject& path, std::size_t a, std::size_t b) {
    return Join(path, a, b).has_value();
}

bool JoinAtIntersection(PathObject& path, std::size_t a, std::size_t b) {
    const std::size_t n = path.NodeCount();
    if (a == b || a >= n || b >= n || !IsOpenEndNode(path, a) || !IsOpenEndNode(path, b)) {
        return false;
    }
    const auto na = EndSegmentNeighbour(path, a);
    const auto nb = EndSegmentNeighbour(path, b);
    if (na && nb) {
        const Point2 pa = path.PointAt(a), pb = path.PointAt(b);
        const Point2 da = pa - *na, db = pb - *nb;
        const double cross = Cross(da, db);
        const double scale = std::hypot(da.x, da.y) * std::hypot(db.x, db.y);
        if (std::fabs(cross) > 1e-9 * scale) {
            const double s = Cross(pb - pa, db) / cross;
            const Point2 x = pa + da * s;
            if (std::isfinite(x.x) && std::isfinite(x.y)) {
                path.SetPoint(a, x);
                path.SetPoint(b, x);
            }
        }
    }
    const auto joined = Join(path, a, b);
    if (!joined) return false;
    // Both ends now lie on the intersection: the straight segment between them has no length
    // and its node goes, so that the two ends become one corner.
    const std::size_t k = joined->node;
    if (joined->segmentAdded && k > 0 && node::IsLineTo(path.TypeAt(k)) &&
        path.PointAt(k) == path.PointAt(k - 1)) {
        const NodeType t = path.TypeAt(k);
        path.CutNodes(k, 1);
        path.SetType(k - 1, static_cast<NodeType>(path.TypeAt(k - 1) | (t & (kSelected | kCloseFigure))));
    }
    return true;
}

std::size_t DeleteSelectedNodes(PathObject& path) {
    const std::size_t before = path.NodeCount();
    NodeRun out;
    out.points.reserve(before);
    out.types.reserve(before);

    // A segment being carried to the next kept node: a line, or a curve with its two controls.
    struct Pending {
        bool active = false;
        bool curve = false;
        Point2 start, c1, c2, end;
        NodeType c1Type = node::kBezierTo, c2Type = node::kBezierTo;
    };

    const auto& types = path.Types();
    SegmentCursor cursor(path.Points(), types);
    PathSegment s;
    bool more = cursor.Next(s);
    while (more) {
        // One figure: its move, then its segments up to the next move.
        const std::size_t figureOut = out.points.size();
        std::size_t kept = 0;
        bool closed = false;
        Pending pending;
        bool haveStart = false;
        if (!IsSelected(types[s.index])) {
            out.points.push_back(s.End());
            out.types.push_back(static_cast<NodeType>(WithKind(types[s.index], node::kMoveTo) & ~kCloseFigure));
            haveStart = true;
            kept = 1;
        }
        while ((more = cursor.Next(s)) && s.kind != SegmentKind::Move) {
            if (s.kind == SegmentKind::Close) {
                closed = true;
                continue;
            }
            const std::size_t end = s.EndIndex();
            if (!haveStart) {
                // Segments before the first kept node go with the deleted move.
                if (!IsSelected(types[end])) {
                    out.points.push_back(s.End());
                    out.types.push_back(static_cast<NodeType>(WithKind(types[end], node::kMoveTo) & ~kCloseFigure));
                    haveStart = true;
                    kept = 1;
                }
                continue;
            }
            const bool curve = s.kind == SegmentKind::Bezier;
            if (!pending.active) {
                pending.active = true;
                pending.curve = curve;
                pending.start = s.start;
                pending.end = s.End();
                if (curve) {
                    pending.c1 = s.points[0];
                    pending.c2 = s.points[1];
                    pending.c1Type = types[s.index];
                    pending.c2Type = types[s.index + 1];
                }
            } else if (pending.curve || curve) {
                // Merging across a deleted node keeps the outer controls; a straight side
                // offers the control it would get from "In Kurve".
                if (!pending.curve) {
                    pending.c1 = pending.start + (pending.end - pending.start) * 0.33333;
                    pending.c1Type = node::kBezierTo;
                }
                if (curve) {
                    pending.c2 = s.points[1];
                    pending.c2Type = types[s.index + 1];
                } else {
                    pending.c2 = s.start + (s.End() - s.start) * 0.66666;
                    pending.c2Type = node::kBezierTo;
                }
                pending.curve = true;
                pending.end = s.End();
            } else {
                pending.end = s.End();
            }
            if (IsSelected(types[end])) continue;
            if (pending.curve) {
                out.points.push_back(pending.c1);
                out.types.push_back(WithKind(pending.c1Type, node::kBezierTo) & ~(kSelected | kCloseFigure));
                out.points.push_back(pending.c2);
                out.types.push_back(WithKind(pending.c2Type, node::kBezierTo) & ~(kSelected | kCloseFigure));
            }
            out.points.push_back(pending.end);
            out.types.push_back(static_cast<NodeType>(
                WithKind(types[end], pending.curve ? node::kBezierTo : node::kLineTo) & ~kCloseFigure));
            pending = Pending{};
            ++kept;
        }
        if (kept < 2) {
            out.points.resize(figureOut);
            out.types.resize(figureOut);
        } else if (closed) {
            out.types.back() |= kCloseFigure;
        }
    }
    path.ClearNodes();
    path.InsertNodes(0, out);
    return before - path.NodeCount();
}

void SplitAtSelectedNodes(PathObject& path) {
    const std::size_t n = path.NodeCount();
    NodeRun all = path.CutNodes(0, n);
    for (NodeType& t : all.types) t &= ~kCloseFigure;
    // The segment ends: the end point of each Bezier run and each line node.
    std::vector<bool> segmentEnd(n, false);
    {
        SegmentCursor cursor(all.points, all.types);
        PathSegment s;
        while (cursor.Next(s)) {
            if (s.kind == SegmentKind::Line || s.kind == SegmentKind::Bezier) segmentEnd[s.EndIndex()] = true;
        }
    }
    NodeRun out;
    out.points.reserve(n + n / 2);
    out.types.reserve(n + n / 2);
    for (std::size_t i = 0; i < n; ++i) {
        out.points.push_back(all.points[i]);
        out.types.push_back(all.types[i]);
        if (segmentEnd[i] && IsSelected(all.types[i]) && i + 1 < n && !node::IsMoveTo(all.types[i + 1])) {
            out.points.push_back(all.points[i]);
            out.types.push_back(node::kMoveTo);
        }
    }
    path.InsertNodes(0, out);
}
} // namespace rhomba
