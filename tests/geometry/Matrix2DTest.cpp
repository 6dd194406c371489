#include "geometry/Matrix2D.h"

#include <gtest/gtest.h>

#include <cmath>

namespace rhomba {
namespace {

TEST(Matrix2D, MapsPointsAsRowVectors) {
    const Matrix2D m{2, 3, 5, 7, 11, 13};
    // x' = a x + c y + e, y' = b x + d y + f
    EXPECT_EQ(m.TransformPoint({1, 10}), (Point2{2 + 50 + 11, 3 + 70 + 13}));
}

TEST(Matrix2D, MultiplyAppliesTheFirstArgumentFirst) {
    const Point2 origin{0, 0};
    EXPECT_EQ(Multiply(Matrix2D::Translation(1, 0), Matrix2D::Scaling(2, 2)).TransformPoint(origin),
              (Point2{2, 0}));
    EXPECT_EQ(Multiply(Matrix2D::Scaling(2, 2), Matrix2D::Translation(1, 0)).TransformPoint(origin),
              (Point2{1, 0}));
}

TEST(Matrix2D, RotationTurnsCounterClockwiseInYUpDocument) {
    const Point2 p = Matrix2D::Rotation(90).TransformPoint({1, 0});
    EXPECT_NEAR(p.x, 6.1e-17, 1e-17);
    EXPECT_EQ(p.y, 1.0);
    // The degree divisor is the program's own constant, not pi / 180.
    volatile double radians = 30 / 57.29577951308232;
    EXPECT_EQ(Matrix2D::Rotation(30).a, std::cos(radians));
}

TEST(Matrix2D, ShearArgumentsAreFactorOfYInXThenFactorOfXInY) {
    EXPECT_EQ(Matrix2D::Shear(0.5, 0).TransformPoint({0, 2}), (Point2{1, 2}));
    EXPECT_EQ(Matrix2D::Shear(0, 0.5).TransformPoint({2, 0}), (Point2{2, 1}));
}

TEST(Matrix2D, ThenFormsActAfterAndPreTranslateBefore) {
    Matrix2D m = Matrix2D::Scaling(2, 3);
    m.ThenTranslate(10, 20);
    EXPECT_EQ(m.TransformPoint({1, 1}), (Point2{12, 23}));

    Matrix2D pre = Matrix2D::Scaling(2, 3);
    pre.PreTranslate(10, 20);
    EXPECT_EQ(pre.TransformPoint({1, 1}), (Point2{22, 63}));

    Matrix2D chain;
    chain.ThenScale(2, 2).ThenShear(0.5, 0).ThenRotate(90);
    const Matrix2D expected =
        Multiply(Multiply(Matrix2D::Scaling(2, 2), Matrix2D::Shear(0.5, 0)), Matrix2D::Rotation(90));
    EXPECT_EQ(chain, expected);
}

TEST(Matrix2D, InvertUndoesTheMappingOrFailsOnAZeroDeterminant) {
    const Matrix2D m{1.5, -2, 0.25, 3, 7, -1};
    Matrix2D inverse;
    ASSERT_TRUE(Invert(m, inverse));
    const Point2 p = inverse.TransformPoint(m.TransformPoint({4, -9}));
    EXPECT_NEAR(p.x, 4, 1e-12);
    EXPECT_NEAR(p.y, -9, 1e-12);

    // A singular matrix fails and gives the identity.
    Matrix2D result{9, 9, 9, 9, 9, 9};
    EXPECT_FALSE(Invert(Matrix2D::Scaling(0, 1), result));
    EXPECT_EQ(result, Matrix2D::Identity());

    // A tiny but non-zero determinant is inverted normally.
    EXPECT_TRUE(Invert(Matrix2D::Scaling(1e-300, 1), result));
    EXPECT_DOUBLE_EQ(result.a, 1e300);
}

} // namespace
} // namespace rhomba
