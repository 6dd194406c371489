#pragma once

#include "geometry/Matrix2D.h"

namespace rhomba {

// What DrawEdit needs of the view it draws into; the model keeps no view state of its own.
struct DrawContext {
    // Document points to device pixels.
    Matrix2D view;
    // The canvas zoom that screen pens scale with; at 0 they are a pixel wide.
    double zoom = 0;
};

} // namespace rhomba
