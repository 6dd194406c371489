#include "ui/tools/ToolController.h"

#include "format/Rounding.h"
#include "geometry/Isometric.h"
#include "model/Document.h"
#include "model/PathFigures.h"
#include "model/PathGeometry.h"
#include "model/PathObject.h"
#include "model/PathSegments.h"
#include "model/TextObject.h"
#include "render/CanvasView.h"
#include "ui/CanvasMenus.h"
#include "ui/InputKeys.h"
#include "ui/ToolIds.h"
#include "ui/tools/DrawnShapes.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace rhomba {

namespace {

// How near in pixels the pointer must come to a node to take hold of it or to continue a path
// from it, and to the first node of a figure to close it.
constexpr double kNodeReach = 5.0;
// The object hit test's tolerance in pixels at zoom 1 (the document divides it by the zoom).
constexpr double kHitTolerance = 2.0;

// The zoom steps, in percent, that the zoom tool walks.
constexpr int kZoomSteps[] = {10,  25,  50,  75,   100,  150,  200, 300,
                              400, 500, 700, 1000, 2000, 4000, 6000};

constexpr CanvasCursor kToolCursors[] = {
    CanvasCursor::Arrow, CanvasCursor::Scroll, CanvasCursor::Zoom,      CanvasCursor::Path,
    CanvasCursor::Node,  CanvasCursor::Text,   CanvasCursor::Rectangle, CanvasCursor::Ellipse,
};

// A status number: rounded to two decimals, never "inf" or "nan".
double StatusNumber(double value) { return std::isfinite(value) ? RoundDecimals(value, 2) : 0.0; }

// A client coordinate from a mapped value, truncated and kept within the 32-bit range.
int ClientCoordinate(double value) {
    if (!(value > -1e9)) return value != value ? 0 : -1000000000;
    if (value > 1e9) return 1000000000;
    return static_cast<int>(value);
}

bool SpansAPixel(DevicePoint a, int x, int y) { return a.x != x && a.y != y; }

void SetNodeSelected(PathObject& path, std::size_t i, bool selected) {
    const NodeType t = path.TypeAt(i);
    path.SetType(i, static_cast<NodeType>(selected ? t | node::kSelected : t & ~node::kSelected));
}

// Lets go of the selected nodes of the first selected object, when that is a path.
void LeaveNodeEditing(Document& document) {
    const auto& selection = document.Selection();
    if (selection.empty() || selection.front()->GetKind() != ObjectKind::Path) return;
    auto& path = static_cast<PathObject&>(*selection.front());
    for (std::size_t i = 0; i < path.NodeCount(); ++i) SetNodeSelected(path, i, false);
}

} // namespace

ToolController::ToolController(Document& document, CanvasView& view, CanvasHost& host)
    : document_(document), view_(view), host_(host), feedback_(host) {}

// --- Tools and keys ------------------------------------------------------------------------------

void ToolController::SetTool(int tool) {
    tool &= 0x0FFFFFFF;
    if (tool > kToolEllipse || tool == tool_) return;
    CancelDrag();
    if ((tool_ & kToolNodeMenuBit) != 0) LeaveNodeEditing(document_);
    tool_ = tool;
    host_.SetToolCursor(ToolCursor());
    if (!document_.Selection().empty()) host_.Redraw();
}

void ToolController::KeyDown(int virtualKey) {
    switch (virtualKey) {
    case kVirtualKeySpace:
        // Auto-repeat finds the scroll tool already set and does nothing.
        if (tool_ == kToolScroll) return;
        savedTool_ = tool_;
        spaceScrolling_ = true;
        SetTool(kToolScroll);
        break;
    case kVirtualKeyDelete: DeleteSelection(); break;
    case kVirtualKeyEscape: CancelDrag(); break;
    default: break;
    }
}

void ToolController::KeyUp(int virtualKey) {
    if (virtualKey != kVirtualKeySpace || !spaceScrolling_) return;
    spaceScrolling_ = false;
    SetTool(savedTool_);
}

void ToolController::DeleteSelection() {
    CancelDrag();
    if (tool_ == kToolNode) {
        const auto& selection = document_.Selection();
        if (selection.empty() || selection.front()->GetKind() != ObjectKind::Path) return;
        auto& path = static_cast<PathObject&>(*selection.front());
        if (CountSelectedNodes(path) == 0) return;
        DeleteSelectedNodesOf(document_, path);
    } else {
        if (document_.Selection().empty()) return;
        document_.DeleteSelection();
    }
    SelectionChanged();
}

void ToolController::CancelDrag() {
    if (drag_ == Drag::None) return;
    End();
}

// --- Mouse ---------------------------------------------------------------------------------------

void ToolController::MouseDown(int x, int y, unsigned keys) {
    // A press during a drag means the capture was lost on the way; the path tool alone keeps its
    // drag between presses.
    if (drag_ != Drag::None && drag_ != Drag::Path) CancelDrag();
    last_ = {x, y};
    switch (tool_) {
    case kToolSelect: PressSelect(x, y, keys); break;
    case kToolScroll: Begin(Drag::Scroll, x, y); break;
    case kToolZoom: PressZoom(x, y, keys); break;
    case kToolPath: PressPath(x, y, keys); break;
    case kToolNode: PressNode(x, y, keys); break;
    case kToolText: PressText(x, y); break;
    case kToolRectangle:
    case kToolEllipse: Begin(Drag::Shape, x, y); break;
    default: break;
    }
}

void ToolController::MouseMove(int x, int y, unsigned keys) {
    const Point2 p = World(x, y);
    host_.ShowCursorPoints(p.x, p.y);
    host_.ShowCursorMillimetres(p.x, p.y);
    if (drag_ == Drag::None) {
        Hover(x, y);
    } else {
        DragTo(x, y, keys);
    }
}

void ToolController::MouseUp(int x, int y, unsigned keys) {
    if (drag_ != Drag::None) Release(x, y, keys);
}

void ToolController::DoubleClick(int x, int y, unsigned keys) {
    if (drag_ == Drag::Path) {
        CancelDrag();
        host_.Redraw();
        return;
    }
    MouseDown(x, y, keys);
}

void ToolController::RightButtonUp(int x, int y, unsigned) {
    CancelDrag();
    const ContextMenu menu = BuildCanvasMenu(document_, tool_);
    const int id = host_.TrackMenu(menu, x, y);
    RunCanvasMenuEntry(document_, host_, tool_, id, x, y, World(x, y));
    if (id != 0) host_.RefreshPanel();
    host_.Redraw();
}

// --- Presses -------------------------------------------------------------------------------------

void ToolController::PressSelect(int x, int y, unsigned keys) {
    const Point2 p = World(x, y);
    std::array<int, 4> box;
    int handle = view_.SelectionBox(box) ? HandleAt(box, x, y) : kHandleNone;
    // With Shift or Ctrl the inside of the box is for selecting: objects in it can be toggled
    // and a rubber band can start there.
    const bool shift = (keys & kKeyShift) != 0, ctrl = (keys & kKeyControl) != 0;
    if (handle == kHandleMove && (shift || ctrl)) handle = kHandleNone;
    if (handle != kHandleNone) {
        handle_ = handle;
        savedBox_ = document_.SelectionBounds();
        scale_ = HandleScale{};
        Begin(Drag::Handle, x, y);
        return;
    }
    GraphicObject* hit = document_.HitTest(p, kHitTolerance);
    if (hit == nullptr) {
        if (!shift && !ctrl && !document_.Selection().empty()) {
            document_.ClearSelection();
            SelectionChanged();
        }
        Begin(Drag::RubberBand, x, y);
        return;
    }
    if (shift) {
        document_.ToggleSelection(hit);
    } else if (ctrl) {
        if (!document_.Selection().empty()) return;
        document_.AddToSelection(hit);
    } else {
        document_.ClearSelection();
        document_.AddToSelection(hit);
    }
    SelectionChanged();
}

void ToolController::PressZoom(int x, int y, unsigned keys) {
    const double percent = std::floor(document_.view.zoom * 100 + 0.5);
    const auto* step = std::find(std::begin(kZoomSteps), std::end(kZoomSteps), percent);
    // Off the list the tool does nothing: it only walks the steps.
    if (step == std::end(kZoomSteps)) return;
    if ((keys & kKeyControl) != 0) {
        if (step != std::begin(kZoomSteps)) --step;
    } else if (step + 1 != std::end(kZoomSteps)) {
        ++step;
    }
    const ClientSize size = host_.GetClientSize();
    view_.SetClientSize(size.width, size.height);
    view_.SetZoom(*step / 100.0, x, y);
    host_.Redraw();
}

void ToolController::PressPath(int x, int y, unsigned keys) {
    if (drag_ != Drag::Path) {
        Begin(Drag::Path, x, y);
        pathStart_ = pressWorld_;
        bool continued = false;
        if (PathObject* path = SoleSelectedPath()) {
            const GrabbableNode nearest = NearestGrabbableNode(*path, pathStart_, false);
            const Point2 at = nearest.index >= 0
                                  ? path->PointAt(static_cast<std::size_t>(nearest.index))
                                  : Point2{};
            if (nearest.index >= 0 && PixelDistance(at, x, y) <= kNodeReach) {
                pathStart_ = at;
                last_ = Client(at);
                continued = true;
            }
        }
        if (!continued && !document_.Selection().empty()) {
            document_.ClearSelection();
            host_.RefreshPanel();
        }
        host_.Redraw();
        feedback_.Show(Feedback::Line(Client(pathStart_), {x, y}));
        return;
    }

    PathObject* target = nullptr;
    const auto& selection = document_.Selection();
    if (!selection.empty() && selection.front()->GetKind() == ObjectKind::Path) {
        target = static_cast<PathObject*>(selection.front());
    }
    feedback_.Hide();
    if (target != nullptr && ClosesFigure(*target, x, y)) {
        const std::size_t last = target->NodeCount() - 1;
        target->SetType(last, static_cast<NodeType>(target->TypeAt(last) | node::kCloseFigure));
        End();
        SelectionChanged();
        return;
    }
    DevicePoint client;
    const Point2 end = PathPointer(x, y, keys, client);
    last_ = client;
    if (end == pathStart_) return;
    if (target == nullptr) {
        target = static_cast<PathObject*>(document_.AddObject(NewDrawnPath(document_)));
    }
    AppendSegment(*target, pathStart_, end);
    pathStart_ = end;
    SelectionChanged();
}

void ToolController::PressNode(int x, int y, unsigned keys) {
    const Point2 p = World(x, y);
    if (PathObject* path = SoleSelectedPath()) {
        const GrabbableNode grabbed = NearestGrabbableNode(*path, p, true);
        if (grabbed.index >= 0 &&
            PixelDistance(path->PointAt(static_cast<std::size_t>(grabbed.index)), x, y) <=
                kNodeReach) {
            const auto index = static_cast<std::size_t>(grabbed.index);
            if (!grabbed.control) {
                // A click selects the node: alone, or toggled with Shift.
                const bool wasSelected = (path->TypeAt(index) & node::kSelected) != 0;
                if ((keys & kKeyShift) == 0) LeaveNodeEditing(document_);
                SetNodeSelected(*path, index, (keys & kKeyShift) == 0 || !wasSelected);
                host_.Redraw();
            }
            nodeDrag_.emplace(*path, index);
            nodePath_ = path;
            nodeCount_ = path->NodeCount();
            Begin(Drag::Node, x, y);
            return;
        }
    }
    // A click on another object makes it the one whose nodes are edited.
    GraphicObject* hit = document_.HitTest(p, kHitTolerance);
    const auto& selection = document_.Selection();
    if (hit != nullptr && !(selection.size() == 1 && selection.front() == hit)) {
        LeaveNodeEditing(document_);
        document_.ClearSelection();
        document_.AddToSelection(hit);
        SelectionChanged();
        return;
    }
    Begin(Drag::NodeBand, x, y);
}

void ToolController::PressText(int x, int y) {
    const Point2 p = World(x, y);
    auto text = std::make_unique<TextObject>();
    text->SetPenWidth(0.25);
    text->SetTextFont("Arial");
    text->SetTextSize(12.0);
    text->SetTextTransform(1, 0, 0, 1);
    text->SetText("Text");
    text->SetTextPosition(p.x, p.y);
    document_.AddObject(std::move(text));
    SelectionChanged();
}

// --- Moves ---------------------------------------------------------------------------------------

void ToolController::Hover(int x, int y) {
    if (tool_ == kToolSelect) {
        if (document_.Selection().empty()) return;
        std::array<int, 4> box;
        const int handle = view_.SelectionBox(box) ? HandleAt(box, x, y) : kHandleNone;
        host_.SetCursor(HandleCursor(handle, ToolCursor()));
    } else if (tool_ == kToolNode) {
        const PathObject* path = SoleSelectedPath();
        if (path == nullptr) return;
        const GrabbableNode nearest = NearestGrabbableNode(*path, World(x, y), true);
        const bool near = nearest.index >= 0 &&
                          PixelDistance(path->PointAt(static_cast<std::size_t>(nearest.index)), x,
                                        y) <= kNodeReach;
        host_.SetCursor(near ? CanvasCursor::NodeHit : CanvasCursor::Node);
    }
}

void ToolController::DragTo(int x, int y, unsigned keys) {
    switch (drag_) {
    case Drag::Handle: {
        const Point2 p = World(x, y);
        Rect2 box = savedBox_;
        if (handle_ == kHandleMove) {
            const Point2 d = p - pressWorld_;
            box = {box.left + d.x, box.top + d.y, box.right + d.x, box.bottom + d.y};
        } else {
            scale_ = ScaleForHandle(savedBox_, handle_, p);
            box = scale_.Apply(savedBox_);
        }
        previewed_ = true;
        feedback_.Show(Feedback::Box(Client({box.left, box.top}), Client({box.right, box.bottom})));
        break;
    }
    case Drag::RubberBand:
    case Drag::NodeBand: feedback_.Show(Feedback::Box(pressClient_, {x, y})); break;
    case Drag::Scroll:
        view_.ScrollBy(x - last_.x, y - last_.y);
        host_.Redraw();
        break;
    case Drag::Path: {
        DevicePoint client;
        const Point2 q = PathPointer(x, y, keys, client);
        feedback_.Show(Feedback::Line(Client(pathStart_), client));
        const double length =
            std::hypot(q.x - pathStart_.x, q.y - pathStart_.y) / kPointsPerMillimetre;
        char text[96];
        std::snprintf(text, sizeof text, "L\xE4nge: %g mm   Winkel: %g", StatusNumber(length),
                      StatusNumber(DirectionDegrees(pathStart_, q)));
        host_.SetStatusText(text);
        break;
    }
    case Drag::Node: {
        const PathObject* path = SoleSelectedPath();
        if (path != nodePath_ || path == nullptr || path->NodeCount() != nodeCount_ || !nodeDrag_)
            break;
        nodeDelta_ = World(x, y) - pressWorld_;
        previewed_ = true;
        feedback_.Show(
            Feedback::Outline(nodeDrag_->Outline(*path, nodeDelta_), document_.view.view));
        break;
    }
    case Drag::Shape: {
        const DevicePoint corner = ShapeCorner(x, y, keys);
        feedback_.Show(tool_ == kToolEllipse ? Feedback::Ellipse(pressClient_, corner)
                                             : Feedback::Box(pressClient_, corner));
        const Point2 far = World(corner.x, corner.y);
        char text[96];
        std::snprintf(text, sizeof text, "dx: %g   dy: %g",
                      StatusNumber(std::fabs(far.x - pressWorld_.x)),
                      StatusNumber(std::fabs(far.y - pressWorld_.y)));
        host_.SetStatusText(text);
        break;
    }
    case Drag::None: break;
    }
    last_ = {x, y};
}

// --- Releases ------------------------------------------------------------------------------------

void ToolController::Release(int x, int y, unsigned keys) {
    switch (drag_) {
    case Drag::Handle: ReleaseHandle(x, y); break;
    case Drag::RubberBand: ReleaseRubberBand(x, y, keys); break;
    case Drag::Scroll: End(); break;
    case Drag::Path: break; // the path tool follows the pointer until the next click
    case Drag::Node: {
        End();
        PathObject* path = SoleSelectedPath();
        if (previewed_ && nodeDrag_ && path == nodePath_ && path != nullptr &&
            path->NodeCount() == nodeCount_) {
            nodeDrag_->Apply(*path, nodeDelta_);
            host_.RefreshPanel();
        }
        nodeDrag_.reset();
        host_.Redraw();
        break;
    }
    case Drag::NodeBand: ReleaseNodeBand(x, y, keys); break;
    case Drag::Shape: ReleaseShape(x, y, keys); break;
    case Drag::None: break;
    }
}

void ToolController::ReleaseHandle(int x, int y) {
    End();
    // A click on a handle without a drag changes nothing.
    if (previewed_) {
        Matrix2D m = scale_.ToMatrix();
        if (handle_ == kHandleMove) {
            const Point2 d = World(x, y) - pressWorld_;
            m = Matrix2D::Translation(d.x, d.y);
        }
        for (GraphicObject* object : document_.Selection()) object->Transform(m);
    }
    SelectionChanged();
}

void ToolController::ReleaseRubberBand(int x, int y, unsigned keys) {
    End();
    // A click without a drag selects nothing more.
    if (!SpansAPixel(pressClient_, x, y)) return;
    const Point2 a = pressWorld_, b = World(x, y);
    const Rect2 box{std::min(a.x, b.x), std::max(a.y, b.y), std::max(a.x, b.x), std::min(a.y, b.y)};
    const SelectionChange change = (keys & kKeyShift) != 0     ? SelectionChange::Toggle
                                   : (keys & kKeyControl) != 0 ? SelectionChange::Add
                                                               : SelectionChange::Replace;
    document_.ChangeSelection(ObjectsInside(document_, box), change);
    SelectionChanged();
}

void ToolController::ReleaseNodeBand(int x, int y, unsigned keys) {
    End();
    PathObject* path = SoleSelectedPath();
    if (path == nullptr) return;
    const bool shift = (keys & kKeyShift) != 0;
    if (!SpansAPixel(pressClient_, x, y)) {
        // A click beside the nodes lets go of them.
        if (shift) return;
        LeaveNodeEditing(document_);
        host_.Redraw();
        return;
    }
    std::vector<bool> before(shift ? path->NodeCount() : 0);
    for (std::size_t i = 0; i < before.size(); ++i) {
        before[i] = (path->TypeAt(i) & node::kSelected) != 0;
    }
    SelectNodesInRect(*path, pressWorld_, World(x, y));
    // Control points are no nodes of their own: only the ends of segments stay selected.
    // (The walk reads only the kinds, which stay.)
    SegmentCursor cursor(path->Points(), path->Types());
    PathSegment s;
    while (cursor.Next(s)) {
        if (s.kind != SegmentKind::Bezier) continue;
        SetNodeSelected(*path, s.index, false);
        SetNodeSelected(*path, s.index + 1, false);
    }
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i]) SetNodeSelected(*path, i, true);
    }
    host_.Redraw();
}

void ToolController::ReleaseShape(int x, int y, unsigned keys) {
    End();
    const DevicePoint corner = ShapeCorner(x, y, keys);
    // Less than a pixel across or down draws nothing: a click is no rectangle.
    if (!SpansAPixel(pressClient_, corner.x, corner.y)) return;
    const Point2 far = World(corner.x, corner.y);
    document_.AddObject(tool_ == kToolEllipse ? EllipsePath(pressWorld_, far)
                                              : RectanglePath(pressWorld_, far));
    SelectionChanged();
}

// --- Helpers -------------------------------------------------------------------------------------

void ToolController::Begin(Drag drag, int x, int y) {
    drag_ = drag;
    pressClient_ = {x, y};
    pressWorld_ = World(x, y);
    previewed_ = false;
    host_.CaptureMouse();
}

void ToolController::End() {
    // First, so that a capture-changed message sent from within ReleaseMouse finds no drag.
    drag_ = Drag::None;
    feedback_.Hide();
    host_.ReleaseMouse();
}

void ToolController::SelectionChanged() {
    host_.RefreshPanel();
    host_.Redraw();
}

bool ToolController::ClosesFigure(const PathObject& path, int x, int y) const {
    const std::size_t n = path.NodeCount();
    if (n == 0) return false;
    const std::size_t last = n - 1;
    if (!(path.PointAt(last) == pathStart_) || (path.TypeAt(last) & node::kCloseFigure) != 0)
        return false;
    const FigureRange figure = FigureOf(path, last);
    // Closing a single straight segment would only run it back.
    if (figure.last - figure.first < 2) return false;
    return PixelDistance(path.PointAt(figure.first), x, y) <= kNodeReach;
}

Point2 ToolController::PathPointer(int x, int y, unsigned keys, DevicePoint& client) const {
    client = {x, y};
    const Point2 q = World(x, y);
    if ((keys & kKeyControl) == 0) return q;
    const Point2 snapped = SnapToFifteenDegrees(pathStart_, q);
    client = Client(snapped);
    return snapped;
}

DevicePoint ToolController::ShapeCorner(int x, int y, unsigned keys) const {
    int dx = x - pressClient_.x, dy = y - pressClient_.y;
    if ((keys & kKeyControl) != 0) {
        const int side = std::min(std::abs(dx), std::abs(dy));
        dx = dx < 0 ? -side : side;
        dy = dy < 0 ? -side : side;
    }
    return {pressClient_.x + dx, pressClient_.y + dy};
}

PathObject* ToolController::SoleSelectedPath() const {
    const auto& selection = document_.Selection();
    if (selection.size() != 1 || selection.front()->GetKind() != ObjectKind::Path) return nullptr;
    return static_cast<PathObject*>(selection.front());
}

CanvasCursor ToolController::ToolCursor() const { return kToolCursors[tool_]; }

Point2 ToolController::World(double x, double y) const {
    view_.ClientToWorld(x, y);
    return {x, y};
}

Point2 ToolController::ClientExact(Point2 world) const {
    view_.WorldToClient(world.x, world.y);
    return world;
}

DevicePoint ToolController::Client(Point2 world) const {
    const Point2 c = ClientExact(world);
    return {ClientCoordinate(c.x), ClientCoordinate(c.y)};
}

double ToolController::PixelDistance(Point2 world, int x, int y) const {
    const Point2 c = ClientExact(world);
    return std::hypot(c.x - x, c.y - y);
}

} // namespace rhomba
