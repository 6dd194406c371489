#include "geometry/SegmentProximity.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

TEST(SegmentProximity, MeasuresToTheNearestPointWithAnInclusiveTolerance) {
    EXPECT_DOUBLE_EQ(DistanceToSegment({5, 3}, {0, 0}, {10, 0}), 3);
    // Beyond an end the distance is to that end, not to the infinite line.
    EXPECT_DOUBLE_EQ(DistanceToSegment({13, 4}, {0, 0}, {10, 0}), 5);
    EXPECT_DOUBLE_EQ(DistanceToSegment({-3, -4}, {0, 0}, {10, 0}), 5);
    // A segment without length is a point.
    EXPECT_DOUBLE_EQ(DistanceToSegment({3, 4}, {0, 0}, {0, 0}), 5);
    // The tolerance is inclusive.
    EXPECT_TRUE(IsNearSegment({5, 2}, {0, 0}, {10, 0}, 2));
    EXPECT_FALSE(IsNearSegment({5, 2.001}, {0, 0}, {10, 0}, 2));
}

} // namespace
} // namespace rhomba
