#pragma once

#include "geometry/Matrix2D.h"
#include "render/Device.h"

#include <cstdint>
#include <vector>

namespace rhomba {

class PathObject;

// A device coordinate from a mapped value: add 0.5 and truncate toward zero, so negative values
// round toward zero. Note: kept as it is; existing output depends on it. Values beyond the
// 32-bit range are clamped first.
std::int32_t DeviceRound(double value);
DevicePoint ToDevice(const Matrix2D& view, Point2 p);

// A path converted for one drawing call: device points and PolyDraw type bytes.
struct DevicePath {
    std::vector<DevicePoint> points;
    std::vector<std::uint8_t> types;
};

// How the type bytes are written.
enum class TypeRule {
    Screen,  // type AND 7 for every point
    Device,  // controls plain 4, move points without the close bit, the rest AND 7
    Full,    // the whole byte, selection and handle bits included (node-handle painter)
};

// Fills out (cleared first) with the path's points mapped through view.
void ConvertPath(const PathObject& path, const Matrix2D& view, TypeRule rule, DevicePath& out);

// Issues the path mapped through view as MoveTo/LineTo/PolyBezierTo/CloseFigure calls.
void EmitSegments(Device& device, const PathObject& path, const Matrix2D& view);

} // namespace rhomba
