#pragma once

#include "geometry/Matrix2D.h"
#include "geometry/Rect2.h"
#include "render/Device.h"

namespace rhomba {

class Document;

// The document's box (x_min, y_max, x_max, y_min); all zero for an empty drawing.
Rect2 DocumentBoundsForDevice(Document& document);
// Twenty logical units per point, y downward, a margin of one point at the left and top.
Matrix2D EmfViewMatrix(const Rect2& bounds);

// Everything that goes into an open metafile context: the cache reset and the one-way switch to
// explicit paths, the mapping, Render of the document, and the stock objects at the end (which
// delete the last cached pen, brush and font).
void RenderEmf(Device& metafile, Document& document);

} // namespace rhomba
