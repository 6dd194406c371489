// How fast the editor starts and repaints through its real canvas window under Wine. The times
// are reported (they measure Wine and this machine, not a limit); the test checks the work done.
#include "../../bench/ZigzagDrawing.h"
#include "win32/support/EditorFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace rhomba::test {
namespace {

using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// The sorted times of a few synchronous repaints of the whole canvas.
std::vector<double> RepaintMilliseconds(int runs) {
    std::vector<double> ms;
    for (int run = 0; run < runs; ++run) {
        const auto start = Clock::now();
        ::RedrawWindow(TheShell().canvas, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        ::GdiFlush();
        ms.push_back(Milliseconds(start));
    }
    std::sort(ms.begin(), ms.end());
    return ms;
}

using EditorSpeed = EditorFixture;

TEST_F(EditorSpeed, StartUpToFirstFrameAndRepaintAtFullSize) {
    Stop();
    const auto start = Clock::now();
    ASSERT_TRUE(Start(RHOMBA_SOURCE_DIR "/examples/iso-werkstueck.rhomba"));
    ::UpdateWindow(TheShell().canvas);
    std::printf("[ EditorSpeed ] start-up with the example drawing to the first frame: %.1f ms\n",
                Milliseconds(start));
    EXPECT_GT(Doc().LayerCount(), 0u);
    Stop();
    ASSERT_TRUE(Start(""));
    ::MoveWindow(TheShell().main, 0, 0, 1280, 1000, TRUE);
    TheEditor().view.SetZoom(1, 0, 0);
    for (int paths : {bench::kZigzagPaths, 10 * bench::kZigzagPaths}) {
        Doc().Reset();
        bench::BuildZigzagDrawing(Doc(), paths);
        const std::vector<double> ms = RepaintMilliseconds(paths > bench::kZigzagPaths ? 5 : 15);
        std::printf("[ EditorSpeed ] repaint of %d nodes at 100 %% through the canvas window: "
                    "median %.1f ms, best %.1f ms\n",
                    paths * bench::kZigzagNodesPerPath, ms[ms.size() / 2], ms.front());
    }
    EXPECT_FALSE(::GetUpdateRect(TheShell().canvas, nullptr, FALSE)); // painted, nothing left over
}

} // namespace
} // namespace rhomba::test
