#pragma once

namespace rhomba {

// Direction of (dx, dy), counter-clockwise from the positive x axis, in radians in [0, 2 pi].
// Note: the zero vector has the direction pi / 4, and a NaN component gives a base angle of 0;
// callers rely on always getting a number.
double VectorAngle(double dx, double dy);

// Folds an angle in radians into [-pi / 2, pi / 2] by whole half turns; both ends stay as given.
double FoldHalfTurn(double angle);

} // namespace rhomba
