#include "ui/NodeMenuRules.h"

#include "model/PathFigures.h"
#include "model/PathObject.h"
#include "model/PathSegments.h"

namespace rhomba {

bool SplitRule(const PathObject& path) {
    const auto& types = path.Types();
    NodeCursor nodes(types);
    NodeSpan step;
    while (nodes.Next(step)) {
        if (step.kind != SegmentKind::Line && step.kind != SegmentKind::Bezier) continue;
        const std::size_t end = step.EndIndex();
        if (!node::IsSelected(types[end])) continue;
        if (step.closes) return true;
        if (end + 1 < types.size() && !node::IsMoveTo(types[end + 1])) return true;
    }
    return false;
}

namespace {

// The to-curve and to-line rules: exactly one selected segment end of the wanted kind, none of
// the other kind, and no selected move whose figure's last node is unselected.
bool SingleSelectedSegmentRule(const PathObject& path, SegmentKind wanted) {
    const auto& types = path.Types();
    int found = 0;
    NodeCursor nodes(types);
    NodeSpan step;
    while (nodes.Next(step)) {
        const std::size_t end = step.EndIndex();
        if (step.kind == SegmentKind::Close || !node::IsSelected(types[end])) continue;
        if (step.kind == SegmentKind::Move) {
            if (!node::IsSelected(types[FigureOf(path, end).last])) return false;
        } else if (step.kind == wanted) {
            ++found;
        } else {
            return false;
        }
    }
    return found == 1;
}

} // namespace

bool ToCurveRule(const PathObject& path) {
    return SingleSelectedSegmentRule(path, SegmentKind::Line);
}
bool ToLineRule(const PathObject& path) {
    return SingleSelectedSegmentRule(path, SegmentKind::Bezier);
}

NodeMenuState NodeMenuRules(const GraphicObject* first) {
    const PathObject* path = first != nullptr && first->GetKind() == ObjectKind::Path
                                 ? static_cast<const PathObject*>(first)
                                 : nullptr;
    NodeMenuState state{};
    std::size_t k = 0;
    long a = -1, b = -1;
    if (path != nullptr) {
        k = CountSelectedNodes(*path);
        a = NextSelectedNode(*path, 0);
        if (a >= 0) b = NextSelectedNode(*path, static_cast<std::size_t>(a) + 1);
    }
    bool joinable = false;
    if (path != nullptr && k == 2 && a >= 0 && b >= 0) {
        const auto ia = static_cast<std::size_t>(a), ib = static_cast<std::size_t>(b);
        joinable = IsOpenEndNode(*path, ia) && IsOpenEndNode(*path, ib) &&
                   (path->TypeAt(ib) & node::kCloseFigure) == 0;
    }
    state[kNodeAdd] = k == 0;
    state[kNodeJoinLine] = joinable;
    state[kNodeJoinIntersection] = joinable;
    state[kNodeDelete] = k > 0;
    state[kNodeSplit] = path != nullptr && k > 0 && SplitRule(*path);
    state[kNodeToCurve] = path != nullptr && ToCurveRule(*path);
    state[kNodeToLine] = path != nullptr && ToLineRule(*path);
    state[kNodeReduce] = k > 0;
    state[kNodeProperties] = path != nullptr;
    return state;
}

} // namespace rhomba
