#pragma once

#include "model/PathObject.h"

#include <memory>

namespace rhomba {

// What the sine dialog hands to the generator; start is not greater than end.
struct SineSettings {
    double amplitudeMillimetres = 20;
    double startDegrees = 0;
    double endDegrees = 360;
    bool tickMarks = false;
    bool axes = true;
};

// A stroked sine curve about the origin made of whole cubic quarter waves between -720 and 720
// degrees, one unit of x per radian scaled by the amplitude; axes first, then the tick marks at
// the 90-degree positions (only with axes), then the curve as one figure.
// Note: a curve whose first drawn quarter is the third or fourth of its period starts with a
// move to the point pi to the left of the quarter's true start; drawings depend on that.
std::unique_ptr<PathObject> BuildSineCurve(const SineSettings& settings);

} // namespace rhomba
