#include "geometry/Angles.h"

#include "geometry/Isometric.h"

#include <cmath>

namespace rhomba {

namespace {

double BaseAngle(double ax, double ay) {
    if (ax > ay) return std::atan(ay / ax);
    if (ax == ay) return kQuarterPi;
    if (ax < ay) return kHalfPi - std::atan(ax / ay);
    return 0; // unordered: a NaN
}

} // namespace

double VectorAngle(double dx, double dy) {
    const double base = BaseAngle(std::fabs(dx), std::fabs(dy));
    if (dx < 0 && dy < 0) return base + kPi;
    if (dx < 0 && dy >= 0) return kPi - base;
    if (dx >= 0 && dy < 0) return kTwoPi - base;
    return base;
}

double FoldHalfTurn(double angle) {
    // Typed or loaded angles may be anything; far-off or infinite values must not spin the loops.
    if (!std::isfinite(angle)) return angle;
    if (std::fabs(angle) > 1e6) angle = std::remainder(angle, kPi);
    while (angle < -kHalfPi) angle += kPi;
    while (angle > kHalfPi) angle -= kPi;
    return angle;
}

} // namespace rhomba
