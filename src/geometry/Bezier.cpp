#include "geometry/Bezier.h"

#include <algorithm>
#include <cmath>

namespace rhomba {

namespace {

constexpr Point2 Lerp(Point2 a, Point2 b, double t) { return a + (b - a) * t; }

double DistanceSquared(Point2 a, Point2 b) {
    const double dx = a.x - b.x, dy = a.y - b.y;
    return dx * dx + dy * dy;
}

// Coarse samples find the right valley; a golden-section search then narrows it down to the
// last bits. Distance along a cubic has at most a few local minima, all separated by more than
// one sample step for any curve a user can draw.
constexpr int kCoarseSamples = 48;
constexpr int kRefineSteps = 80;

} // namespace

BezierHalves SplitBezier(const CubicBezier& c, double t) {
    const Point2 a = Lerp(c.p0, c.p1, t);
    const Point2 b = Lerp(c.p1, c.p2, t);
    const Point2 d = Lerp(c.p2, c.p3, t);
    const Point2 ab = Lerp(a, b, t);
    const Point2 bd = Lerp(b, d, t);
    const Point2 m = Lerp(ab, bd, t);
    return {{c.p0, a, ab, m}, {m, bd, d, c.p3}};
}

BezierNearest NearestOnBezier(const CubicBezier& curve, Point2 p) {
    int bestIndex = 0;
    double best = DistanceSquared(curve.At(0), p);
    for (int i = 1; i <= kCoarseSamples; ++i) {
        const double d = DistanceSquared(curve.At(static_cast<double>(i) / kCoarseSamples), p);
        if (d < best) {
            best = d;
            bestIndex = i;
        }
    }
    double lo = std::max(0.0, static_cast<double>(bestIndex - 1) / kCoarseSamples);
    double hi = std::min(1.0, static_cast<double>(bestIndex + 1) / kCoarseSamples);
    constexpr double kGolden = 0.6180339887498949;
    double x1 = hi - kGolden * (hi - lo), x2 = lo + kGolden * (hi - lo);
    double f1 = DistanceSquared(curve.At(x1), p), f2 = DistanceSquared(curve.At(x2), p);
    for (int i = 0; i < kRefineSteps && hi - lo > 1e-15; ++i) {
        if (f1 < f2) {
            hi = x2;
            x2 = x1;
            f2 = f1;
            x1 = hi - kGolden * (hi - lo);
            f1 = DistanceSquared(curve.At(x1), p);
        } else {
            lo = x1;
            x1 = x2;
            f1 = f2;
            x2 = lo + kGolden * (hi - lo);
            f2 = DistanceSquared(curve.At(x2), p);
        }
    }
    BezierNearest result{static_cast<double>(bestIndex) / kCoarseSamples, std::sqrt(best)};
    const double t = (lo + hi) / 2;
    const double d = DistanceSquared(curve.At(t), p);
    if (d < best) result = {t, std::sqrt(d)};
    return result;
}

bool IsNearBezierBox(Point2 p, const CubicBezier& c, double tolerance) {
    const double left = std::min({c.p0.x, c.p1.x, c.p2.x, c.p3.x});
    const double right = std::max({c.p0.x, c.p1.x, c.p2.x, c.p3.x});
    const double bottom = std::min({c.p0.y, c.p1.y, c.p2.y, c.p3.y});
    const double top = std::max({c.p0.y, c.p1.y, c.p2.y, c.p3.y});
    return p.x >= left - tolerance && p.x <= right + tolerance && p.y >= bottom - tolerance &&
           p.y <= top + tolerance;
}

bool IsNearBezier(Point2 p, const CubicBezier& c, double tolerance) {
    return IsNearBezierBox(p, c, tolerance) && NearestOnBezier(c, p).distance <= tolerance;
}

} // namespace rhomba
