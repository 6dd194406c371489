#include "render/DevicePath.h"

#include "model/PathObject.h"
#include "model/PathSegments.h"

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
    case TypeRule::Device: {
        // Two plain controls, then the end point keeps its close bit; moves lose theirs.
        for (std::size_t i = 0; i < n; ++i) out.types[i] = types[i] & 7;
        NodeCursor nodes(types);
        NodeSpan step;
        while (nodes.Next(step)) {
            if (step.kind == SegmentKind::Move) out.types[step.index] &= node::kKindMask;
            if (step.kind != SegmentKind::Bezier) continue;
            out.types[step.index] = node::kBezierTo;
            out.types[step.index + 1] = node::kBezierTo;
        }
        break;
    }
    }
}

namespace {

class DeviceSink final : public PathSink {
public:
    DeviceSink(Device& device, const Matrix2D& view) : device_(device), view_(view) {}
    void MoveTo(Point2 p) override {
        const DevicePoint q = ToDevice(view_, p);
        device_.MoveTo(q.x, q.y);
    }
    void LineTo(Point2 p) override {
        const DevicePoint q = ToDevice(view_, p);
        device_.LineTo(q.x, q.y);
    }
    void CurveTo(Point2 c1, Point2 c2, Point2 end) override {
        const DevicePoint q[3] = {ToDevice(view_, c1), ToDevice(view_, c2), ToDevice(view_, end)};
        device_.PolyBezierTo(q);
    }
    void CloseFigure() override { device_.CloseFigure(); }

private:
    Device& device_;
    const Matrix2D& view_;
};

} // namespace

void EmitSegments(Device& device, const PathObject& path, const Matrix2D& view) {
    DeviceSink sink(device, view);
    WalkPath(path, sink);
}

} // namespace rhomba
