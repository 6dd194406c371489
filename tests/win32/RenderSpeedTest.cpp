// The repaint of a 100,000-node drawing painted by GDI into an off-screen bitmap: the time is
// reported (it measures Wine and this machine, not a limit), the picture is checked.
#include "../../bench/ZigzagDrawing.h"
#include "render/CanvasView.h"
#include "render/DeviceCache.h"
#include "win32/GdiDevice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace rhomba {
namespace {

TEST(RenderSpeed, HundredThousandNodesThroughGdi) {
    constexpr int kWidth = 1280, kHeight = 1024;
    Document document;
    bench::BuildZigzagDrawing(document);
    CanvasView view(document);
    view.SetClientSize(kWidth, kHeight);
    view.SetZoom(1, 0, 0);

    HDC screen = ::GetDC(nullptr);
    HDC dc = ::CreateCompatibleDC(screen);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    HBITMAP target = ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ old = ::SelectObject(dc, target);

    std::vector<double> ms;
    for (int run = 0; run < 10; ++run) {
        const auto start = std::chrono::steady_clock::now();
        OffscreenCanvas canvas(dc, kWidth, kHeight);
        GdiDevice device(canvas.Dc());
        view.Paint(device, kToolSelect);
        canvas.Present();
        ::GdiFlush();
        const auto stop = std::chrono::steady_clock::now();
        ms.push_back(std::chrono::duration<double, std::milli>(stop - start).count());
    }
    std::sort(ms.begin(), ms.end());
    std::printf("[ RenderSpeed ] 100,000 nodes through GDI into a %dx%d bitmap: median %.1f ms, "
                "best %.1f ms\n", kWidth, kHeight, ms[ms.size() / 2], ms.front());

    // Something was painted: dark stroke pixels and the grey fill, on white.
    const auto* pixels = static_cast<const std::uint32_t*>(bits);
    std::size_t dark = 0, white = 0;
    for (int i = 0; i < kWidth * kHeight; ++i) {
        const std::uint32_t p = pixels[i] & 0xFFFFFF;
        if (p == 0xFFFFFF) ++white;
        if (p == 0) ++dark;
    }
    EXPECT_GT(dark, 10000u);
    EXPECT_GT(white, 10000u);

    ::SelectObject(dc, old);
    ::DeleteObject(target);
    ::DeleteDC(dc);
    ::ReleaseDC(nullptr, screen);
}

} // namespace
} // namespace rhomba
