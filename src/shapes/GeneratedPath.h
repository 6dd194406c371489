#pragma once

#include "model/PathObject.h"

#include <memory>

namespace rhomba {

class Document;

// A new path as every generator starts it: stroke on in black, pen width 0.25, no dash, fill
// 0xAAAAAA on (the defaults of new paths, not the document's style).
std::unique_ptr<PathObject> NewGeneratedPath();

// Puts a generated path on the current layer when it has any nodes; returns whether it did.
bool AddGeneratedPath(Document& document, std::unique_ptr<PathObject> path);

// Appends one cubic Bezier along the circle of radius about the origin from the angle from to
// the angle to (degrees, counter-clockwise, at most a quarter turn apart), continuing the
// current figure: the control points lie on the tangents at (4/3) tan(span / 4) radius.
void AppendArc(PathObject& path, double radius, double fromDegrees, double toDegrees);

// Marks the last node of the path as closing its figure.
void CloseFigure(PathObject& path);

} // namespace rhomba
