#pragma once

#include "geometry/Matrix2D.h"

namespace rhomba {

class Document;

// The projection modes as the "Isometrie" menu commands pass them: 1 to 4 lay the selection onto
// the left, right, top-1 and top-2 face of the cube, 5 to 8 take it back from that face.
enum IsoFace : int {
    kFaceLeft = 1,
    kFaceRight = 2,
    kFaceTop1 = 3,
    kFaceTop2 = 4,
    kBackFromLeft = 5,
    kBackFromRight = 6,
    kBackFromTop1 = 7,
    kBackFromTop2 = 8,
};

// The face matrix about (cx, cy) for face 1 to 4: scale, then shear, then (top faces) rotate.
// Note: the faces are deliberately not the true 30-degree rhombus (side faces slope at 26.565
// degrees); drawings made with the program depend on exactly this composition. Any other face
// gives the identity.
Matrix2D BuildFaceMatrix(int face, double cx, double cy);

// Projects the selection onto a face (modes 1 to 4) or back (5 to 8) about the centre of the
// first selected object's box. Several selected objects are grouped first and stay grouped.
// Nothing selected, or any other mode: no change.
void ProjectSelection(Document& document, int mode);

} // namespace rhomba
