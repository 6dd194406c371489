#pragma once

#include "geometry/Point2.h"
#include "model/PathObject.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace rhomba {

// A node the node tool can take hold of: an on-curve node, or a control point whose handle is
// shown (those of the one selected node).
struct GrabbableNode {
    long index = -1;
    double distance = 0;
    bool control = false;
};

// The grabbable node nearest to p; an on-curve node wins over a control point that is not
// strictly nearer. Index -1 for a path without nodes.
GrabbableNode NearestGrabbableNode(const PathObject& path, Point2 p, bool withShownControls);

// Dragging one node: an on-curve node takes the control points attached to it along, and the
// node on top of it that closes its figure; a control point moves alone.
class NodeDrag {
public:
    NodeDrag(const PathObject& path, std::size_t index);

    // The nodes that move, in ascending order.
    const std::vector<std::size_t>& Moved() const { return moved_; }
    // The segments that change, as they run with the moved nodes offset by delta: the small path
    // the drag feedback draws.
    std::shared_ptr<PathObject> Outline(const PathObject& path, Point2 delta) const;
    // Moves the nodes by delta.
    void Apply(PathObject& path, Point2 delta) const;

private:
    bool IsMoved(std::size_t index) const;

    std::vector<std::size_t> moved_;
    // The outline's nodes: their types and the path nodes they stand for.
    std::vector<NodeType> outlineTypes_;
    std::vector<std::size_t> outlineSource_;
};

} // namespace rhomba
