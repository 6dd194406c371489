#include "geometry/Bezier.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace rhomba {
namespace {

TEST(Bezier, SplitHalvesTraceTheOriginal) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> coordinate(-500, 500), parameter(0.01, 0.99);
    for (int round = 0; round < 50; ++round) {
        const CubicBezier c{{coordinate(random), coordinate(random)},
                            {coordinate(random), coordinate(random)},
                            {coordinate(random), coordinate(random)},
                            {coordinate(random), coordinate(random)}};
        const double t = parameter(random);
        const BezierHalves h = SplitBezier(c, t);
        EXPECT_EQ(h.first.p0, c.p0);
        EXPECT_EQ(h.second.p3, c.p3);
        EXPECT_EQ(h.first.p3, h.second.p0);
        for (int k = 0; k <= 10; ++k) {
            const double u = k / 10.0;
            const Point2 a = h.first.At(u), b = c.At(u * t);
            const Point2 d = h.second.At(u), e = c.At(t + u * (1 - t));
            EXPECT_NEAR(a.x, b.x, 1e-9);
            EXPECT_NEAR(a.y, b.y, 1e-9);
            EXPECT_NEAR(d.x, e.x, 1e-9);
            EXPECT_NEAR(d.y, e.y, 1e-9);
        }
    }
}

TEST(Bezier, NearestFindsTheFootOnASymmetricArch) {
    const CubicBezier arch{{0, 0}, {0, 100}, {100, 100}, {100, 0}};
    const BezierNearest top = NearestOnBezier(arch, {50, 200});
    EXPECT_NEAR(top.t, 0.5, 1e-7);
    EXPECT_NEAR(top.distance, 125, 1e-9); // the arch peaks at y 75
    const BezierNearest end = NearestOnBezier(arch, {120, -10});
    EXPECT_EQ(end.t, 1);
    EXPECT_NEAR(end.distance, std::hypot(20, 10), 1e-12);
}

TEST(Bezier, ProximityRespectsTheTolerance) {
    const CubicBezier arch{{0, 0}, {0, 100}, {100, 100}, {100, 0}};
    EXPECT_TRUE(IsNearBezier({50, 79}, arch, 4.01));
    EXPECT_FALSE(IsNearBezier({50, 79}, arch, 3.99));
    EXPECT_FALSE(IsNearBezier({50, 50}, arch, 10)); // inside the arch is not on it
    EXPECT_FALSE(IsNearBezier({500, 500}, arch, 10));
}

} // namespace
} // namespace rhomba
