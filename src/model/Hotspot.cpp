#include "model/Hotspot.h"

#include "geometry/SegmentProximity.h"

#include <utility>

namespace rhomba {

void Hotspot::Describe(std::string& out) const { out = "Hotspot (" + GetName() + ")"; }

bool Hotspot::GetBounds(Rect2& bounds, bool) {
    bounds = GetRect();
    return true;
}

GraphicObject* Hotspot::HitTest(Point2 probe, double tolerance) {
    const Point2 upperLeft{x1_, y1_}, upperRight{x2_, y1_};
    const Point2 lowerRight{x2_, y2_}, lowerLeft{x1_, y2_};
    if (IsNearSegment(probe, upperLeft, upperRight, tolerance) ||
        IsNearSegment(probe, upperRight, lowerRight, tolerance) ||
        IsNearSegment(probe, lowerRight, lowerLeft, tolerance) ||
        IsNearSegment(probe, lowerLeft, upperLeft, tolerance)) {
        return this;
    }
    return nullptr;
}

void Hotspot::Transform(const Matrix2D& matrix) {
    const Point2 a = matrix.TransformPoint({x1_, y1_});
    const Point2 b = matrix.TransformPoint({x2_, y2_});
    SetRect(a.x, a.y, b.x, b.y);
}

void Hotspot::SetRect(double x1, double y1, double x2, double y2) {
    if (x1 > x2) std::swap(x1, x2);
    if (y2 > y1) std::swap(y1, y2);
    x1_ = x1;
    y1_ = y1;
    x2_ = x2;
    y2_ = y2;
}

} // namespace rhomba
