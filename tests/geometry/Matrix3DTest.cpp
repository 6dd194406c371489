#include "geometry/Matrix3D.h"

#include <gtest/gtest.h>

#include <cmath>

namespace rhomba {
namespace {

TEST(Matrix3D, RotateZUsesTheTruncatedPi) {
    Matrix3D m;
    m.ApplyRotateZ(90);
    double x = 1, y = 0, z = 0;
    m.TransformPoint3(x, y, z);
    // cos(pi/2) with pi cut at ten decimals is about 4.5e-11, far from the 6.1e-17 of full pi.
    // The expected values go through the run-time library like the code's (a constant would be
    // folded by the compiler, exactly rounded, and may differ in the last bit).
    volatile double radians = 90.0 / 180 * 3.1415926535;
    EXPECT_EQ(x, std::cos(radians));
    EXPECT_GT(x, 4e-11);
    EXPECT_EQ(y, std::sin(radians));
    EXPECT_EQ(z, 0);
}

TEST(Matrix3D, MapsColumnVectorsAndLastAppliedActsFirst) {
    // Scale, then rotate about z in code: the rotation acts on the point first.
    Matrix3D m;
    m.ApplyScale(2, 3, 4);
    m.ApplyRotateZ(90);
    double x = 1, y = 0, z = 5;
    m.TransformPoint3(x, y, z);
    // (1,0,5) turns to (~0,1,5), then scales to (~0,3,20).
    EXPECT_NEAR(x, 0, 1e-9);
    EXPECT_NEAR(y, 3, 1e-12);
    EXPECT_EQ(z, 20);
}

TEST(Matrix3D, RotationsFollowTheirSignConventions) {
    const double q = 1e-9;
    {
        Matrix3D m;
        m.ApplyRotateX(90); // y goes to z
        double x = 0, y = 1, z = 0;
        m.TransformPoint3(x, y, z);
        EXPECT_NEAR(y, 0, q);
        EXPECT_NEAR(z, 1, q);
    }
    {
        Matrix3D m;
        m.ApplyRotateY(90); // z goes to x
        double x = 0, y = 0, z = 1;
        m.TransformPoint3(x, y, z);
        EXPECT_NEAR(x, 1, q);
        EXPECT_NEAR(z, 0, q);
    }
}

TEST(Matrix3D, MultiplyIsRowByColumnWithThisOnTheLeft) {
    Matrix3D a, b;
    a.m[3] = 5;  // translation in x
    b.m[0] = 2;  // scale x
    Matrix3D ab = a;
    ab.Multiply(b);
    double x = 1, y = 0, z = 0;
    ab.TransformPoint3(x, y, z);
    // a x b on a column vector: scale first, then translate.
    EXPECT_EQ(x, 7);
    EXPECT_EQ(ab.m[15], 1);
}

} // namespace
} // namespace rhomba
