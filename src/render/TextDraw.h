#pragma once

#include "geometry/Matrix2D.h"
#include "model/Types.h"

namespace rhomba {

// The text colour of a stroked and filled text: per channel, half the fill plus the stroke,
// modulo 256.
ColorRef MixTextColour(ColorRef fill, ColorRef stroke);
// The font escapement in tenths of a degree for the direction of (100, 0) under transform.
int TextEscapement(const Matrix2D& transform);

} // namespace rhomba
