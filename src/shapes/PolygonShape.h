#pragma once

#include "model/PathObject.h"

#include <memory>

namespace rhomba {

// Where the first corner of a polygon lies: the radio buttons of the polygon dialog in order.
enum FirstCorner : int { kCornerTop = 0, kCornerRight = 1, kCornerBottom = 2, kCornerLeft = 3 };

// What the polygon dialog hands to the generator.
struct PolygonSettings {
    int corners = 5;
    double radiusMillimetres = 10;
    bool piePieces = false;
    bool spokes = false;
    bool outline = true;
    int firstCorner = kCornerTop;
};

// A regular polygon about the origin: its pie pieces (closed triangles), then its spokes, then
// its closed outline, as far as each is asked for. Fewer than three corners give an empty path.
std::unique_ptr<PathObject> BuildPolygon(const PolygonSettings& settings);

} // namespace rhomba
