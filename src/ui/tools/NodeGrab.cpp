#include "ui/tools/NodeGrab.h"

#include "model/PathFigures.h"
#include "model/PathSegments.h"

#include <algorithm>
#include <cmath>

namespace rhomba {

namespace {

bool Selected(const PathObject& path, std::size_t i) {
    return (path.TypeAt(i) & node::kSelected) != 0;
}

bool IsClosedFigure(const PathObject& path, const FigureRange& figure) {
    return figure.last != figure.first && (path.TypeAt(figure.last) & node::kCloseFigure) != 0;
}

// The nodes whose control points show handles, as the node marks show them: only when exactly
// one node is selected; a selected start of a closed figure counts as the figure's last node and
// shows its own handles too. Empty otherwise.
std::vector<std::size_t> HandleOwners(const PathObject& path) {
    std::vector<std::size_t> owners;
    const auto& types = path.Types();
    if (std::none_of(types.begin(), types.end(),
                     [](NodeType t) { return (t & node::kSelected) != 0; })) {
        return owners;
    }
    int count = 0;
    std::size_t transferred = path.NodeCount();
    SegmentCursor cursor(path.Points(), path.Types());
    PathSegment s;
    while (cursor.Next(s) && count < 2) {
        if (s.kind == SegmentKind::Close) continue;
        const std::size_t end = s.EndIndex();
        if (s.kind == SegmentKind::Move) {
            if (!Selected(path, end)) continue;
            const FigureRange figure = FigureOf(path, end);
            if (IsClosedFigure(path, figure)) {
                transferred = figure.last;
                owners = {end, figure.last};
            } else {
                owners = {end};
            }
            ++count;
        } else if (Selected(path, end) && end != transferred) {
            owners = {end};
            ++count;
        }
    }
    if (count != 1) owners.clear();
    return owners;
}

} // namespace

GrabbableNode NearestGrabbableNode(const PathObject& path, Point2 p, bool withShownControls) {
    const std::vector<std::size_t> owners =
        withShownControls ? HandleOwners(path) : std::vector<std::size_t>{};
    auto owns = [&](std::size_t i) {
        return std::find(owners.begin(), owners.end(), i) != owners.end();
    };

    // Squared distances while searching.
    GrabbableNode node, control;
    control.control = true;
    auto consider = [&](GrabbableNode& best, std::size_t i) {
        const Point2 q = path.PointAt(i);
        const double d = (q.x - p.x) * (q.x - p.x) + (q.y - p.y) * (q.y - p.y);
        if (best.index < 0 || d < best.distance) {
            best.index = static_cast<long>(i);
            best.distance = d;
        }
    };
    std::size_t startNode = 0;
    SegmentCursor cursor(path.Points(), path.Types());
    PathSegment s;
    while (cursor.Next(s)) {
        if (s.kind == SegmentKind::Close) {
            startNode = s.index;
            continue;
        }
        if (s.kind == SegmentKind::Bezier && !owners.empty() &&
            (owns(startNode) || owns(s.EndIndex()))) {
            consider(control, s.index);
            consider(control, s.index + 1);
        }
        consider(node, s.EndIndex());
        startNode = s.EndIndex();
    }
    GrabbableNode& best =
        control.index >= 0 && (node.index < 0 || control.distance < node.distance) ? control : node;
    best.distance = std::sqrt(best.distance);
    return best;
}

NodeDrag::NodeDrag(const PathObject& path, std::size_t index) {
    if (index >= path.NodeCount()) return;
    moved_.push_back(index);

    // Walks the segments once, calling visit(segment, start node) for each but the moves.
    auto walk = [&](auto visit) {
        std::size_t startNode = 0;
        SegmentCursor cursor(path.Points(), path.Types());
        PathSegment s;
        while (cursor.Next(s)) {
            if (s.kind != SegmentKind::Move) visit(s, startNode);
            startNode = s.kind == SegmentKind::Close ? s.index : s.EndIndex();
        }
    };

    bool onCurve = false;
    walk([&](const PathSegment& s, std::size_t) { onCurve = onCurve || s.EndIndex() == index; });
    onCurve = onCurve || index == 0 || node::IsMoveTo(path.TypeAt(index));
    if (onCurve) {
        // The end of a closed figure that lies on its start moves with it.
        const FigureRange figure = FigureOf(path, index);
        if (IsClosedFigure(path, figure) &&
            path.PointAt(figure.first) == path.PointAt(figure.last)) {
            if (index == figure.first) moved_.push_back(figure.last);
            if (index == figure.last) moved_.push_back(figure.first);
        }
        const std::vector<std::size_t> ends = moved_;
        auto isEnd = [&](std::size_t i) {
            return std::find(ends.begin(), ends.end(), i) != ends.end();
        };
        walk([&](const PathSegment& s, std::size_t startNode) {
            if (s.kind != SegmentKind::Bezier) return;
            if (isEnd(startNode)) moved_.push_back(s.index);
            if (isEnd(s.EndIndex())) moved_.push_back(s.index + 1);
        });
    }
    std::sort(moved_.begin(), moved_.end());
    moved_.erase(std::unique(moved_.begin(), moved_.end()), moved_.end());

    // The segments that touch a moved node, chained into figures where one ends where the next
    // starts.
    std::size_t chainEnd = path.NodeCount();
    walk([&](const PathSegment& s, std::size_t startNode) {
        bool touched = IsMoved(startNode);
        const std::size_t own = s.kind == SegmentKind::Close ? 1 : s.points.size();
        const std::size_t first = s.index;
        for (std::size_t k = 0; k < own; ++k) touched = touched || IsMoved(first + k);
        if (!touched) return;
        if (startNode != chainEnd) {
            outlineTypes_.push_back(node::kMoveTo);
            outlineSource_.push_back(startNode);
        }
        const NodeType kind = s.kind == SegmentKind::Bezier ? node::kBezierTo : node::kLineTo;
        for (std::size_t k = 0; k < own; ++k) {
            outlineTypes_.push_back(kind);
            outlineSource_.push_back(first + k);
        }
        chainEnd = s.kind == SegmentKind::Close ? s.index : s.EndIndex();
    });
    // A lone node (a figure of one point) still shows where it goes.
    if (outlineTypes_.empty()) {
        outlineTypes_.push_back(node::kMoveTo);
        outlineSource_.push_back(index);
    }
}

bool NodeDrag::IsMoved(std::size_t index) const {
    return std::binary_search(moved_.begin(), moved_.end(), index);
}

std::shared_ptr<PathObject> NodeDrag::Outline(const PathObject& path, Point2 delta) const {
    auto outline = std::make_shared<PathObject>();
    outline->ReserveNodes(outlineTypes_.size());
    for (std::size_t k = 0; k < outlineTypes_.size(); ++k) {
        const std::size_t i = outlineSource_[k];
        if (i >= path.NodeCount()) continue;
        outline->AddNode(IsMoved(i) ? path.PointAt(i) + delta : path.PointAt(i), outlineTypes_[k]);
    }
    return outline;
}

void NodeDrag::Apply(PathObject& path, Point2 delta) const {
    for (std::size_t i : moved_) {
        if (i < path.NodeCount()) path.SetPoint(i, path.PointAt(i) + delta);
    }
}

} // namespace rhomba
