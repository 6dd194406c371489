#include "render/CanvasView.h"

#include "geometry/Isometric.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "render/DevicePath.h"
#include "render/DrawContext.h"
#include "render/DrawFlags.h"

#include <cmath>

namespace rhomba {

namespace {

// An A4 page rounded up to whole points.
constexpr double kPageWidth = 596;
constexpr double kPageHeight = 842;
constexpr ColorRef kPageColour = 0x646464;
constexpr ColorRef kCrossColour = 0x808080;
constexpr ColorRef kGuideColour = 0x00FFFF;
constexpr int kGuideSpacing = 100;

} // namespace

int IsometricGuideRise(int clientWidth) {
    return static_cast<int>(clientWidth / kGuideSqrt3 + 0.5 + 0.5);
}

CanvasView::CanvasView(Document& document) : document_(document) {}
CanvasView::~CanvasView() = default;

void CanvasView::SetClientSize(int width, int height) {
    width_ = width;
    height_ = height;
}

void CanvasView::WorldToClient(double& x, double& y) const {
    const Point2 p = document_.view.view.TransformPoint({x, y});
    x = p.x;
    y = p.y;
}

void CanvasView::ClientToWorld(double& x, double& y) const {
    const Point2 p = document_.view.inverse.TransformPoint({x, y});
    x = p.x;
    y = p.y;
}

void CanvasView::SetZoom(double factor, int x, int y) {
    if (x == 0 && y == 0) {
        x = width_ / 2;
        y = height_ / 2;
    }
    double wx = x, wy = y;
    ClientToWorld(wx, wy);
    ViewState& state = document_.view;
    state.zoom = factor;
    const double scale = factor * kScreenPixelsPerPoint;
    state.view = Matrix2D::Scaling(scale, -scale);
    const Point2 landed = state.view.TransformPoint({wx, wy});
    state.view.e = std::trunc(x - landed.x);
    state.view.f = std::trunc(y - landed.y);
    Invert(state.view, state.inverse);
    if (onZoomChanged) onZoomChanged(factor);
}

void CanvasView::ScrollBy(double dx, double dy) {
    ViewState& state = document_.view;
    state.view.e += dx;
    state.view.f += dy;
    Invert(state.view, state.inverse);
}

void CanvasView::Paint(Device& device, int tool) {
    DrawContext context{document_.view.view, document_.view.zoom};
    if (width_ > 0 && height_ > 0) context.visible = PixelBox{0, 0, double(width_), double(height_)};
    if (switches.pageFrame) DrawPageFrame(device);
    if (switches.coordinateCross) DrawCoordinateCross(device);
    const unsigned flags = (document_.GetFlags() & Document::kFlagDraft) ? kDrawOutline : 0;
    for (std::size_t i = 0; i < document_.LayerCount(); ++i) {
        document_.LayerAt(i).DrawEdit(device, context, flags);
    }
    if (!document_.Selection().empty()) {
        if (tool == kToolNode) {
            document_.Selection().front()->DrawEdit(device, context, kDrawNodesOnly);
        } else if (tool == kToolSelect) {
            DrawSelectionBox(device);
        }
    }
    if (switches.isometricLines) DrawIsometricLines(device);
}

void CanvasView::DrawPageFrame(Device& device) {
    if (!page_) {
        page_ = std::make_unique<PathObject>();
        page_->AddNode({0, 0}, node::kMoveTo);
        page_->AddNode({kPageWidth, 0}, node::kLineTo);
        page_->AddNode({kPageWidth, kPageHeight}, node::kLineTo);
        page_->AddNode({0, kPageHeight}, node::kLineTo);
        page_->AddNode({0, 0}, node::kLineTo | node::kCloseFigure);
        page_->SetFill(false);
        page_->SetStrokeColor(kPageColour);
        page_->SetPenWidth(0.0001);
    }
    page_->DrawEdit(device, {document_.view.view, document_.view.zoom}, 0);
}

void CanvasView::DrawCoordinateCross(Device& device) {
    // A thin grey cross through the origin with millimetre ticks: every millimetre when they are
    // at least four pixels apart, else every 5, 10, 50 ... millimetres; longer ticks every 5 and
    // every 10 steps.
    const Matrix2D& view = document_.view.view;
    const DevicePoint origin = ToDevice(view, {0, 0});
    const double pixelsPerMm = std::fabs(view.a) * kPointsPerMillimetre;
    if (!(pixelsPerMm > 0) || !std::isfinite(pixelsPerMm)) return;
    double stepMm = 1;
    for (int k = 0; pixelsPerMm * stepMm < 4 && k < 12; ++k) stepMm *= (k % 2 == 0) ? 5 : 2;
    const double spacing = pixelsPerMm * stepMm;

    SelectedObject pen(device, device.CreatePen(gdi::kPsSolid, 1, kCrossColour), true);
    const bool xAxisVisible = origin.y >= 0 && origin.y < height_;
    const bool yAxisVisible = origin.x >= 0 && origin.x < width_;
    auto tickLength = [](long long n) { return n % 10 == 0 ? 6 : n % 5 == 0 ? 4 : 2; };
    if (xAxisVisible) {
        device.MoveTo(0, origin.y);
        device.LineTo(width_, origin.y);
        const long long first = static_cast<long long>(std::ceil(-origin.x / spacing));
        const long long last = static_cast<long long>(std::floor((width_ - origin.x) / spacing));
        for (long long n = first; n <= last; ++n) {
            const int x = origin.x + static_cast<int>(std::lround(n * spacing));
            const int len = tickLength(n);
            device.MoveTo(x, origin.y - len);
            device.LineTo(x, origin.y + len + 1);
        }
    }
    if (yAxisVisible) {
        device.MoveTo(origin.x, 0);
        device.LineTo(origin.x, height_);
        const long long first = static_cast<long long>(std::ceil(-origin.y / spacing));
        const long long last = static_cast<long long>(std::floor((height_ - origin.y) / spacing));
        for (long long n = first; n <= last; ++n) {
            const int y = origin.y + static_cast<int>(std::lround(n * spacing));
            const int len = tickLength(n);
            device.MoveTo(origin.x - len, y);
            device.LineTo(origin.x + len + 1, y);
        }
    }
}

bool CanvasView::SelectionBox(std::array<int, 4>& box) {
    const Rect2 bounds = document_.SelectionBounds();
    if (bounds.IsEmpty()) return false;
    const Matrix2D& view = document_.view.view;
    const DevicePoint a = ToDevice(view, {bounds.left, bounds.top});
    const DevicePoint b = ToDevice(view, {bounds.right, bounds.bottom});
    box = {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
    return true;
}

std::array<DevicePoint, 8> CanvasView::SelectionHandles(const std::array<int, 4>& box) {
    const int l = box[0], t = box[1], r = box[2], b = box[3];
    const int mx = l + (r - l) / 2, my = t + (b - t) / 2;
    return {{{l, t}, {mx, t}, {r, t}, {r, my}, {r, b}, {mx, b}, {l, b}, {l, my}}};
}

void CanvasView::DrawSelectionBox(Device& device) {
    std::array<int, 4> box;
    if (!SelectionBox(box)) return;
    {
        SelectedObject brush(device, device.GetStockObject(StockObject::NullBrush), false);
        SelectedObject pen(device, device.CreatePen(gdi::kPsDot, 1, 0x000000), true);
        device.Rectangle(box[0], box[1], box[2] + 1, box[3] + 1);
    }
    SelectedObject brush(device, device.GetStockObject(StockObject::WhiteBrush), false);
    SelectedObject pen(device, device.GetStockObject(StockObject::BlackPen), false);
    for (const DevicePoint& h : SelectionHandles(box)) {
        device.Rectangle(h.x - 3, h.y - 3, h.x + 4, h.y + 4);
    }
}

void CanvasView::DrawIsometricLines(Device& device) {
    const int w = width_, h = height_;
    const int rise = IsometricGuideRise(w);
    SelectedObject pen(device, device.CreatePen(gdi::kPsDot, 1, kGuideColour), true);
    auto line = [&](int y0, int y1) {
        device.MoveTo(0, y0);
        device.LineTo(w, y1);
    };
    for (int y = 0; y < h; y += kGuideSpacing) line(y, y + rise);
    for (int y = -kGuideSpacing; y > -h; y -= kGuideSpacing) line(y, y + rise);
    // No rising line through the corner (0, 0): the families start at 100.
    for (int y = kGuideSpacing; y < 2 * h; y += kGuideSpacing) line(y, y - rise);
}

} // namespace rhomba
