#pragma once

#include "geometry/Matrix2D.h"
#include "geometry/Rect2.h"
#include "ui/CanvasHost.h"

#include <array>

namespace rhomba {

// What the handle hit test answers: the eight handles clockwise from the upper left corner, the
// inside of the box (move), or none.
inline constexpr int kHandleNone = 0;
inline constexpr int kHandleTopLeft = 1;
inline constexpr int kHandleTop = 2;
inline constexpr int kHandleTopRight = 4;
inline constexpr int kHandleRight = 8;
inline constexpr int kHandleBottomRight = 16;
inline constexpr int kHandleBottom = 32;
inline constexpr int kHandleBottomLeft = 64;
inline constexpr int kHandleLeft = 128;
inline constexpr int kHandleMove = 256;

// The handle under client (x, y) of a selection box given in client pixels (left, top, right,
// bottom); a handle is grabbed within its drawn square, and where handles overlap the first in
// clockwise order wins.
int HandleAt(const std::array<int, 4>& box, int x, int y);

// The cursor shown over a handle; toolCursor where there is none.
CanvasCursor HandleCursor(int handle, CanvasCursor toolCursor);

// The factor that takes the dragged coordinate b to the pointer p about the fixed coordinate a.
// A degenerate distance b - a below 1e-9 counts as 1e-9 with its sign (+ for 0); factors may be
// negative, which mirrors.
double HandleFactor(double a, double b, double p);

// A scaling about a fixed point.
struct HandleScale {
    Point2 fixed;
    double fx = 1;
    double fy = 1;

    Matrix2D ToMatrix() const;
    // box mapped through the scaling.
    Rect2 Apply(const Rect2& box) const;
};

// The scaling a handle drag of box (world, y up) to the pointer asks for: corners scale both
// axes by the factor of smaller magnitude about the opposite corner, edges their own axis about
// the opposite edge. The move handle and none give the identity.
HandleScale ScaleForHandle(const Rect2& box, int handle, Point2 pointer);

} // namespace rhomba
