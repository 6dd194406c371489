// Hotspots show on the canvas only; they are neither printed nor exported.
#include "model/Hotspot.h"
#include "render/DevicePath.h"
#include "render/DrawContext.h"

namespace rhomba {

void Hotspot::DrawEdit(Device& device, const DrawContext& context, unsigned) {
    const Matrix2D& view = context.view;
    const Rect2 r = GetRect();
    const DevicePoint upperLeft = ToDevice(view, {r.left, r.top});
    const DevicePoint lowerRight = ToDevice(view, {r.right, r.bottom});
    const ColorRef color = IsSelected() ? 0xFF0000 : 0x8080FF;
    SelectedObject pen(device, device.CreatePen(gdi::kPsSolid, 1, color), true);
    device.MoveTo(upperLeft.x, upperLeft.y);
    device.LineTo(lowerRight.x, upperLeft.y);
    device.LineTo(lowerRight.x, lowerRight.y);
    device.LineTo(upperLeft.x, lowerRight.y);
    device.LineTo(upperLeft.x, upperLeft.y);
}

} // namespace rhomba
