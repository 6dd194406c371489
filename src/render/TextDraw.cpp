// Texts on the screen through their outline, on devices through the font.
#include "geometry/Isometric.h"
#include "model/TextObject.h"
#include "model/Windows1252.h"
#include "render/DeviceCache.h"
#include "render/DevicePath.h"
#include "render/TextDraw.h"

#include <cmath>

namespace rhomba {

ColorRef MixTextColour(ColorRef fill, ColorRef stroke) {
    ColorRef mixed = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        // Note: the channel sum wraps round past 255; existing output depends on it.
        const unsigned f = (fill >> shift) & 0xFF;
        const unsigned s = (stroke >> shift) & 0xFF;
        mixed |= ((f / 2 + s) % 256) << shift;
    }
    return mixed;
}

int TextEscapement(const Matrix2D& transform) {
    const double vx = 100 * transform.a;
    const double vy = 100 * transform.b;
    const double ax = std::fabs(vx), ay = std::fabs(vy);
    double angle;
    if (ax > ay) {
        angle = std::atan(ay / ax);
    } else if (ax == ay) {
        angle = kQuarterPi;
    } else {
        angle = kHalfPi - std::atan(ax / ay);
    }
    if (vx >= 0 && vy < 0) {
        angle = kTwoPi - angle;
    } else if (vx < 0 && vy >= 0) {
        angle = kPi - angle;
    } else if (vx < 0 && vy < 0) {
        angle = kPi + angle;
    }
    const double degrees = angle * 180 / kPi;
    return static_cast<int>(degrees * 10 + 0.5);
}

void TextObject::DrawEdit(Device& device, const DrawContext& context, unsigned flags) {
    RefreshOutline();
    Outline().DrawEdit(device, context, flags);
}

void TextObject::Render(Device& device, const Matrix2D& view) {
    RefreshOutline();
    if (GetText().empty()) return;
    const bool stroked = HasStroke(), filled = HasFill();
    if (!stroked && !filled) return;
    const ColorRef colour = stroked && filled ? MixTextColour(GetFillColor(), GetStrokeColor())
                            : stroked         ? GetStrokeColor()
                                              : GetFillColor();
    SetDeviceTextColor(device, colour);
    SelectDeviceFont(device, GetFont(), GetSize(), TextEscapement(GetTextTransform()), IsBold(),
                     IsItalic());
    const DevicePoint anchor = ToDevice(view, position_);
    device.TextOutW(anchor.x, anchor.y, Cp1252ToUtf16(GetText()));
}

} // namespace rhomba
