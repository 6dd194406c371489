#pragma once

#include "geometry/Matrix2D.h"
#include "render/DevicePath.h"

namespace rhomba {

class PathObject;

// Marks in device pixels around (x, y).
void DrawHollowNodeMark(Device& device, int x, int y);
void DrawFilledNodeMark(Device& device, int x, int y);
void DrawNodeMark(Device& device, int x, int y, bool filled);
// The emphasised variant adds a smaller circle inside.
void DrawControlMark(Device& device, int x, int y, bool emphasised = false);

// Node and control-point marks for one converted path; path carries the full type bytes and is
// worked on in place (close-bit transfer of a selected start node, handle bits when exactly one
// node is selected).
void PaintNodeHandles(Device& device, DevicePath& path);

// The path and its handles drawn inverted (R2_NOT), so that drawing it twice removes it; used
// while a path is dragged.
void DrawDragOutline(Device& device, const PathObject& path, const Matrix2D& view);

} // namespace rhomba
