#include "ui/tools/Feedback.h"

#include "model/PathObject.h"
#include "render/NodeMarks.h"
#include "ui/CanvasHost.h"

#include <algorithm>

namespace rhomba {

void DrawFeedback(Device& device, const Feedback& feedback) {
    if (feedback.shape == Feedback::Shape::None) return;
    const int oldRop = device.SetROP2(gdi::kR2Not);
    {
        // Whatever a repaint left selected: inverting ignores the colour, not the width.
        SelectedObject pen(device, device.GetStockObject(StockObject::BlackPen), false);
        SelectedObject brush(device, device.GetStockObject(StockObject::NullBrush), false);
        const DevicePoint a = feedback.a, b = feedback.b;
        const int left = std::min(a.x, b.x), right = std::max(a.x, b.x) + 1;
        const int top = std::min(a.y, b.y), bottom = std::max(a.y, b.y) + 1;
        switch (feedback.shape) {
        case Feedback::Shape::Line:
            device.MoveTo(a.x, a.y);
            device.LineTo(b.x, b.y);
            break;
        case Feedback::Shape::Box: device.Rectangle(left, top, right, bottom); break;
        case Feedback::Shape::Ellipse: device.Ellipse(left, top, right, bottom); break;
        case Feedback::Shape::Outline:
            if (feedback.outline) DrawDragOutline(device, *feedback.outline, feedback.view);
            break;
        case Feedback::Shape::None: break;
        }
    }
    device.SetROP2(oldRop);
}

void FeedbackLayer::Show(Feedback next) {
    if (!Visible() && next.shape == Feedback::Shape::None) return;
    {
        FeedbackScope scope(host_);
        DrawFeedback(scope.GetDevice(), shown_);
        DrawFeedback(scope.GetDevice(), next);
    }
    shown_ = std::move(next);
}

} // namespace rhomba
