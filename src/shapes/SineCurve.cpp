#include "shapes/SineCurve.h"

#include "geometry/Isometric.h"
#include "shapes/GeneratedPath.h"

#include <algorithm>

namespace rhomba {

namespace {

// The first quarter wave of a unit sine as one cubic Bezier; the second mirrors it.
constexpr double kControl1 = 0.50783654420825;
constexpr double kControl2 = 1.0008189001551;
constexpr double kMirror1 = 2.140773753434693; // pi - kControl2
constexpr double kMirror2 = 2.633756109381543; // pi - kControl1

struct QuarterWave {
    Point2 move;
    Point2 points[3];
};

// Quarter k (1 to 4) of a period in unit coordinates, before the period's shift.
QuarterWave Quarter(int k) {
    const QuarterWave first{{0, 0}, {{kControl1, kControl1}, {kControl2, 1}, {kHalfPi, 1}}};
    const QuarterWave second{
        {kHalfPi, 1}, {{kMirror1, 1}, {kMirror2, kControl1}, {kPi, 0}}};
    if (k == 1) return first;
    if (k == 2) return second;
    // The second half wave: the Bezier points shift by pi and turn over, the move point only
    // turns over.
    QuarterWave q = k == 3 ? first : second;
    q.move.y = -q.move.y;
    for (Point2& p : q.points) p = {p.x + kPi, -p.y};
    return q;
}

} // namespace

std::unique_ptr<PathObject> BuildSineCurve(const SineSettings& settings) {
    auto path = NewGeneratedPath();
    path->SetFill(false);

    const double a = settings.amplitudeMillimetres * kPointsPerMillimetre;
    const double s = settings.startDegrees / kDegreesPerRadian;
    const double e = settings.endDegrees / kDegreesPerRadian;

    if (settings.axes) {
        path->AddNode({std::min(s, 0.0) * a, 0}, node::kMoveTo);
        path->AddNode({std::max(e, 0.0) * a, 0}, node::kLineTo);
        path->AddNode({0, a}, node::kMoveTo);
        path->AddNode({0, -a}, node::kLineTo);
        if (settings.tickMarks) {
            for (int degrees = -720; degrees <= 720; degrees += 90) {
                const double p = degrees / kDegreesPerRadian;
                if (p < s || p > e) continue;
                path->AddNode({p * a, a / 20}, node::kMoveTo);
                path->AddNode({p * a, -a / 20}, node::kLineTo);
            }
        }
    }

    bool started = false;
    for (int period = -720; period < 720; period += 360) {
        const double shift = period / kDegreesPerRadian;
        for (int k = 1; k <= 4; ++k) {
            const int quarterStart = period + 90 * (k - 1);
            const int quarterEnd = period + 90 * k;
            if (!(quarterEnd > settings.startDegrees && quarterStart < settings.endDegrees)) {
                continue;
            }
            const QuarterWave q = Quarter(k);
            if (!started) {
                path->AddNode({(q.move.x + shift) * a, q.move.y * a}, node::kMoveTo);
                started = true;
            }
            for (const Point2& p : q.points) {
                path->AddNode({(p.x + shift) * a, p.y * a}, node::kBezierTo);
            }
        }
    }
    return path;
}

} // namespace rhomba
