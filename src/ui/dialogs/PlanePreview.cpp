#include "ui/dialogs/PlanePreview.h"

#include "model/Document.h"
#include "render/Device.h"
#include "render/DevicePath.h"
#include "render/DrawContext.h"
#include "render/DrawFlags.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace rhomba {

namespace {

constexpr ColorRef kAxisColour = 0x909090;
constexpr ColorRef kLabelColour = 0x505050;
// GDI's TA_CENTER: labels are centred on their point.
constexpr unsigned kTaCenter = 6;

// The directions of the three space axes in the view, in document units (y up).
std::array<Point2, 3> AxisDirections() {
    const Matrix3D view = IsoViewMatrix(true);
    std::array<Point2, 3> directions;
    for (int axis = 0; axis < 3; ++axis) {
        double v[3] = {0, 0, 0};
        v[axis] = 1;
        view.TransformPoint3(v[0], v[1], v[2]);
        directions[static_cast<std::size_t>(axis)] = {v[0], v[1]};
    }
    return directions;
}

bool IsFinite(const Rect2& box) {
    return std::isfinite(box.left) && std::isfinite(box.right) && std::isfinite(box.top) &&
           std::isfinite(box.bottom);
}

void DrawAxes(Device& device, const Matrix2D& view, Point2 origin,
              const std::array<Point2, 3>& ends, int labelPixels) {
    const DevicePoint o = ToDevice(view, origin);
    SelectedObject pen(device, device.CreatePen(gdi::kPsSolid, 1, kAxisColour), true);
    for (const Point2& end : ends) {
        const DevicePoint e = ToDevice(view, end);
        device.MoveTo(o.x, o.y);
        device.LineTo(e.x, e.y);
    }
    const ColorRef oldColour = device.SetTextColor(kLabelColour);
    device.SetBkMode(gdi::kTransparent);
    device.SetTextAlign(kTaCenter | gdi::kTaBaseline);
    const char16_t* const names[3] = {u"X", u"Y", u"Z"};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const DevicePoint e = ToDevice(view, ends[axis]);
        const double dx = e.x - o.x;
        const double dy = e.y - o.y;
        const double length = std::hypot(dx, dy);
        if (!(length > 0))
            continue;
        // The label's centre stands a little beyond the axis end; its baseline a little below.
        const double gap = 0.75 * labelPixels;
        const int x = DeviceRound(e.x + dx / length * gap);
        const int y = DeviceRound(e.y + dy / length * gap + 0.35 * labelPixels);
        device.TextOutW(x, y, names[axis]);
    }
    device.SetTextColor(oldColour);
}

} // namespace

PlanePreview::PlanePreview(Document& document) : bounds_(document.SelectionBounds()) {
    // A work list rather than recursion: no depth of group nesting exhausts the stack.
    std::vector<const GraphicObject*> pending(document.Selection().rbegin(),
                                              document.Selection().rend());
    while (!pending.empty()) {
        const GraphicObject* object = pending.back();
        pending.pop_back();
        const ObjectKind kind = object->GetKind();
        if (kind == ObjectKind::Path) {
            const auto& path = static_cast<const PathObject&>(*object);
            sources_.push_back({path.Points(), path.Types()});
            mapped_.push_back(std::make_unique<PathObject>());
        } else if (kind == ObjectKind::Group || kind == ObjectKind::Layer) {
            const auto& group = static_cast<const Group&>(*object);
            for (std::size_t i = group.ChildCount(); i-- > 0;)
                pending.push_back(group.ChildAt(i));
        }
    }
}

std::size_t PlanePreview::NodeCount() const {
    std::size_t count = 0;
    for (const NodeRun& run : sources_)
        count += run.points.size();
    return count;
}

void PlanePreview::Paint(Device& device, int width, int height,
                         const PlaneRotationParams& settings) {
    PlaneRotationParams params = settings;
    params.bounds = bounds_;
    Rect2 box = Rect2::Empty();
    for (std::size_t i = 0; i < sources_.size(); ++i) {
        PathObject& path = *mapped_[i];
        path.ClearNodes();
        path.InsertNodes(0, sources_[i]);
        path.RotateIsoPlane(params);
        Rect2 pathBox;
        if (path.GetBounds(pathBox, false))
            box.Merge(pathBox);
    }

    // The axes start where the space origin lands, the centre of the selection's box, and reach
    // as far as its larger side, so that they grow with the drawing and stand out of it.
    const bool measured = !bounds_.IsEmpty() && IsFinite(bounds_);
    const Point2 origin = measured ? bounds_.Centre() : Point2{};
    double reach =
        measured ? std::max(bounds_.right - bounds_.left, bounds_.top - bounds_.bottom) : 0;
    if (!(reach > 0) || !std::isfinite(reach))
        reach = 1;
    std::array<Point2, 3> ends = AxisDirections();
    for (Point2& end : ends)
        end = {origin.x + end.x * reach, origin.y + end.y * reach};

    // Points that are not numbers or beyond measure are left out of the fit; the axes alone
    // always give it a size.
    if (!IsFinite(box))
        box = Rect2::Empty();
    box.Include(origin);
    for (const Point2& end : ends)
        box.Include(end);
    const double boxWidth = box.right - box.left;
    const double boxHeight = box.top - box.bottom;
    // Room around the picture for the labels.
    const double margin = 1.5 * labelPixels;
    const double roomX = std::max(1.0, width - 2 * margin);
    const double roomY = std::max(1.0, height - 2 * margin);
    double scale = std::min(boxWidth > 0 ? roomX / boxWidth : roomX,
                            boxHeight > 0 ? roomY / boxHeight : roomY);
    if (!std::isfinite(scale) || !(scale > 0))
        scale = 1;
    const double offsetX = (width - boxWidth * scale) / 2;
    const double offsetY = (height - boxHeight * scale) / 2;
    view_ = {scale, 0, 0, -scale, offsetX - box.left * scale, offsetY + box.top * scale};

    DrawAxes(device, view_, origin, ends, labelPixels);
    for (const auto& path : mapped_)
        path->DrawEdit(device, {view_}, kDrawOutline);
}

} // namespace rhomba
