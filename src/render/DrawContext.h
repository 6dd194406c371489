#pragma once

#include "geometry/Matrix2D.h"

#include <optional>

namespace rhomba {

// A box in device pixels, y down: left <= right, top <= bottom.
struct PixelBox {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

// What DrawEdit needs of the view it draws into; the model keeps no view state of its own.
struct DrawContext {
    DrawContext() = default;
    DrawContext(const Matrix2D& view_, double zoom_ = 0) : view(view_), zoom(zoom_) {}

    // Document points to device pixels.
    Matrix2D view;
    // The canvas zoom that screen pens scale with; at 0 they are a pixel wide.
    double zoom = 0;
    // The pixels that can show anything; paths and texts wholly outside are skipped. Without a
    // box everything is drawn.
    std::optional<PixelBox> visible;
};

// Whether the object may put a pixel inside the context's visible box: paths and texts are
// measured with their screen pen; other kinds and anything that cannot be measured say yes.
class GraphicObject;
bool MayShow(GraphicObject& object, const DrawContext& context);

} // namespace rhomba
