#pragma once

#include <string>

namespace rhomba {

class Device;
struct ContextMenu;

// The cursors the canvas shows, in the order the shell loads them: six system cursors, then the
// program's own.
enum class CanvasCursor {
    Arrow,
    SizeAll,
    SizeNeSw,
    SizeNs,
    SizeNwSe,
    SizeWe,
    Text,      // 140
    Scroll,    // 132
    Path,      // 133
    Node,      // 134
    NodeHit,   // 135: the pointer is over a node the node tool can grab
    Zoom,      // 136
    Rectangle, // 141
    Ellipse,   // 142
};
inline constexpr int kCanvasCursorCount = 14;

struct ClientSize {
    int width = 0;
    int height = 0;
};

// What the tools need of the canvas window. Coordinates are client pixels; world points are
// document points (y up).
class CanvasHost {
public:
    virtual ~CanvasHost() = default;

    // Mouse capture, so that a drag goes on outside the window.
    virtual void CaptureMouse() = 0;
    virtual void ReleaseMouse() = 0;

    // The cursor of the current tool: shown now and whenever the pointer is over the canvas.
    virtual void SetToolCursor(CanvasCursor cursor) = 0;
    // Shown now, until the pointer moves on (hover feedback over handles and nodes).
    virtual void SetCursor(CanvasCursor cursor) = 0;

    // A device on the canvas as it stands on the screen, with the raster operation that inverts
    // the pixels under the pen, valid until EndFeedback. Drawing a figure twice removes it.
    virtual Device& BeginFeedback() = 0;
    virtual void EndFeedback() = 0;

    // The status fields: the pointer in points and in millimetres (world points given, the host
    // formats them), and the free text field (Windows-1252).
    virtual void ShowCursorPoints(double x, double y) = 0;
    virtual void ShowCursorMillimetres(double x, double y) = 0;
    virtual void SetStatusText(const std::string& text) = 0;

    virtual ClientSize GetClientSize() const = 0;
    // Repaints the whole canvas soon (the paint comes later, not within the call).
    virtual void Redraw() = 0;
    // The properties panel shows the selection anew.
    virtual void RefreshPanel() = 0;
    // Shows the properties panel at a client point.
    virtual void ShowPanelAt(int x, int y) = 0;
    // Shows menu at a client point and waits for the choice: the chosen entry's id, or 0.
    virtual int TrackMenu(const ContextMenu& menu, int x, int y) = 0;
};

// One feedback drawing: BeginFeedback on construction, EndFeedback on destruction.
class FeedbackScope {
public:
    explicit FeedbackScope(CanvasHost& host) : host_(host), device_(host.BeginFeedback()) {}
    ~FeedbackScope() { host_.EndFeedback(); }
    FeedbackScope(const FeedbackScope&) = delete;
    FeedbackScope& operator=(const FeedbackScope&) = delete;

    Device& GetDevice() { return device_; }

private:
    CanvasHost& host_;
    Device& device_;
};

} // namespace rhomba
