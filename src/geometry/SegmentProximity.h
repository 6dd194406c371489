#pragma once

#include "geometry/Point2.h"

namespace rhomba {

// Euclidean distance from p to the closed segment a-b (to a when the segment has no length).
double DistanceToSegment(Point2 p, Point2 a, Point2 b);

// The shared proximity test of hit testing: is p within tolerance of the segment a-b?
bool IsNearSegment(Point2 p, Point2 a, Point2 b, double tolerance);

} // namespace rhomba
