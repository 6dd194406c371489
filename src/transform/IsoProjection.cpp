#include "transform/IsoProjection.h"

#include "geometry/Isometric.h"
#include "geometry/Rect2.h"
#include "model/Document.h"

namespace rhomba {

Matrix2D BuildFaceMatrix(int face, double cx, double cy) {
    Matrix2D m = Matrix2D::Translation(-cx, -cy);
    switch (face) {
    case kFaceLeft:
        m.ThenScale(kCos30, 1.0).ThenShear(0, -kIsoShear);
        break;
    case kFaceRight:
        m.ThenScale(kCos30, 1.0).ThenShear(0, kIsoShear);
        break;
    case kFaceTop1:
        m.ThenScale(1.0, kCos30).ThenShear(-kIsoShear, 0).ThenRotate(kIsoAngleDegrees);
        break;
    case kFaceTop2:
        m.ThenScale(1.0, kCos30).ThenShear(kIsoShear, 0).ThenRotate(-kIsoAngleDegrees);
        break;
    default:
        return Matrix2D::Identity();
    }
    return m.ThenTranslate(cx, cy);
}

void ProjectSelection(Document& document, int mode) {
    if (mode < kFaceLeft || mode > kBackFromTop2) return;
    if (document.Selection().empty()) return;
    if (document.Selection().size() > 1 && document.GroupSelection() == nullptr) return;

    GraphicObject* object = document.Selection().front();
    Rect2 box = Rect2::Empty();
    object->GetBounds(box, false);
    const Point2 centre = box.Centre();

    Matrix2D matrix;
    if (mode <= kFaceTop2) {
        matrix = BuildFaceMatrix(mode, centre.x, centre.y);
    } else {
        // A failed inversion leaves the identity, which these factors never need.
        Invert(BuildFaceMatrix(mode - 4, centre.x, centre.y), matrix);
    }
    object->Transform(matrix);
}

} // namespace rhomba
