#pragma once

#include "geometry/Matrix2D.h"
#include "geometry/Point2.h"

namespace rhomba {

class Document;

// The matrices of the rotate, stretch, shear and move commands. The first three act about a
// centre (the selection's box centre); all expect values already read, folded and clamped.

// Turns by degrees counter-clockwise, or clockwise (by -degrees) when counterClockwise is false.
Matrix2D RotateAbout(Point2 centre, double degrees, bool counterClockwise);

// Scales by the percentages; negative ones mirror.
Matrix2D StretchAbout(Point2 centre, double xPercent, double yPercent);

// x' = x + tan(xDegrees) y, y' = tan(yDegrees) x + y about the centre.
Matrix2D ShearAbout(Point2 centre, double xDegrees, double yDegrees);

// A move by millimetres, converted with the program's own factor.
Matrix2D MoveByMillimetres(double xMillimetres, double yMillimetres);

// Hands the one matrix to every selected object in selection order; the selection is not grouped.
void TransformSelection(Document& document, const Matrix2D& matrix);

} // namespace rhomba
