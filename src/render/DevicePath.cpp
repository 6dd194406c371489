#include "render/DevicePath.h"

#include "model/PathObject.h"

#include <cmath>
#include <limits>

namespace rhomba {

std::int32_t DeviceRound(double value) {
    const double v = value + 0.5;
    if (!(v > std::numeric_limits<std::int32_t>::min())) {
        // NaN lands here too: a broken coordinate draws at the edge rather than crashing.
        return std::isnan(v) ? 0 : std::numeric_limits<std::int32_t>::min();
    }
    if (v >= 2147483647.0) return std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(v);
}

DevicePoint ToDevice(const Matrix2D& view, Point2 p) {
    return {DeviceRound(view.a * p.x + view.c * p.y + view.e),
            DeviceRound(view.b * p.x + view.d * p.y + view.f)};
}

void ConvertPath(const PathObject& path, const Matrix2D& view, TypeRule rule, DevicePath& out) {
    const std::size_t n = path.NodeCount();
    out.points.resize(n);
    out.types.resize(n);
    const auto& points = path.Points();
    const auto& types = path.Types();
    for (std::size_t i = 0; i < n; ++i) out.points[i] = ToDevice(view, points[i]);
    switch (rule) {
    case TypeRule::Screen:
        for (std::size_t i = 0; i < n; ++i) out.types[i] = types[i] & 7;
        break;
    case TypeRule::Full:
        for (std::size_t i = 0; i < n; ++i) out.types[i] = types[i];
        break;
    case TypeRule::Device:
        for (std::size_t i = 0; i < n; ++i) {
            const NodeType t = types[i];
            if (node::IsMoveTo(t)) {
                out.types[i] = t & 6;
            } else if (node::IsBezier(t)) {
                // Two plain controls, then the end point keeps its close bit.
                out.types[i] = node::kBezierTo;
                if (i + 1 < n) out.types[i + 1] = node::kBezierTo;
                if (i + 2 < n) out.types[i + 2] = types[i + 2] & 7;
                i += 2;
            } else {
                out.types[i] = t & 7;
            }
        }
        break;
    }
}

void EmitSegments(Device& device, const DevicePath& path) {
    const std::size_t n = path.points.size();
    for (std::size_t i = 0; i < n; ++i) {
        const std::uint8_t t = path.types[i];
        switch (t & 6) {
        case 6:
            device.MoveTo(path.points[i].x, path.points[i].y);
            break;
        case 2:
            device.LineTo(path.points[i].x, path.points[i].y);
            if (t & 1) device.CloseFigure();
            break;
        case 4:
            // A run cut short at the end of the array is not a curve; it is dropped.
            if (i + 2 >= n) return;
            device.PolyBezierTo(std::span<const DevicePoint>(&path.points[i], 3));
            i += 2;
            if (path.types[i] & 1) device.CloseFigure();
            break;
        default:
            break;
        }
    }
}

} // namespace rhomba
