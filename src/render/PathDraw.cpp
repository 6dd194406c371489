// The screen and device drawing of paths.
#include "geometry/Isometric.h"
#include "model/PathObject.h"
#include "render/DeviceCache.h"
#include "render/DevicePath.h"
#include "render/DrawContext.h"
#include "render/NodeMarks.h"
#include "render/DrawFlags.h"

namespace rhomba {

namespace {

// One buffer for all calls: drawing runs on the one UI thread and never nests a path inside a
// path, and reusing the storage keeps a repaint of many small paths free of allocations.
DevicePath& ScratchPath() {
    static DevicePath path;
    return path;
}

constexpr ColorRef kBlue = 0xFF0000;

// The object's own pen on the screen: its width and dash lengths follow the zoom.
GdiHandle CreateScreenPen(Device& device, const PathObject& path, double zoom) {
    const double scale = zoom * kScreenPixelsPerPoint;
    const int width = DeviceRound(path.GetPenWidth() * scale);
    const int count = path.GetDashCount();
    if (count == 0) return device.CreatePen(gdi::kPsSolid, width, path.GetStrokeColor());
    DashDot dash{};
    path.GetDashDot(dash);
    return CreateDashPen(device, width, path.GetStrokeColor(), count, dash, scale);
}

} // namespace

void PathObject::DrawEdit(Device& device, const DrawContext& context, unsigned flags) {
    const Matrix2D& view = context.view;
    if (NodeCount() == 0) return;
    DevicePath& path = ScratchPath();

    if (flags & kDrawNodesOnly) {
        ConvertPath(*this, view, TypeRule::Full, path);
        PaintNodeHandles(device, path);
        return;
    }
    ConvertPath(*this, view, TypeRule::Screen, path);

    const bool outline = (flags & kDrawOutline) != 0;
    const bool highlight = (flags & kDrawHighlight) != 0;
    const bool selected = IsSelected();

    if (outline && highlight) {
        SelectedObject brush(device, device.GetStockObject(StockObject::BlackBrush), false);
        SelectedObject pen(device, device.GetStockObject(StockObject::NullPen), false);
        device.BeginPath();
        device.PolyDraw(path.points, path.types);
        device.EndPath();
        device.FillPath();
    } else if (!outline && HasFill() && NodeCount() > 2) {
        SelectedObject brush(device, device.CreateSolidBrush(GetFillColor()), true);
        SelectedObject pen(device, device.GetStockObject(StockObject::NullPen), false);
        device.BeginPath();
        device.PolyDraw(path.points, path.types);
        device.EndPath();
        device.FillPath();
    }

    if (!(HasStroke() || outline || (highlight && selected))) return;
    GdiHandle penHandle = 0;
    if (selected && highlight) {
        penHandle = device.CreatePen(gdi::kPsSolid, 1, kBlue);
    } else if (outline) {
        penHandle = device.CreatePen(gdi::kPsSolid, 1, selected ? kBlue : 0x000000);
    } else {
        penHandle = CreateScreenPen(device, *this, context.zoom);
    }
    const GdiHandle oldBrush = device.SelectObject(device.GetStockObject(StockObject::NullBrush));
    const GdiHandle oldPen = device.SelectObject(penHandle);
    device.PolyDraw(path.points, path.types);
    if (selected && !outline) {
        // A selected path shows a thin blue line over its own stroke.
        const GdiHandle blue = device.CreatePen(gdi::kPsSolid, 1, kBlue);
        device.SelectObject(blue);
        device.DeleteObject(penHandle);
        penHandle = blue;
        device.PolyDraw(path.points, path.types);
    }
    device.SelectObject(oldPen);
    device.SelectObject(oldBrush);
    device.DeleteObject(penHandle);
}

void PathObject::Render(Device& device, const Matrix2D& view) {
    if (NodeCount() < 2) return;
    const PathOutputMode mode = GetPathOutputMode();
    DevicePath& path = ScratchPath();
    if (mode == PathOutputMode::PolyDraw) ConvertPath(*this, view, TypeRule::Device, path);

    const bool filled = HasFill();
    const bool stroked = HasStroke();
    DashDot dash{};
    GetDashDot(dash);

    auto bracketed = [&] {
        device.BeginPath();
        if (mode == PathOutputMode::PolyDraw) {
            device.PolyDraw(path.points, path.types);
        } else {
            EmitSegments(device, *this, view);
        }
        device.EndPath();
    };

    if (filled) {
        SelectDeviceBrush(device, GetFillColor());
        if (stroked) {
            SelectDevicePen(device, GetStrokeColor(), GetPenWidth(), dash, GetDashCount());
            bracketed();
            device.StrokeAndFillPath();
        } else {
            // The pen is left alone: filling a path draws no outline.
            bracketed();
            device.FillPath();
        }
        return;
    }
    if (stroked) {
        SelectDevicePen(device, GetStrokeColor(), GetPenWidth(), dash, GetDashCount());
    } else {
        SelectDeviceNullPen(device);
    }
    switch (mode) {
    case PathOutputMode::PolyDraw:
        device.PolyDraw(path.points, path.types);
        break;
    case PathOutputMode::ExplicitPath:
        bracketed();
        device.StrokePath();
        break;
    case PathOutputMode::ExplicitSegments:
        EmitSegments(device, *this, view);
        break;
    }
}

} // namespace rhomba
