#pragma once

#include "geometry/Matrix2D.h"
#include "render/Device.h"
#include "ui/ToolIds.h"

#include <array>
#include <functional>
#include <memory>

namespace rhomba {

class Document;
class PathObject;

// What the settings dialog switches on and off on the canvas.
struct DisplaySwitches {
    bool isometricLines = false;
    bool coordinateCross = false;
    bool pageFrame = true;
};

// The rise of the isometric guide lines over a client width.
int IsometricGuideRise(int clientWidth);

// The canvas side of the view: world (points, y up) to client pixels and back through the
// matrices kept in the document, zoom about a client point, scrolling and the paint order.
class CanvasView {
public:
    explicit CanvasView(Document& document);
    ~CanvasView();

    void SetClientSize(int width, int height);
    int ClientWidth() const { return width_; }
    int ClientHeight() const { return height_; }

    void WorldToClient(double& x, double& y) const;
    void ClientToWorld(double& x, double& y) const;

    // Zooms so that the world point under client (x, y) stays there; (0, 0) stands for the
    // centre of the client area. The scroll offsets stay whole pixels.
    void SetZoom(double factor, int x, int y);
    void ScrollBy(double dx, double dy);

    // Page frame, coordinate cross, layers, the selection feedback of tool, guide lines.
    void Paint(Device& device, int tool);

    // The selection's box in client pixels (left, top, right, bottom); false when nothing
    // selected can be measured.
    bool SelectionBox(std::array<int, 4>& box);
    // The eight handles of a box: corners and edge middles, clockwise from the upper left.
    static std::array<DevicePoint, 8> SelectionHandles(const std::array<int, 4>& box);

    DisplaySwitches switches;
    // Told the new zoom factor, for the zoom field.
    std::function<void(double)> onZoomChanged;

private:
    void DrawPageFrame(Device& device);
    void DrawCoordinateCross(Device& device);
    void DrawSelectionBox(Device& device);
    void DrawIsometricLines(Device& device);

    Document& document_;
    int width_ = 0;
    int height_ = 0;
    std::unique_ptr<PathObject> page_;
};

} // namespace rhomba
