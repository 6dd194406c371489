#include "geometry/Isometric.h"
#include "model/GraphicObject.h"
#include "render/DrawContext.h"

#include <algorithm>
#include <cmath>

namespace rhomba {

bool MayShow(GraphicObject& object, const DrawContext& context) {
    if (!context.visible)
        return true;
    const ObjectKind kind = object.GetKind();
    if (kind != ObjectKind::Path && kind != ObjectKind::Text)
        return true;
    Rect2 bounds;
    if (!object.GetBounds(bounds, false))
        return true;

    const Matrix2D& m = context.view;
    const Point2 corners[4] = {m.TransformPoint({bounds.left, bounds.top}),
                               m.TransformPoint({bounds.right, bounds.top}),
                               m.TransformPoint({bounds.left, bounds.bottom}),
                               m.TransformPoint({bounds.right, bounds.bottom})};
    double left = corners[0].x, right = left, top = corners[0].y, bottom = top;
    for (const Point2& p : corners) {
        left = std::min(left, p.x);
        right = std::max(right, p.x);
        top = std::min(top, p.y);
        bottom = std::max(bottom, p.y);
    }
    // The whole screen pen width (not half) plus rounding: round caps and joins stay inside.
    const double margin = object.GetPenWidth() * context.zoom * kScreenPixelsPerPoint + 2;
    if (!std::isfinite(left + right + top + bottom + margin))
        return true;
    const PixelBox& box = *context.visible;
    return right + margin >= box.left && left - margin <= box.right && bottom + margin >= box.top &&
           top - margin <= box.bottom;
}

} // namespace rhomba
