// What the canvas tools cost per mouse message on large drawings: a move during each kind of drag
// (only the feedback is drawn, through a device that records nothing), hovering, and the releases
// that select or change a lot at once.
#include "ZigzagDrawing.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "render/CanvasView.h"
#include "render/RecordingDevice.h"
#include "ui/CanvasHost.h"
#include "ui/InputKeys.h"
#include "ui/ToolIds.h"
#include "ui/tools/ToolController.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

using namespace rhomba;

namespace {

// A canvas that only draws the feedback, into a device that keeps no log.
class QuietHost : public CanvasHost {
public:
    void CaptureMouse() override {}
    void ReleaseMouse() override {}
    void SetToolCursor(CanvasCursor) override {}
    void SetCursor(CanvasCursor) override {}
    Device& BeginFeedback() override {
        ++feedbackDrawings;
        return device_;
    }
    void EndFeedback() override {}
    void ShowCursorPoints(double x, double y) override { benchmark::DoNotOptimize(x + y); }
    void ShowCursorMillimetres(double x, double y) override { benchmark::DoNotOptimize(x + y); }
    void SetStatusText(const std::string& text) override { benchmark::DoNotOptimize(text.data()); }
    ClientSize GetClientSize() const override { return {1280, 1024}; }
    void Redraw() override {}
    void RefreshPanel() override {}
    void ShowPanelAt(int, int) override {}
    int TrackMenu(const ContextMenu&, int, int) override { return 0; }

    long feedbackDrawings = 0;

private:
    RecordingDevice device_{false};
};

// The zigzag drawing (1000 paths, 100,000 nodes) with the canvas at zoom 1, all selected.
struct Canvas {
    Canvas() {
        bench::BuildZigzagDrawing(document);
        view.SetClientSize(1280, 1024);
        view.SetZoom(1, 0, 0);
        SelectAll();
    }
    void SelectAll() {
        std::vector<GraphicObject*> all;
        Layer& layer = document.CurrentLayer();
        for (std::size_t i = 0; i < layer.ChildCount(); ++i) all.push_back(layer.ChildAt(i));
        document.ChangeSelection(all, SelectionChange::Replace);
    }
    DevicePoint Client(Point2 p) {
        view.WorldToClient(p.x, p.y);
        return {static_cast<int>(p.x), static_cast<int>(p.y)};
    }

    Document document;
    CanvasView view{document};
    QuietHost host;
    ToolController tools{document, view, host};
};

// Moves back and forth between two points, one move per iteration.
void Moves(benchmark::State& state, ToolController& tools, QuietHost& host, DevicePoint from,
           unsigned keys = 0) {
    if (keys != 0 && !tools.IsDragging()) state.SkipWithError("the press started no drag");
    int k = 0;
    for (auto _ : state) {
        const int d = (k++ % 2) * 7;
        tools.MouseMove(from.x + 40 + d, from.y + 30 + d, keys | kKeyLeftButton);
    }
    // One feedback drawing (erase and draw) per move of a drag.
    state.counters["drawings"] = benchmark::Counter(static_cast<double>(host.feedbackDrawings),
                                                    benchmark::Counter::kAvgIterations);
}

void HandleDragMove(benchmark::State& state) {
    Canvas c;
    std::array<int, 4> box;
    c.view.SelectionBox(box);
    c.tools.MouseDown(box[2], box[3], kKeyLeftButton); // the lower right corner
    Moves(state, c.tools, c.host, {box[2], box[3]}, kKeyLeftButton);
    c.tools.CancelDrag();
}

void RubberBandMove(benchmark::State& state) {
    Canvas c;
    const DevicePoint corner = c.Client({-50, 900}); // beside the drawing
    c.tools.MouseDown(corner.x, corner.y, kKeyLeftButton | kKeyShift);
    Moves(state, c.tools, c.host, corner, kKeyShift);
    c.tools.CancelDrag();
}

void PathLineMove(benchmark::State& state) {
    Canvas c;
    c.document.ClearSelection();
    c.tools.SetTool(kToolPath);
    c.tools.MouseDown(600, 600, kKeyLeftButton);
    Moves(state, c.tools, c.host, {600, 600}, kKeyControl);
    c.tools.CancelDrag();
}

// One selected path of 100,000 nodes, with the node tool.
PathObject& LongPath(Canvas& c) {
    c.document.Reset();
    auto path = std::make_unique<PathObject>();
    for (int i = 0; i < 100000; ++i) {
        const NodeType t = i == 0                       ? node::kMoveTo
                           : (i % 6 >= 1 && i % 6 <= 3) ? node::kBezierTo
                                                        : node::kLineTo;
        path->AddNode({20 + i * 0.005, 400 + 50 * std::sin(i * 0.01)}, t);
    }
    auto* added = static_cast<PathObject*>(c.document.AddObject(std::move(path)));
    c.tools.SetTool(kToolNode);
    return *added;
}

// A node in the middle of the long path is dragged.
void NodeDragMove(benchmark::State& state) {
    Canvas c;
    PathObject* added = &LongPath(c);
    const DevicePoint at = c.Client(added->PointAt(50004));
    c.tools.MouseDown(at.x, at.y, kKeyLeftButton);
    Moves(state, c.tools, c.host, at, kKeyLeftButton);
    c.tools.CancelDrag();
}

void ShapeMove(benchmark::State& state) {
    Canvas c;
    c.tools.SetTool(kToolEllipse);
    c.tools.MouseDown(100, 100, kKeyLeftButton);
    Moves(state, c.tools, c.host, {100, 100}, kKeyControl);
    c.tools.CancelDrag();
}

// Hovering is no drag, but it runs on every move: the handle cursor over a 100,000-node
// selection, the node cursor over a 100,000-node path.
void HoverSelection(benchmark::State& state) {
    Canvas c;
    Moves(state, c.tools, c.host, {300, 300}, 0);
}

void HoverNodes(benchmark::State& state) {
    Canvas c;
    const DevicePoint at = c.Client(LongPath(c).PointAt(50004));
    Moves(state, c.tools, c.host, at, 0);
}

// Press and release of a rubber band over 100,000 small squares, all of which it selects.
void RubberBandSelect(benchmark::State& state) {
    Canvas c;
    c.document.Reset();
    for (int i = 0; i < 100000; ++i) {
        auto square = std::make_unique<PathObject>();
        const double x = (i % 400) * 1.5, y = (i / 400) * 3.0;
        square->AddNode({x, y}, node::kMoveTo);
        square->AddNode({x + 1, y}, node::kLineTo);
        square->AddNode({x + 1, y + 1}, node::kLineTo);
        square->AddNode({x, y + 1}, node::kLineTo | node::kCloseFigure);
        c.document.CurrentLayer().InsertAt(std::move(square), &c.document, 0,
                                           c.document.CurrentLayer().ChildCount());
    }
    const DevicePoint a = c.Client({-5, 800}), b = c.Client({700, -5});
    for (auto _ : state) {
        c.tools.MouseDown(a.x, a.y, kKeyLeftButton);
        c.tools.MouseUp(b.x, b.y, 0);
    }
    if (c.document.Selection().size() != 100000) state.SkipWithError("not everything selected");
}

// The release of a corner drag: the 100,000-node selection is scaled.
void HandleDragRelease(benchmark::State& state) {
    Canvas c;
    std::array<int, 4> box;
    c.view.SelectionBox(box);
    int k = 0;
    for (auto _ : state) {
        const int d = (k++ % 2) ? 10 : -10;
        c.view.SelectionBox(box);
        c.tools.MouseDown(box[2], box[3], kKeyLeftButton);
        c.tools.MouseMove(box[2] + d, box[3] + d, kKeyLeftButton);
        c.tools.MouseUp(box[2] + d, box[3] + d, 0);
    }
}

} // namespace

BENCHMARK(HandleDragMove)->Unit(benchmark::kMicrosecond);
BENCHMARK(RubberBandMove)->Unit(benchmark::kMicrosecond);
BENCHMARK(PathLineMove)->Unit(benchmark::kMicrosecond);
BENCHMARK(NodeDragMove)->Unit(benchmark::kMicrosecond);
BENCHMARK(ShapeMove)->Unit(benchmark::kMicrosecond);
BENCHMARK(HoverSelection)->Unit(benchmark::kMicrosecond);
BENCHMARK(HoverNodes)->Unit(benchmark::kMicrosecond);
BENCHMARK(RubberBandSelect)->Unit(benchmark::kMillisecond);
BENCHMARK(HandleDragRelease)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
