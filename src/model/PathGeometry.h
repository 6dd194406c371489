#pragma once

#include "geometry/Point2.h"
#include "geometry/Rect2.h"

#include <cstddef>

namespace rhomba {

class PathObject;

// The node of a path nearest to a point; index -1 when the path has no nodes.
struct NearestNode {
    long index = -1;
    double distance = 0;
};

// Every node counts, control points included, so that handles can be grabbed; of equally near
// nodes the first wins.
NearestNode FindNearestNode(const PathObject& path, Point2 p);

// The node within tolerance of p nearest to it, or -1.
long HitNode(const PathObject& path, Point2 p, double tolerance);

// Distance from p to the outline of the path (closing segments included); a huge value for a
// path without segments.
double DistanceToPath(const PathObject& path, Point2 p);

// Sets the selection bit of every node inside the box (corners in any order) and clears it on the
// others; returns the number selected.
std::size_t SelectNodesInRect(PathObject& path, Point2 corner1, Point2 corner2);

} // namespace rhomba
