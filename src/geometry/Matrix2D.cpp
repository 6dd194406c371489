#include "geometry/Matrix2D.h"

#include "geometry/Isometric.h"

#include <cmath>

namespace rhomba {

Matrix2D Matrix2D::Rotation(double degrees) {
    const double r = degrees / kDegreesPerRadian;
    const double cs = std::cos(r);
    const double sn = std::sin(r);
    return {cs, sn, -sn, cs, 0, 0};
}

Matrix2D& Matrix2D::ThenScale(double sx, double sy) {
    return *this = Multiply(*this, Scaling(sx, sy));
}

Matrix2D& Matrix2D::ThenRotate(double degrees) {
    return *this = Multiply(*this, Rotation(degrees));
}

Matrix2D& Matrix2D::ThenShear(double p, double q) {
    return *this = Multiply(*this, Shear(p, q));
}

Matrix2D& Matrix2D::ThenTranslate(double dx, double dy) {
    return *this = Multiply(*this, Translation(dx, dy));
}

Matrix2D& Matrix2D::PreTranslate(double dx, double dy) {
    return *this = Multiply(Translation(dx, dy), *this);
}

bool Invert(const Matrix2D& m, Matrix2D& result) {
    const double det = m.a * m.d - m.b * m.c;
    if (det == 0) {
        result = Matrix2D::Identity();
        return false;
    }
    result = {m.d / det,
              -m.b / det,
              -m.c / det,
              m.a / det,
              (m.c * m.f - m.d * m.e) / det,
              (m.b * m.e - m.a * m.f) / det};
    return true;
}

} // namespace rhomba
