#pragma once

namespace rhomba {

// A point in document coordinates: points (1/72 inch), y axis up.
struct Point2 {
    double x = 0;
    double y = 0;

    friend constexpr bool operator==(const Point2&, const Point2&) = default;
    constexpr Point2 operator+(Point2 o) const { return {x + o.x, y + o.y}; }
    constexpr Point2 operator-(Point2 o) const { return {x - o.x, y - o.y}; }
    constexpr Point2 operator*(double s) const { return {x * s, y * s}; }
};

} // namespace rhomba
