#include "render/NodeMarks.h"

#include "model/PathObject.h"

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

bool Selected(std::uint8_t t) { return (t & node::kSelected) != 0; }

// Counts the selected nodes; a selected start of a closed figure passes its mark to the
// figure's last point, where it is counted once.
int CountSelectedNodes(DevicePath& path) {
    int count = 0;
    const std::size_t n = path.types.size();
    for (std::size_t i = 0; i < n; ++i) {
        const std::uint8_t t = path.types[i];
        if (node::IsLineTo(t)) {
            if (Selected(t)) ++count;
        } else if (node::IsBezier(t)) {
            if (i + 2 < n && Selected(path.types[i + 2])) ++count;
            i += 2;
        } else if (node::IsMoveTo(t) && Selected(t)) {
            if (IsClosedFigure(path, i)) {
                path.types[FigureEnd(path, i)] |= node::kSelected;
            } else {
                ++count;
            }
        }
    }
    return count;
}

void ShowHandlesOfSelectedNode(DevicePath& path) {
    const std::size_t n = path.types.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (!Selected(path.types[i])) continue;
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
    const std::size_t n = path.types.size();
    const auto& p = path.points;
    for (std::size_t i = 0; i < n; ++i) {
        const std::uint8_t t = path.types[i];
        if (node::IsLineTo(t)) {
            DrawNodeMark(device, p[i].x, p[i].y, Selected(t));
        } else if (node::IsBezier(t)) {
            if (i + 2 >= n) break;
            if ((t & node::kShowHandles) != 0) {
                DrawControlMark(device, p[i].x, p[i].y);
                DrawControlMark(device, p[i + 1].x, p[i + 1].y);
                if (i > 0) {
                    device.MoveTo(p[i - 1].x, p[i - 1].y);
                    device.LineTo(p[i].x, p[i].y);
                }
                device.MoveTo(p[i + 1].x, p[i + 1].y);
                device.LineTo(p[i + 2].x, p[i + 2].y);
            }
            DrawNodeMark(device, p[i + 2].x, p[i + 2].y, Selected(path.types[i + 2]));
            i += 2;
        } else if (node::IsMoveTo(t)) {
            if (!IsClosedFigure(path, i)) DrawHollowNodeMark(device, p[i].x, p[i].y);
            DrawNodeMark(device, p[i].x, p[i].y, Selected(t));
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
