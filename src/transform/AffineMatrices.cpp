#include "transform/AffineMatrices.h"

#include "geometry/Isometric.h"
#include "model/Document.h"

#include <cmath>

namespace rhomba {

Matrix2D RotateAbout(Point2 centre, double degrees, bool counterClockwise) {
    Matrix2D m = Matrix2D::Translation(-centre.x, -centre.y);
    m.ThenRotate(counterClockwise ? degrees : -degrees);
    return m.ThenTranslate(centre.x, centre.y);
}

Matrix2D StretchAbout(Point2 centre, double xPercent, double yPercent) {
    Matrix2D m = Matrix2D::Translation(-centre.x, -centre.y);
    m.ThenScale(xPercent / 100, yPercent / 100);
    return m.ThenTranslate(centre.x, centre.y);
}

Matrix2D ShearAbout(Point2 centre, double xDegrees, double yDegrees) {
    Matrix2D m = Matrix2D::Translation(-centre.x, -centre.y);
    m.ThenShear(std::tan(xDegrees / kDegreesPerRadian), std::tan(yDegrees / kDegreesPerRadian));
    return m.ThenTranslate(centre.x, centre.y);
}

Matrix2D MoveByMillimetres(double xMillimetres, double yMillimetres) {
    return Matrix2D::Translation(xMillimetres * kPointsPerMillimetre,
                                 yMillimetres * kPointsPerMillimetre);
}

void TransformSelection(Document& document, const Matrix2D& matrix) {
    for (GraphicObject* object : document.Selection()) object->Transform(matrix);
}

} // namespace rhomba
