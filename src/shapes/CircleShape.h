#pragma once

#include "model/PathObject.h"

#include <memory>

namespace rhomba {

// What the circle dialog hands to the generator; the angles in degrees as typed.
struct CircleSettings {
    double radiusMillimetres = 10;
    double startDegrees = 0;
    double endDegrees = 0;
    bool spokes = false;
    bool centreMark = false;
};

// Brings an angle in degrees into [0, 360); what is not a finite number becomes 0.
double FoldFullTurnDegrees(double degrees);

// A circle about the origin (equal start and end), or the counter-clockwise arc from start to
// end (a pie slice with spokes), with an optional centre cross.
// Note: an arc of exactly 90, 180 or 270 degrees ends with a Bezier of zero length.
std::unique_ptr<PathObject> BuildCircle(const CircleSettings& settings);

} // namespace rhomba
