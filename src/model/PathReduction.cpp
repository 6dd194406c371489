#include "model/PathReduction.h"

#include "geometry/Bezier.h"
#include "geometry/BezierFit.h"
#include "model/PathObject.h"
#include "model/PathSegments.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace rhomba {

namespace {

// Reduction: the largest distance of the original from the result, the spacing at which the
// original is sampled for the fit, the fewest samples taken of a curve, and the length above
// which a straight segment is kept as it is.
constexpr double kReduceTolerance = 2.8;
constexpr double kSampleSpacing = 1.0;
constexpr std::size_t kCurveSamples = 20;
constexpr std::size_t kMaxSamples = 32767;
constexpr double kLongLine = 20;
// A direction change above this at a node keeps the node as a corner (cos 30 degrees).
constexpr double kCornerCosine = 0.8660254037844386;

std::size_t SampleCount(double length, std::size_t fewest) {
    const double wanted = std::ceil(length / kSampleSpacing);
    if (!(wanted < static_cast<double>(kMaxSamples))) return kMaxSamples;
    return std::max(fewest, static_cast<std::size_t>(wanted));
}

void CopySegment(const PathObject& path, const PathSegment& s, NodeRun& out) {
    for (std::size_t k = 0; k < s.points.size(); ++k) {
        out.points.push_back(s.points[k]);
        out.types.push_back(path.TypeAt(s.index + k));
    }
}

// Refits the segments run[0..] (all ends selected, their start selected too) into out; falls back
// to copying them when the fit saves nothing.
void ReduceRun(const PathObject& path, std::span<const PathSegment> run, NodeRun& out) {
    std::vector<Point2> data{run.front().start};
    std::vector<bool> corner{false};
    std::vector<std::size_t> nodeAt; // data index of each interior original node
    std::size_t original = 0;
    for (const PathSegment& s : run) {
        original += s.points.size();
        if (s.kind == SegmentKind::Line) {
            const Point2 a = s.start, b = s.End();
            const double length = std::hypot(b.x - a.x, b.y - a.y);
            if (length > kLongLine) {
                // A long straight segment stays: both its ends become corners.
                corner.back() = true;
                data.push_back(b);
                corner.push_back(true);
            } else {
                const std::size_t n = SampleCount(length, 1);
                for (std::size_t k = 1; k <= n; ++k) {
                    data.push_back(a + (b - a) * (static_cast<double>(k) / n));
                    corner.push_back(false);
                }
            }
        } else {
            const CubicBezier c = s.Curve();
            const double polygon = std::hypot(c.p1.x - c.p0.x, c.p1.y - c.p0.y) +
                                   std::hypot(c.p2.x - c.p1.x, c.p2.y - c.p1.y) +
                                   std::hypot(c.p3.x - c.p2.x, c.p3.y - c.p2.y);
            const std::size_t n = SampleCount(polygon, kCurveSamples);
            for (std::size_t k = 1; k <= n; ++k) {
                data.push_back(k == n ? c.p3 : c.At(static_cast<double>(k) / n));
                corner.push_back(false);
            }
        }
        nodeAt.push_back(data.size() - 1);
    }
    nodeAt.pop_back(); // the run's last node is an end, not an interior node
    for (std::size_t d : nodeAt) {
        const Point2 in = data[d] - data[d - 1], out2 = data[d + 1] - data[d];
        const double lengths = std::hypot(in.x, in.y) * std::hypot(out2.x, out2.y);
        if (lengths > 0 && (in.x * out2.x + in.y * out2.y) < kCornerCosine * lengths) corner[d] = true;
    }
    corner.back() = true;

    // Fitting to a little less than the tolerance covers the original between its samples too.
    FitLimits limits;
    limits.tolerance = kReduceTolerance - kSampleSpacing / 2;
    const std::vector<FitPiece> pieces = FitPolyline(data, corner, limits);
    std::size_t reduced = 0;
    for (const FitPiece& piece : pieces) reduced += piece.curve ? 3 : 1;
    if (pieces.empty() || reduced >= original) {
        for (const PathSegment& s : run) CopySegment(path, s, out);
        return;
    }
    const NodeType lastType = path.TypeAt(run.back().EndIndex());
    for (std::size_t k = 0; k < pieces.size(); ++k) {
        const FitPiece& piece = pieces[k];
        const NodeType kind = piece.curve ? node::kBezierTo : node::kLineTo;
        if (piece.curve) {
            out.points.push_back(piece.c1);
            out.types.push_back(node::kBezierTo);
            out.points.push_back(piece.c2);
            out.types.push_back(node::kBezierTo);
        }
        out.points.push_back(data[piece.end]);
        out.types.push_back(k + 1 == pieces.size() ? node::WithKind(lastType, kind)
                                                   : static_cast<NodeType>(kind | node::kSelected));
    }
}

} // namespace

std::size_t ReduceSelectedNodes(PathObject& path) {
    const std::size_t before = path.NodeCount();
    std::vector<PathSegment> segments;
    {
        SegmentCursor cursor(path.Points(), path.Types());
        PathSegment s;
        while (cursor.Next(s)) {
            if (s.kind != SegmentKind::Close) segments.push_back(s);
        }
    }
    NodeRun out;
    out.points.reserve(before);
    out.types.reserve(before);
    std::size_t startNode = 0; // the on-curve node the next segment starts from
    for (std::size_t k = 0; k < segments.size();) {
        const PathSegment& s = segments[k];
        if (s.kind == SegmentKind::Move) {
            CopySegment(path, s, out);
            startNode = s.index;
            ++k;
            continue;
        }
        std::size_t m = k;
        if (node::IsSelected(path.TypeAt(startNode))) {
            while (m < segments.size() && segments[m].kind != SegmentKind::Move &&
                   node::IsSelected(path.TypeAt(segments[m].EndIndex()))) {
                ++m;
            }
        }
        if (m - k >= 2) {
            ReduceRun(path, std::span<const PathSegment>(segments.data() + k, m - k), out);
        } else {
            m = k + 1;
            CopySegment(path, s, out);
        }
        startNode = segments[m - 1].EndIndex();
        k = m;
    }
    path.ClearNodes();
    path.InsertNodes(0, out);
    return before - path.NodeCount();
}

} // namespace rhomba
