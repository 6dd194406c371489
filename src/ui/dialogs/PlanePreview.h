#pragma once

#include "geometry/Matrix2D.h"
#include "geometry/Rect2.h"
#include "model/PathObject.h"
#include "transform/IsoSpace.h"

#include <memory>
#include <vector>

namespace rhomba {

class Device;
class Document;

// The picture in the plane dialog's "3D-Iso-Ansicht": a copy of the selection turned as OK would
// turn it, fitted into the field, over the three axes of space drawn thin and labelled X, Y, Z.
// Note: only paths are shown; the turn leaves texts and hotspots where they are.
class PlanePreview {
public:
    // Copies the paths of the selection (groups are looked into) and its box.
    explicit PlanePreview(Document& document);

    // Draws into a cleared device of width by height pixels, y down. The labels are written in
    // the font the device has selected.
    void Paint(Device& device, int width, int height, const PlaneRotationParams& settings);

    // The height of that font in pixels: the room around the picture grows with it.
    int labelPixels = 11;

    // The last picture's mapping from document units to pixels.
    const Matrix2D& View() const { return view_; }
    std::size_t NodeCount() const;

private:
    Rect2 bounds_;
    std::vector<NodeRun> sources_;
    std::vector<std::unique_ptr<PathObject>> mapped_;
    Matrix2D view_;
};

} // namespace rhomba
