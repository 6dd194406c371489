#pragma once

#include "geometry/Point2.h"

#include <cstddef>
#include <span>
#include <vector>

namespace rhomba {

// One piece of a fitted outline: a straight line or a cubic to data[end].
struct FitPiece {
    bool curve = false;
    Point2 c1, c2;
    std::size_t end = 0;
};

// How closely a fit follows its data.
struct FitLimits {
    // No data point lies farther than this from the fitted outline (points).
    double tolerance = 2.8;
    // Points within this distance of a chord count as lying on it: such runs become lines.
    double straightness = 0.001;
};

// Covers the polyline data[0..n-1] with as few lines and cubics as the limits allow; pieces end
// only on data points, and at every index flagged in corner. Between two pieces the outline keeps
// its tangent unless the point between them is a corner.
// Note: greedy from the start, each piece as long as it can be; smooth data gets long curves,
// straight data lines, and the work stays near linear in the number of points.
std::vector<FitPiece> FitPolyline(std::span<const Point2> data, const std::vector<bool>& corner,
                                  const FitLimits& limits);

} // namespace rhomba
