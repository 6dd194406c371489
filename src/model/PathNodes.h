#pragma once

#include "geometry/Point2.h"

#include <cstddef>

namespace rhomba {

class PathObject;

// The node menu's edits of a path.

// "In Kurve": the line segment ending at index (at the last node when index is a closed figure's
// move) becomes a Bezier with its controls at the truncated thirds. False when nothing changed.
// Note: 0.33333 and 0.66666 on purpose; existing drawings depend on them.
bool ConvertToCurve(PathObject& path, std::size_t index);
// "In Linie": the Bezier ending at index becomes a straight segment.
bool ConvertToLine(PathObject& path, std::size_t index);

// The hit tolerance of "Hinzufuegen": five screen points at the canvas zoom, 10 points without
// one (zoom 0).
double AddNodeTolerance(double zoom);
// "Hinzufuegen": inserts a node into the segment nearest to q within tolerance (of equally near
// segments the earlier one); a curve is split at the nearest parameter and keeps its look.
bool AddNodeAt(PathObject& path, Point2 q, double tolerance);

// "Verbinden mit Linie": joins two end nodes of open figures with a straight segment, or closes a
// figure when they are its two ends.
bool JoinWithLine(PathObject& path, std::size_t a, std::size_t b);
// "Verbinden an Schnittpunkt": both end nodes move to the intersection of the lines through their
// end segments and become one node; parallel lines fall back to a straight join.
bool JoinAtIntersection(PathObject& path, std::size_t a, std::size_t b);

// "Loeschen": removes the selected on-curve nodes and joins their neighbours; returns the number
// of nodes removed. A figure left with one node disappears; the path itself stays, even empty, for
// the caller to delete.
std::size_t DeleteSelectedNodes(PathObject& path);

// "Trennen": opens every figure and starts a new figure at each selected segment end that is
// followed by more of its figure.
void SplitAtSelectedNodes(PathObject& path);

} // namespace rhomba
