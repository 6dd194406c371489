#pragma once

#include "geometry/Point2.h"

namespace rhomba {

// An affine map of the plane: x' = a*x + c*y + e, y' = b*x + d*y + f (points are row vectors).
// Composition convention: Multiply(A, B) means "first A, then B"; the Then... forms append a
// step after what the matrix already does, PreTranslate puts a translation before it.
struct Matrix2D {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    friend constexpr bool operator==(const Matrix2D&, const Matrix2D&) = default;

    static constexpr Matrix2D Identity() { return {}; }
    static constexpr Matrix2D Translation(double dx, double dy) { return {1, 0, 0, 1, dx, dy}; }
    static constexpr Matrix2D Scaling(double sx, double sy) { return {sx, 0, 0, sy, 0, 0}; }
    // Counter-clockwise in the y-up document for a positive angle.
    static Matrix2D Rotation(double degrees);
    // x' = x + p*y, y' = q*x + y: p is the factor of y in x', q the factor of x in y'.
    static constexpr Matrix2D Shear(double p, double q) { return {1, q, p, 1, 0, 0}; }

    Matrix2D& ThenScale(double sx, double sy);
    Matrix2D& ThenRotate(double degrees);
    Matrix2D& ThenShear(double p, double q);
    Matrix2D& ThenTranslate(double dx, double dy);
    Matrix2D& PreTranslate(double dx, double dy);

    constexpr Point2 TransformPoint(Point2 p) const {
        return {a * p.x + c * p.y + e, b * p.x + d * p.y + f};
    }
};

// First m1, then m2.
constexpr Matrix2D Multiply(const Matrix2D& m1, const Matrix2D& m2) {
    return {m1.a * m2.a + m1.b * m2.c,
            m1.a * m2.b + m1.b * m2.d,
            m1.c * m2.a + m1.d * m2.c,
            m1.c * m2.b + m1.d * m2.d,
            m1.e * m2.a + m1.f * m2.c + m2.e,
            m1.e * m2.b + m1.f * m2.d + m2.f};
}

// Writes the inverse of m into result and returns true; when the determinant is exactly zero,
// writes the identity and returns false (callers such as the canvas rely on getting a matrix).
bool Invert(const Matrix2D& m, Matrix2D& result);

} // namespace rhomba
