// Cost of a full canvas repaint of a drawing with 100,000 nodes through the recording device with
// recording switched off: the drawing code itself, without any GDI. Prints the median and best
// of repeated repaints, for the editor view and for the device pass.
#include "model/Document.h"
#include "model/PathObject.h"
#include "render/CanvasView.h"
#include "render/DeviceCache.h"
#include "render/RecordingDevice.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

using namespace rhomba;

namespace {

constexpr int kPaths = 1000;
constexpr int kNodesPerPath = 100;  // 100 x 1000 = 100,000 nodes

// Zigzag figures of lines and curves over an A4 page, every fifth path dashed.
void BuildDrawing(Document& document) {
    for (int p = 0; p < kPaths; ++p) {
        auto path = std::make_unique<PathObject>();
        path->ReserveNodes(kNodesPerPath);
        const double y0 = 20 + (p % 80) * 10, x0 = 20 + (p / 80) * 40;
        path->AddNode({x0, y0}, node::kMoveTo);
        for (int i = 1; i < kNodesPerPath; ++i) {
            // Runs of three Bezier points, then lines, so both kinds are walked.
            const NodeType t = (i % 6 >= 1 && i % 6 <= 3) ? node::kBezierTo : node::kLineTo;
            path->AddNode({x0 + i * 0.35, y0 + (i % 2) * 4}, t);
        }
        if (p % 5 == 0) path->SetDashDot({3, 1, 1, 1, 0, 0, 0, 0});
        path->SetPenWidth(0.5 + (p % 3) * 0.25);
        document.AddObject(std::move(path));
    }
    document.ClearSelection();
}

template <typename F>
void Measure(const char* what, int runs, F&& paint) {
    std::vector<double> ms;
    for (int r = 0; r < runs; ++r) {
        const auto start = std::chrono::steady_clock::now();
        paint();
        const auto stop = std::chrono::steady_clock::now();
        ms.push_back(std::chrono::duration<double, std::milli>(stop - start).count());
    }
    std::sort(ms.begin(), ms.end());
    std::printf("%-40s median %7.3f ms  best %7.3f ms  (%d runs)\n", what, ms[ms.size() / 2],
                ms.front(), runs);
}

} // namespace

int main() {
    Document document;
    BuildDrawing(document);
    CanvasView view(document);
    view.SetClientSize(1280, 1024);
    view.SetZoom(1, 0, 0);
    RecordingDevice device(false);

    std::printf("drawing: %d paths, %d nodes\n", kPaths, kPaths * kNodesPerPath);
    Measure("canvas repaint (DrawEdit)", 50, [&] { view.Paint(device, kToolSelect); });
    document.SetFlags(document.GetFlags() | Document::kFlagDraft);
    Measure("canvas repaint, draft view", 50, [&] { view.Paint(device, kToolSelect); });
    document.SetFlags(document.GetFlags() & ~Document::kFlagDraft);

    const Matrix2D emf{20, 0, 0, -20, 0, 20000};
    ResetDeviceCache();
    Measure("device pass (Render, PolyDraw)", 50, [&] { document.Render(device, emf); });
    SetPathOutputMode(PathOutputMode::ExplicitPath);
    Measure("device pass (Render, explicit path)", 50, [&] { document.Render(device, emf); });
    std::printf("objects left alive: %zu\n", device.LiveObjects());
    return 0;
}
