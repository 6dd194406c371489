#pragma once

namespace rhomba {

// A 4x4 matrix, row by row, mapping column vectors: x' = m0*x + m1*y + m2*z + m3, and so on for
// y' and z'. The fourth row is carried along in products but never divided by.
// Note: the Apply operations multiply on the right, so the step applied last in code acts first
// on the point.
struct Matrix3D {
    double m[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

    friend bool operator==(const Matrix3D&, const Matrix3D&) = default;

    // this <- this x other.
    void Multiply(const Matrix3D& other);
    void ApplyScale(double sx, double sy, double sz);
    void ApplyRotateZ(double degrees);
    void ApplyRotateX(double degrees);
    void ApplyRotateY(double degrees);
    void TransformPoint3(double& x, double& y, double& z) const;
};

} // namespace rhomba
