#include "shapes/SpiralShape.h"

#include "geometry/Isometric.h"
#include "shapes/GeneratedPath.h"

#include <cmath>

namespace rhomba {

namespace {

// The radius as a function of the angle (radians), with its derivative.
struct SpiralRadius {
    bool logarithmic = false;
    double start = 0;   // radius at angle 0, points
    double rate = 0;    // Archimedean: points per radian; logarithmic: ln(factor) per radian

    double At(double theta) const {
        return logarithmic ? start * std::exp(rate * theta) : rate * theta;
    }
    double Slope(double theta) const { return logarithmic ? At(theta) * rate : rate; }
};

Point2 PointAt(const SpiralRadius& radius, double theta) {
    const double r = radius.At(theta);
    return {r * std::cos(theta), r * std::sin(theta)};
}

// d/dtheta of PointAt.
Point2 TangentAt(const SpiralRadius& radius, double theta) {
    const double r = radius.At(theta);
    const double dr = radius.Slope(theta);
    const double c = std::cos(theta);
    const double s = std::sin(theta);
    return {dr * c - r * s, dr * s + r * c};
}

} // namespace

double SpiralTurns(const SpiralSettings& settings) {
    const double maxRadius = settings.maxRadiusMillimetres;
    if (!std::isfinite(maxRadius) || !std::isfinite(settings.growth) || maxRadius <= 0) return -1;
    if (settings.logarithmic) {
        if (!(settings.growth > 1)) return -1;
        if (maxRadius <= kLogSpiralStartMillimetres) return 0;
        return std::log(maxRadius / kLogSpiralStartMillimetres) / std::log(settings.growth);
    }
    if (!(settings.growth > 0)) return -1;
    return maxRadius / settings.growth;
}

std::unique_ptr<PathObject> BuildSpiral(const SpiralSettings& settings) {
    auto path = NewGeneratedPath();
    // An open curve: a fill would only paint the wedges between its turns.
    path->SetFill(false);
    const double turns = SpiralTurns(settings);
    if (!(turns > 0) || turns > kMaxSpiralTurns) return path;

    SpiralRadius radius;
    radius.logarithmic = settings.logarithmic;
    if (settings.logarithmic) {
        radius.start = kLogSpiralStartMillimetres * kPointsPerMillimetre;
        radius.rate = std::log(settings.growth) / kTwoPi;
    } else {
        radius.rate = settings.growth * kPointsPerMillimetre / kTwoPi;
    }

    const double endAngle = turns * kTwoPi;
    // A remainder within rounding of a whole quarter is no piece of its own.
    const auto pieces = static_cast<long>(std::ceil(endAngle / kHalfPi - 1e-9));
    path->AddNode(PointAt(radius, 0), node::kMoveTo);
    for (long i = 0; i < pieces; ++i) {
        const double from = static_cast<double>(i) * kHalfPi;
        const double to = i + 1 == pieces ? endAngle : static_cast<double>(i + 1) * kHalfPi;
        const double h = 4.0 / 3.0 * std::tan((to - from) / 4);
        const Point2 p0 = PointAt(radius, from);
        const Point2 p1 = PointAt(radius, to);
        const Point2 t0 = TangentAt(radius, from);
        const Point2 t1 = TangentAt(radius, to);
        path->AddNode({p0.x + h * t0.x, p0.y + h * t0.y}, node::kBezierTo);
        path->AddNode({p1.x - h * t1.x, p1.y - h * t1.y}, node::kBezierTo);
        path->AddNode(p1, node::kBezierTo);
    }
    return path;
}

} // namespace rhomba
