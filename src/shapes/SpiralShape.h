#pragma once

#include "model/PathObject.h"

#include <memory>

namespace rhomba {

// What the spiral dialog hands to the generator. growth is the "Zuwachs/U": for the Archimedean
// spiral the millimetres the radius grows per turn, for the logarithmic one the factor by which
// it grows per turn.
struct SpiralSettings {
    double maxRadiusMillimetres = 50;
    double growth = 5;
    bool logarithmic = false;
};

// The logarithmic spiral never reaches the centre; it starts at this radius.
inline constexpr double kLogSpiralStartMillimetres = 1;

// More turns than this would be a black disc of millions of nodes; the dialog refuses them.
inline constexpr double kMaxSpiralTurns = 1000;

// How many turns the spiral makes from its start to the maximum radius, or -1 when the settings
// describe no growing spiral (growth not above 0, or a factor not above 1).
double SpiralTurns(const SpiralSettings& settings);

// A stroked spiral about the origin, counter-clockwise from the positive x axis: the Archimedean
// from the centre, the logarithmic from kLogSpiralStartMillimetres, both ending exactly on the
// maximum radius. Each piece is one cubic Bezier of at most a quarter turn with its control
// points on the tangents, so the joins are smooth. Settings without turns, or with more than
// kMaxSpiralTurns, give an empty path.
std::unique_ptr<PathObject> BuildSpiral(const SpiralSettings& settings);

} // namespace rhomba
