#include "geometry/Matrix3D.h"

#include "geometry/Isometric.h"

#include <cmath>

namespace rhomba {

namespace {

// Note: degrees / 180 times the ten-decimal pi, in this order; plane rotations of existing
// drawings depend on those last bits.
double ToRadians3D(double degrees) { return degrees / 180 * kTruncatedPi; }

// The turn that carries axis from toward axis to (x 0, y 1, z 2).
Matrix3D Turn(int from, int to, double degrees) {
    const double r = ToRadians3D(degrees);
    Matrix3D turn;
    turn.m[from * 4 + from] = std::cos(r);
    turn.m[from * 4 + to] = -std::sin(r);
    turn.m[to * 4 + from] = std::sin(r);
    turn.m[to * 4 + to] = std::cos(r);
    return turn;
}

} // namespace

void Matrix3D::Multiply(const Matrix3D& other) {
    Matrix3D product;
    for (int row = 0; row < 4; ++row) {
        for (int col = 0; col < 4; ++col) {
            double sum = 0;
            for (int k = 0; k < 4; ++k) sum += m[row * 4 + k] * other.m[k * 4 + col];
            product.m[row * 4 + col] = sum;
        }
    }
    *this = product;
}

void Matrix3D::ApplyScale(double sx, double sy, double sz) {
    Matrix3D s;
    s.m[0] = sx;
    s.m[5] = sy;
    s.m[10] = sz;
    Multiply(s);
}

void Matrix3D::ApplyRotateZ(double degrees) { Multiply(Turn(0, 1, degrees)); }

void Matrix3D::ApplyRotateX(double degrees) { Multiply(Turn(1, 2, degrees)); }

void Matrix3D::ApplyRotateY(double degrees) { Multiply(Turn(2, 0, degrees)); }

void Matrix3D::TransformPoint3(double& x, double& y, double& z) const {
    const double nx = m[0] * x + m[1] * y + m[2] * z + m[3];
    const double ny = m[4] * x + m[5] * y + m[6] * z + m[7];
    const double nz = m[8] * x + m[9] * y + m[10] * z + m[11];
    x = nx;
    y = ny;
    z = nz;
}

} // namespace rhomba
