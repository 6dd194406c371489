#include "transform/IsoSpace.h"

#include "geometry/Isometric.h"
#include "model/Document.h"
#include "model/PathObject.h"

#include <cmath>

namespace rhomba {

namespace {

void ApplyAxisTurn(Matrix3D& m, int axis, double degrees) {
    switch (axis) {
    case kAxisX: m.ApplyRotateX(degrees); break;
    case kAxisY: m.ApplyRotateY(degrees); break;
    case kAxisZ: m.ApplyRotateZ(degrees); break;
    default: break;
    }
}

// The threshold below which a typed angle counts as no turn.
constexpr double kMinimumTurnDegrees = 0.01;

// Maps one space point through the view and back to whole document units about the centre.
Point2 ToPlane(const Matrix3D& view, double x, double y, double z, double cx, double cy) {
    view.TransformPoint3(x, y, z);
    return {CutToWhole(x + cx), CutToWhole(y + cy)};
}

// Groups a multiple selection for the duration of an operation on its first object, then
// dissolves the group again.
template <typename Operation>
void OnSelectionAsOne(Document& document, Operation operation) {
    if (document.Selection().empty()) return;
    bool grouped = false;
    if (document.Selection().size() > 1) {
        if (document.GroupSelection() == nullptr) return;
        grouped = true;
    }
    GraphicObject* object = document.Selection().front();
    Rect2 box = Rect2::Empty();
    object->GetBounds(box, false);
    operation(*object, box);
    if (grouped) document.UngroupSelection();
}

} // namespace

Matrix3D IsoViewMatrix(bool foreshorten) {
    Matrix3D m;
    m.ApplyRotateX(kIsoViewTiltDegrees);
    m.ApplyRotateY(-45);
    if (!foreshorten) m.ApplyScale(kIsoViewScale, kIsoViewScale, kIsoViewScale);
    return m;
}

Matrix3D PlaneRotationMatrix(const PlaneRotationParams& params) {
    Matrix3D m = IsoViewMatrix(params.foreshorten);
    // Each step multiplies on the right, so the turn added last acts first on the point.
    if (std::fabs(params.secondAngle) >= kMinimumTurnDegrees) {
        ApplyAxisTurn(m, params.secondAxis, params.secondAngle);
    }
    if (std::fabs(params.firstAngle) >= kMinimumTurnDegrees) {
        ApplyAxisTurn(m, params.firstAxis, params.firstAngle);
    }
    return m;
}

double CutToWhole(double value) {
    // + 0.0 turns the -0 of a cut such as -0.1 into the 0 that an integer conversion gives.
    return std::trunc(value + 0.5) + 0.0;
}

void PathObject::WrapCylinder(const CylinderWrapParams& params) {
    const double width = params.bounds.right - params.bounds.left;
    // Note: a selection without width has no circumference to wrap onto; it stays as it is
    // rather than turning into points that are not numbers.
    if (!(width != 0) || !std::isfinite(width)) return;
    const double radius = (width / 2) / kPi;
    const Matrix3D view = IsoViewMatrix(params.foreshorten);
    const Point2 c = params.bounds.Centre();
    for (Point2& p : points_) {
        const double u = p.x - c.x;
        const double v = p.y - c.y;
        const double theta = (u / width) * kPi * 2 + params.phase;
        p = ToPlane(view, radius * std::cos(theta), v, -radius * std::sin(theta), c.x, c.y);
    }
}

void PathObject::RotateIsoPlane(const PlaneRotationParams& params) {
    const double w = params.bounds.right - params.bounds.left;
    const double h = params.bounds.top - params.bounds.bottom;
    const Matrix3D m = PlaneRotationMatrix(params);
    const Point2 c = params.bounds.Centre();
    for (Point2& p : points_) {
        const double u = p.x - c.x;
        const double v = p.y - c.y;
        // Note: the planes other than XY are set back by the box's width or height (W - u, not
        // -u); that moves them in the view, and drawings made so depend on it.
        double x = 0, y = 0, z = 0;
        switch (params.plane) {
        case kPlaneXY: x = u; y = v; break;
        case kPlaneZY: y = v; z = w - u; break;
        case kPlaneZX: x = h - v; z = w - u; break;
        case kPlaneXZ: x = u; z = h - v; break;
        default: x = u; y = v; break;
        }
        p = ToPlane(m, x, y, z, c.x, c.y);
    }
}

void WrapSelectionOnCylinder(Document& document, double phase, bool foreshorten) {
    OnSelectionAsOne(document, [&](GraphicObject& object, const Rect2& box) {
        object.WrapCylinder({box, phase, foreshorten});
    });
}

void RotateSelectionInPlane(Document& document, const PlaneRotationParams& settings) {
    OnSelectionAsOne(document, [&](GraphicObject& object, const Rect2& box) {
        PlaneRotationParams params = settings;
        params.bounds = box;
        object.RotateIsoPlane(params);
    });
}

} // namespace rhomba
