#pragma once

#include "geometry/Point2.h"
#include "geometry/Rect2.h"

#include <memory>
#include <vector>

namespace rhomba {

class Document;
class GraphicObject;
class PathObject;

// A path as the path tool starts it: the generators' style, then the document's default stroke
// colour, pen width and fill.
std::unique_ptr<PathObject> NewDrawnPath(const Document& document);

// The closed outline of the box with corners a and b, from (smaller x, smaller y) up to
// (smaller x, larger y) and round the other two corners.
std::unique_ptr<PathObject> RectanglePath(Point2 a, Point2 b);
// The ellipse inscribed in the box with corners a and b: four Beziers clockwise from the left.
std::unique_ptr<PathObject> EllipsePath(Point2 a, Point2 b);

// Adds the straight segment from start to end: it continues the last figure when that is open
// and ends at start, otherwise it starts a figure of its own.
void AppendSegment(PathObject& path, Point2 start, Point2 end);

// The direction from a to b in degrees, from 0 up to 360, counter-clockwise (y up).
double DirectionDegrees(Point2 a, Point2 b);
// q turned about start onto the nearest multiple of 15 degrees, at the same distance.
Point2 SnapToFifteenDegrees(Point2 start, Point2 q);

// The top-level objects of the visible layers whose boxes lie wholly inside box.
std::vector<GraphicObject*> ObjectsInside(Document& document, const Rect2& box);

} // namespace rhomba
