#pragma once

#include "geometry/Point2.h"

namespace rhomba {

// An axis-aligned box with the y axis up: top >= bottom when it holds anything.
struct Rect2 {
    // Where an accumulated box starts, so that the first point sets all four sides; a box still
    // holding it (left > right) holds nothing.
    static constexpr double kAccumulatorStart = 987654321.1;

    double left = kAccumulatorStart;
    double top = -kAccumulatorStart;
    double right = -kAccumulatorStart;
    double bottom = kAccumulatorStart;

    friend constexpr bool operator==(const Rect2&, const Rect2&) = default;

    static constexpr Rect2 Empty() { return {}; }
    constexpr bool IsEmpty() const { return left > right; }

    constexpr void Include(Point2 p) {
        if (p.x < left) left = p.x;
        if (p.x > right) right = p.x;
        if (p.y > top) top = p.y;
        if (p.y < bottom) bottom = p.y;
    }

    // Smallest left, largest top, largest right, smallest bottom.
    constexpr void Merge(const Rect2& o) {
        if (o.left < left) left = o.left;
        if (o.top > top) top = o.top;
        if (o.right > right) right = o.right;
        if (o.bottom < bottom) bottom = o.bottom;
    }

    // Note: written as left + half the width, not as the mean; results differ in the last bit
    // and every transformation about the centre depends on them.
    constexpr Point2 Centre() const {
        return {left + (right - left) / 2, bottom + (top - bottom) / 2};
    }
};

} // namespace rhomba
