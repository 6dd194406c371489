#include "geometry/BezierFit.h"

#include "geometry/Bezier.h"
#include "geometry/SegmentProximity.h"

#include <algorithm>
#include <cmath>

namespace rhomba {

namespace {

// A fit with more than this many times the tolerance is not worth reparameterizing.
constexpr double kReparameterizeFactor = 3;
constexpr int kMaxIterations = 100;
// The longest run of points one piece is fitted to.
constexpr std::size_t kMaxPieceLength = 32767;

double Dot(Point2 a, Point2 b) { return a.x * b.x + a.y * b.y; }
double Length(Point2 a) { return std::hypot(a.x, a.y); }

Point2 Normalised(Point2 v) {
    const double length = Length(v);
    return length > 0 ? v * (1 / length) : Point2{};
}

class Fitter {
public:
    Fitter(std::span<const Point2> data, const std::vector<bool>& corner, const FitLimits& limits)
        : data_(data), corner_(corner), limits_(limits) {}

    std::vector<FitPiece> Run() {
        std::vector<FitPiece> pieces;
        const std::size_t last = data_.size() - 1;
        // The next corner (or the end) after each point, so that finding a piece's reach costs
        // nothing.
        std::vector<std::size_t> nextStop(data_.size(), last);
        for (std::size_t i = last; i-- > 0;) nextStop[i] = IsCorner(i + 1) ? i + 1 : nextStop[i + 1];
        std::size_t pos = 0;
        while (pos < last) {
            const std::size_t limit = std::min(nextStop[pos], pos + kMaxPieceLength);
            const std::size_t lineEnd = Longest(pos, limit, [&](std::size_t e) { return IsStraight(pos, e); });
            const std::size_t curveEnd =
                lineEnd == limit ? limit : Longest(pos, limit, [&](std::size_t e) { return FitCurve(pos, e); });
            FitPiece piece;
            piece.end = std::max(lineEnd, curveEnd);
            if (curveEnd > lineEnd) {
                FitCurve(pos, curveEnd);
                piece.curve = true;
                piece.c1 = fitted_.p1;
                piece.c2 = fitted_.p2;
            }
            pieces.push_back(piece);
            hint_ = piece.end - pos;
            pos = piece.end;
        }
        return pieces;
    }

private:
    bool IsCorner(std::size_t i) const { return i < corner_.size() && corner_[i]; }

    // The last e in (pos, limit] for which ok holds, assuming it holds up to some point and not
    // after; pos + 1 always holds (two points are a line).
    template <typename Ok> std::size_t Longest(std::size_t pos, std::size_t limit, Ok ok) {
        std::size_t good = pos + 1;
        if (good >= limit) return limit;
        std::size_t bad = limit + 1;
        // Neighbouring pieces of smooth data are of similar length: start the search there.
        std::size_t step = std::max<std::size_t>(2, hint_);
        for (;; step *= 2) {
            const std::size_t e = std::min(pos + step, limit);
            if (!ok(e)) {
                bad = e;
                break;
            }
            good = e;
            if (e == limit) break;
        }
        while (bad - good > 1) {
            const std::size_t mid = good + (bad - good) / 2;
            if (ok(mid)) {
                good = mid;
            } else {
                bad = mid;
            }
        }
        return good;
    }

    bool IsStraight(std::size_t from, std::size_t to) const {
        for (std::size_t i = from + 1; i < to; ++i) {
            if (DistanceToSegment(data_[i], data_[from], data_[to]) > limits_.straightness) return false;
        }
        return true;
    }

    // The direction of the outline at data point i, leaving it forwards; one-sided at corners and
    // at the ends of the data, so that both pieces meeting at a smooth point share it.
    Point2 TangentAt(std::size_t i) const {
        const std::size_t last = data_.size() - 1;
        const std::size_t before = i == 0 || IsCorner(i) ? i : i - 1;
        const std::size_t after = i == last || IsCorner(i) ? i : i + 1;
        if (before == after) return {};
        return Normalised(data_[after] - data_[before]);
    }

    // Fits one cubic to data[from..to], the result in fitted_; true when it is within tolerance.
    bool FitCurve(std::size_t from, std::size_t to) {
        Point2 t1 = IsCorner(from) || from == 0 ? Normalised(data_[from + 1] - data_[from]) : TangentAt(from);
        Point2 t2 = IsCorner(to) || to == data_.size() - 1 ? Normalised(data_[to - 1] - data_[to])
                                                          : TangentAt(to) * -1;
        const std::size_t n = to - from + 1;
        u_.resize(n);
        u_[0] = 0;
        for (std::size_t i = 1; i < n; ++i) u_[i] = u_[i - 1] + Length(data_[from + i] - data_[from + i - 1]);
        const double total = u_[n - 1];
        if (!(total > 0)) return false;
        for (double& u : u_) u /= total;

        double error = Generate(from, to, t1, t2);
        if (error <= limits_.tolerance) return true;
        if (error > kReparameterizeFactor * limits_.tolerance) return false;
        for (int iteration = 0; iteration < kMaxIterations; ++iteration) {
            Reparameterize(from);
            const double next = Generate(from, to, t1, t2);
            if (next <= limits_.tolerance) return true;
            if (next > error * 0.9) return false;
            error = next;
        }
        return false;
    }

    // Least-squares controls along the fixed end tangents; returns the largest distance of a data
    // point from its curve point.
    double Generate(std::size_t from, std::size_t to, Point2 t1, Point2 t2) {
        const Point2 p0 = data_[from], p3 = data_[to];
        double c00 = 0, c01 = 0, c11 = 0, x0 = 0, x1 = 0;
        for (std::size_t i = 0; i < u_.size(); ++i) {
            const double u = u_[i], s = 1 - u;
            const double b0 = s * s * s, b1 = 3 * s * s * u, b2 = 3 * s * u * u, b3 = u * u * u;
            const Point2 a1 = t1 * b1, a2 = t2 * b2;
            c00 += Dot(a1, a1);
            c01 += Dot(a1, a2);
            c11 += Dot(a2, a2);
            const Point2 rest = data_[from + i] - (p0 * (b0 + b1) + p3 * (b2 + b3));
            x0 += Dot(a1, rest);
            x1 += Dot(a2, rest);
        }
        const double det = c00 * c11 - c01 * c01;
        const double chord = Length(p3 - p0);
        double alpha1 = 0, alpha2 = 0;
        if (std::fabs(det) > 1e-12 * std::max(1.0, c00 * c11)) {
            alpha1 = (x0 * c11 - x1 * c01) / det;
            alpha2 = (c00 * x1 - c01 * x0) / det;
        }
        // A degenerate or reversed solution gets the usual guess of a third of the chord.
        const double floor = 1e-6 * chord;
        if (!(alpha1 > floor) || !(alpha2 > floor) || !std::isfinite(alpha1) || !std::isfinite(alpha2)) {
            alpha1 = alpha2 = chord / 3;
        }
        fitted_ = {p0, p0 + t1 * alpha1, p3 + t2 * alpha2, p3};
        double worst = 0;
        for (std::size_t i = 0; i < u_.size(); ++i) {
            worst = std::max(worst, Length(fitted_.At(u_[i]) - data_[from + i]));
        }
        return worst;
    }

    // One Newton step per point towards the parameter of its nearest curve point.
    void Reparameterize(std::size_t from) {
        const CubicBezier& c = fitted_;
        const Point2 d1[3] = {(c.p1 - c.p0) * 3, (c.p2 - c.p1) * 3, (c.p3 - c.p2) * 3};
        const Point2 d2[2] = {(d1[1] - d1[0]) * 2, (d1[2] - d1[1]) * 2};
        for (std::size_t i = 1; i + 1 < u_.size(); ++i) {
            const double u = u_[i], s = 1 - u;
            const Point2 q = c.At(u) - data_[from + i];
            const Point2 q1 = d1[0] * (s * s) + d1[1] * (2 * s * u) + d1[2] * (u * u);
            const Point2 q2 = d2[0] * s + d2[1] * u;
            const double denominator = Dot(q1, q1) + Dot(q, q2);
            if (denominator == 0) continue;
            const double next = u - Dot(q, q1) / denominator;
            if (std::isfinite(next)) u_[i] = std::clamp(next, 0.0, 1.0);
        }
    }

    std::span<const Point2> data_;
    const std::vector<bool>& corner_;
    FitLimits limits_;
    std::vector<double> u_;
    CubicBezier fitted_;
    std::size_t hint_ = 2;
};

} // namespace

std::vector<FitPiece> FitPolyline(std::span<const Point2> data, const std::vector<bool>& corner,
                                  const FitLimits& limits) {
    if (data.size() < 2) return {};
    return Fitter(data, corner, limits).Run();
}

} // namespace rhomba
