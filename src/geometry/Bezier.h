#pragma once

#include "geometry/Point2.h"

namespace rhomba {

// A cubic Bezier: start, two control points, end.
struct CubicBezier {
    Point2 p0, p1, p2, p3;

    // The point at parameter t (0 = start, 1 = end).
    constexpr Point2 At(double t) const {
        const double s = 1 - t;
        const double a = s * s * s, b = 3 * s * s * t, c = 3 * s * t * t, d = t * t * t;
        return {a * p0.x + b * p1.x + c * p2.x + d * p3.x, a * p0.y + b * p1.y + c * p2.y + d * p3.y};
    }
};

// The two halves of a curve split at t by de Casteljau's construction; together they trace
// exactly the original curve.
struct BezierHalves {
    CubicBezier first;
    CubicBezier second;
};
BezierHalves SplitBezier(const CubicBezier& curve, double t);

// The parameter of the curve point nearest to p and its distance.
struct BezierNearest {
    double t = 0;
    double distance = 0;
};
BezierNearest NearestOnBezier(const CubicBezier& curve, Point2 p);

// Is p within tolerance of the box of the curve's four points? A cheap first test: the curve
// lies inside that box.
bool IsNearBezierBox(Point2 p, const CubicBezier& curve, double tolerance);

// Is p within tolerance of the curve? Cheap when p lies well outside the control polygon's box.
bool IsNearBezier(Point2 p, const CubicBezier& curve, double tolerance);

} // namespace rhomba
