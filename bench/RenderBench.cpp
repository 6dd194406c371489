// Cost of a full canvas repaint of a drawing with 100,000 nodes through the recording device with
// recording switched off: the drawing code itself, without any GDI. Prints the median and best
// of repeated repaints, for the editor view and for the device pass.
#include "ZigzagDrawing.h"
#include "render/CanvasView.h"
#include "render/DeviceCache.h"
#include "render/RecordingDevice.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

using namespace rhomba;
using namespace rhomba::bench;

namespace {

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
    BuildZigzagDrawing(document);
    CanvasView view(document);
    view.SetClientSize(1280, 1024);
    view.SetZoom(1, 0, 0);
    RecordingDevice device(false);

    std::printf("drawing: %d paths, %d nodes\n", kZigzagPaths, kZigzagPaths * kZigzagNodesPerPath);
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
