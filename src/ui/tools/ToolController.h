#pragma once

#include "geometry/Point2.h"
#include "geometry/Rect2.h"
#include "render/Device.h"
#include "ui/CanvasHost.h"
#include "ui/tools/Feedback.h"
#include "ui/tools/NodeGrab.h"
#include "ui/tools/SelectionHandles.h"

#include <optional>

namespace rhomba {

class CanvasView;
class Document;
class PathObject;

// The eight tools of the canvas: turns the canvas window's mouse and key messages into
// selections, new objects and changes of the document, with rubber feedback drawn inverted on
// the canvas. Coordinates are signed client pixels; keys carry the mouse messages' flags
// (kKeyShift, kKeyControl, ui/InputKeys.h).
class ToolController {
public:
    ToolController(Document& document, CanvasView& view, CanvasHost& host);

    // Switches to tool 0 to 7 (ui/ToolIds.h); other numbers and the current tool are ignored.
    // A drag in progress ends first, without being carried out.
    void SetTool(int tool);
    int Tool() const { return tool_; }

    void MouseDown(int x, int y, unsigned keys);
    // Every move shows the pointer in the status fields.
    void MouseMove(int x, int y, unsigned keys);
    void MouseUp(int x, int y, unsigned keys);
    // The second press of a double click: ends the path being drawn, else acts as a press.
    void DoubleClick(int x, int y, unsigned keys);
    // Opens the object or node menu at the click, carries out the chosen entry and redraws.
    void RightButtonUp(int x, int y, unsigned keys);
    // Space held switches to the scroll tool and back; Delete deletes; Escape ends a drag.
    void KeyDown(int virtualKey);
    void KeyUp(int virtualKey);

    // Delete: with the node tool the selected nodes (none selected: nothing), else the selected
    // objects.
    void DeleteSelection();
    // Ends a drag without carrying it out and erases its feedback; a path being drawn keeps the
    // segments it has.
    void CancelDrag();
    bool IsDragging() const { return drag_ != Drag::None; }

    // Call after every repaint of the canvas with the device the picture was painted on: puts the
    // drag's feedback back, so that the next erase finds it and leaves no stripes.
    void PaintFeedback(Device& device) const { feedback_.Repaint(device); }

private:
    enum class Drag { None, Handle, RubberBand, Scroll, Path, Node, NodeBand, Shape };

    void PressSelect(int x, int y, unsigned keys);
    void PressZoom(int x, int y, unsigned keys);
    void PressPath(int x, int y, unsigned keys);
    void PressNode(int x, int y, unsigned keys);
    void PressText(int x, int y);
    void Hover(int x, int y);
    void DragTo(int x, int y, unsigned keys);
    void Release(int x, int y, unsigned keys);
    void ReleaseHandle(int x, int y);
    void ReleaseRubberBand(int x, int y, unsigned keys);
    void ReleaseNodeBand(int x, int y, unsigned keys);
    void ReleaseShape(int x, int y, unsigned keys);

    void Begin(Drag drag, int x, int y);
    void End();
    void SelectionChanged();
    // True when the click at (x, y) closes the figure being drawn into path.
    bool ClosesFigure(const PathObject& path, int x, int y) const;
    // The pointer of a path segment: snapped to 15 degrees about its start with Ctrl.
    Point2 PathPointer(int x, int y, unsigned keys, DevicePoint& client) const;
    // The free corner of a rectangle or ellipse: square in client pixels with Ctrl.
    DevicePoint ShapeCorner(int x, int y, unsigned keys) const;
    // The one selected object when it is a path.
    PathObject* SoleSelectedPath() const;
    CanvasCursor ToolCursor() const;

    Point2 World(double x, double y) const;
    Point2 ClientExact(Point2 world) const;
    DevicePoint Client(Point2 world) const;
    double PixelDistance(Point2 world, int x, int y) const;

    Document& document_;
    CanvasView& view_;
    CanvasHost& host_;
    FeedbackLayer feedback_;

    int tool_ = 0;
    int savedTool_ = 0;
    bool spaceScrolling_ = false;

    Drag drag_ = Drag::None;
    DevicePoint last_; // the pointer at the last press or drag step
    DevicePoint pressClient_;
    Point2 pressWorld_;
    bool previewed_ = false; // a drag step has shown what the release will do

    // Handle drags of the select tool.
    int handle_ = kHandleNone;
    Rect2 savedBox_;
    HandleScale scale_;

    // The path tool: where the next segment starts.
    Point2 pathStart_;

    // Node drags.
    std::optional<NodeDrag> nodeDrag_;
    const PathObject* nodePath_ = nullptr;
    std::size_t nodeCount_ = 0;
    Point2 nodeDelta_;
};

} // namespace rhomba
