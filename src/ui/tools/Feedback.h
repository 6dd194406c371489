#pragma once

#include "geometry/Matrix2D.h"
#include "render/Device.h"

#include <memory>

namespace rhomba {

class CanvasHost;
class PathObject;

// One rubber figure, drawn inverted straight onto the canvas.
struct Feedback {
    enum class Shape { None, Line, Box, Ellipse, Outline };

    Shape shape = Shape::None;
    // Client pixels: the ends of a line, opposite corners of a box or of an ellipse's box.
    DevicePoint a, b;
    // A path drawn through view, with its node marks.
    std::shared_ptr<const PathObject> outline;
    Matrix2D view;

    static Feedback Line(DevicePoint a, DevicePoint b) { return {Shape::Line, a, b, nullptr, {}}; }
    static Feedback Box(DevicePoint a, DevicePoint b) { return {Shape::Box, a, b, nullptr, {}}; }
    static Feedback Ellipse(DevicePoint a, DevicePoint b) {
        return {Shape::Ellipse, a, b, nullptr, {}};
    }
    static Feedback Outline(std::shared_ptr<const PathObject> path, const Matrix2D& view) {
        return {Shape::Outline, {}, {}, std::move(path), view};
    }
};

// Draws feedback with the raster operation that inverts the pixels under the pen; drawing the
// same feedback twice leaves the canvas as it was. Boxes include their right and bottom edges.
void DrawFeedback(Device& device, const Feedback& feedback);

// The feedback on the canvas now. Each change erases the old figure and draws the new one in one
// feedback drawing of the host.
class FeedbackLayer {
public:
    explicit FeedbackLayer(CanvasHost& host) : host_(host) {}

    void Show(Feedback next);
    void Hide() { Show(Feedback{}); }
    bool Visible() const { return shown_.shape != Feedback::Shape::None; }
    // After a repaint wiped the canvas: draws the shown figure again onto the fresh picture, so
    // that the next erase finds it there and no stripes remain.
    void Repaint(Device& device) const { DrawFeedback(device, shown_); }

private:
    CanvasHost& host_;
    Feedback shown_;
};

} // namespace rhomba
