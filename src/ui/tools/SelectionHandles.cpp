#include "ui/tools/SelectionHandles.h"

#include "render/CanvasView.h"

#include <cmath>
#include <cstdlib>

namespace rhomba {

namespace {

// Handles are drawn as squares from 3 pixels before to 3 pixels after their point.
constexpr int kHandleReach = 3;

// Which side of the box a handle drags along an axis: -1 the low side (left, bottom), +1 the
// high side (right, top), 0 none.
struct HandleSides {
    int x = 0;
    int y = 0;
};

HandleSides SidesOf(int handle) {
    switch (handle) {
    case kHandleTopLeft: return {-1, 1};
    case kHandleTop: return {0, 1};
    case kHandleTopRight: return {1, 1};
    case kHandleRight: return {1, 0};
    case kHandleBottomRight: return {1, -1};
    case kHandleBottom: return {0, -1};
    case kHandleBottomLeft: return {-1, -1};
    case kHandleLeft: return {-1, 0};
    default: return {};
    }
}

} // namespace

int HandleAt(const std::array<int, 4>& box, int x, int y) {
    const auto handles = CanvasView::SelectionHandles(box);
    for (std::size_t i = 0; i < handles.size(); ++i) {
        if (std::abs(x - handles[i].x) <= kHandleReach &&
            std::abs(y - handles[i].y) <= kHandleReach) {
            return 1 << i;
        }
    }
    if (x >= box[0] && x <= box[2] && y >= box[1] && y <= box[3]) return kHandleMove;
    return kHandleNone;
}

CanvasCursor HandleCursor(int handle, CanvasCursor toolCursor) {
    switch (handle) {
    case kHandleTopLeft:
    case kHandleBottomRight: return CanvasCursor::SizeNwSe;
    case kHandleTopRight:
    case kHandleBottomLeft: return CanvasCursor::SizeNeSw;
    case kHandleTop:
    case kHandleBottom: return CanvasCursor::SizeNs;
    case kHandleLeft:
    case kHandleRight: return CanvasCursor::SizeWe;
    case kHandleMove: return CanvasCursor::SizeAll;
    default: return toolCursor;
    }
}

double HandleFactor(double a, double b, double p) {
    double d = b - a;
    if (std::fabs(d) < 1e-9) d = d >= 0 ? 1e-9 : -1e-9;
    return (p - a) / d;
}

Matrix2D HandleScale::ToMatrix() const {
    return Matrix2D::Translation(-fixed.x, -fixed.y)
        .ThenScale(fx, fy)
        .ThenTranslate(fixed.x, fixed.y);
}

Rect2 HandleScale::Apply(const Rect2& box) const {
    const Matrix2D m = ToMatrix();
    Rect2 out;
    out.Include(m.TransformPoint({box.left, box.top}));
    out.Include(m.TransformPoint({box.right, box.bottom}));
    return out;
}

HandleScale ScaleForHandle(const Rect2& box, int handle, Point2 pointer) {
    const HandleSides sides = SidesOf(handle);
    HandleScale scale;
    scale.fixed = {sides.x > 0 ? box.left : box.right, sides.y > 0 ? box.bottom : box.top};
    if (sides.x != 0) {
        scale.fx = HandleFactor(scale.fixed.x, sides.x > 0 ? box.right : box.left, pointer.x);
    }
    if (sides.y != 0) {
        scale.fy = HandleFactor(scale.fixed.y, sides.y > 0 ? box.top : box.bottom, pointer.y);
    }
    if (sides.x != 0 && sides.y != 0) {
        const double f = std::fabs(scale.fx) <= std::fabs(scale.fy) ? scale.fx : scale.fy;
        scale.fx = scale.fy = f;
    }
    return scale;
}

} // namespace rhomba
