#include "render/NodeMarks.h"

#include "model/PathObject.h"
#include "model/PathSegments.h"

namespace rhomba {

namespace {

constexpr ColorRef kBlue = 0xFF0000;

// Index of the last point of the figure that starts at move (before the next move or the end).
std::size_t FigureEnd(const DevicePath& path, std::size_t move) {
    std::size_t last = move;
    for (std::size_t j = move + 1; j < path.types.size() && !node::IsMoveTo(path.types[j]); ++j) {
        last = j;
    }
    return last;
}

bool IsClosedFigure(const DevicePath& path, std::size_t move) {
    const std::size_t last = FigureEnd(path, move);
    return last != move && (path.types[last] & node::kCloseFigure) != 0;
}

// Counts the selected nodes; a selected start of a closed figure passes its mark to the
// figure's last point, where it is counted once.
int CountSelectedNodes(DevicePath& path) {
    int count = 0;
    NodeCursor nodes(path.types);
    NodeSpan step;
    while (nodes.Next(step)) {
        const std::uint8_t t = path.types[step.EndIndex()];
        if (!node::IsSelected(t) || step.kind == SegmentKind::Close) continue;
        if (step.kind == SegmentKind::Move && IsClosedFigure(path, step.index)) {
            path.types[FigureEnd(path, step.index)] |= node::kSelected;
        } else {
            ++count;
        }
    }
    return count;
}

void ShowHandlesOfSelectedNode(DevicePath& path) {
    const std::size_t n = path.types.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (!node::IsSelected(path.types[i])) continue;
        // The curve that ends here: its two controls precede it.
        if (node::IsBezier(path.types[i]) && i >= 2 && node::IsBezier(path.types[i - 1]) &&
            node::IsBezier(path.types[i - 2])) {
            path.types[i - 2] |= node::kShowHandles;
            path.types[i - 1] |= node::kShowHandles;
        }
        // The curve that starts here.
        if (i + 2 < n && node::IsBezier(path.types[i + 1])) {
            path.types[i + 1] |= node::kShowHandles;
            path.types[i + 2] |= node::kShowHandles;
        }
    }
}

} // namespace

void DrawHollowNodeMark(Device& device, int x, int y) {
    device.Rectangle(x - 4, y - 4, x + 4, y + 4);
}

void DrawFilledNodeMark(Device& device, int x, int y) {
    for (int k = -4; k <= 4; ++k) {
        device.MoveTo(x - 4, y - k);
        device.LineTo(x + 5, y - k);
    }
}

void DrawNodeMark(Device& device, int x, int y, bool filled) {
    if (filled) {
        DrawFilledNodeMark(device, x, y);
    } else {
        DrawHollowNodeMark(device, x, y);
    }
}

void DrawControlMark(Device& device, int x, int y, bool emphasised) {
    device.Ellipse(x - 4, y - 4, x + 4, y + 4);
    if (emphasised) device.Ellipse(x - 3, y - 3, x + 3, y + 3);
}

void PaintNodeHandles(Device& device, DevicePath& path) {
    // Handles are shown only for a single selected node; with more they would clutter the view.
    if (CountSelectedNodes(path) == 1) ShowHandlesOfSelectedNode(path);

    SelectedObject pen(device, device.CreatePen(gdi::kPsSolid, 1, kBlue), true);
    const auto& p = path.points;
    NodeCursor nodes(path.types);
    NodeSpan step;
    while (nodes.Next(step)) {
        const std::size_t i = step.index;
        const std::uint8_t t = path.types[i];
        switch (step.kind) {
        case SegmentKind::Move:
            if (!IsClosedFigure(path, i)) DrawHollowNodeMark(device, p[i].x, p[i].y);
            DrawNodeMark(device, p[i].x, p[i].y, node::IsSelected(t));
            break;
        case SegmentKind::Line: DrawNodeMark(device, p[i].x, p[i].y, node::IsSelected(t)); break;
        case SegmentKind::Bezier:
            if ((t & node::kShowHandles) != 0) {
                DrawControlMark(device, p[i].x, p[i].y);
                DrawControlMark(device, p[i + 1].x, p[i + 1].y);
                device.MoveTo(p[i - 1].x, p[i - 1].y);
                device.LineTo(p[i].x, p[i].y);
                device.MoveTo(p[i + 1].x, p[i + 1].y);
                device.LineTo(p[i + 2].x, p[i + 2].y);
            }
            DrawNodeMark(device, p[i + 2].x, p[i + 2].y, node::IsSelected(path.types[i + 2]));
            break;
        case SegmentKind::Close: break;
        }
    }
}

void DrawDragOutline(Device& device, const PathObject& path, const Matrix2D& view) {
    DevicePath full;
    ConvertPath(path, view, TypeRule::Full, full);
    DevicePath screen;
    screen.points = full.points;
    screen.types.resize(full.types.size());
    for (std::size_t i = 0; i < full.types.size(); ++i) screen.types[i] = full.types[i] & 7;
    const int oldRop = device.SetROP2(gdi::kR2Not);
    PaintNodeHandles(device, full);
    device.PolyDraw(screen.points, screen.types);
    device.SetROP2(oldRop);
}

} // namespace rhomba
