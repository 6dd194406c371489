#include "geometry/SegmentProximity.h"

#include <cmath>

namespace rhomba {

double DistanceToSegment(Point2 p, Point2 a, Point2 b) {
    const Point2 ab = b - a;
    const Point2 ap = p - a;
    const double lengthSquared = ab.x * ab.x + ab.y * ab.y;
    double t = 0;
    if (lengthSquared > 0) {
        t = (ap.x * ab.x + ap.y * ab.y) / lengthSquared;
        if (t < 0) t = 0;
        if (t > 1) t = 1;
    }
    const Point2 foot = a + ab * t;
    return std::hypot(p.x - foot.x, p.y - foot.y);
}

bool IsNearSegment(Point2 p, Point2 a, Point2 b, double tolerance) {
    return DistanceToSegment(p, a, b) <= tolerance;
}

} // namespace rhomba
