// The canvas port on a real window: capture, cursors and inverted feedback (the popup menu is
// tried on the editor's own canvas).
#include "ui/tools/Feedback.h"
#include "win32/Win32CanvasHost.h"

#include <gtest/gtest.h>

namespace rhomba::test {
namespace {

// A plain white window standing in for the canvas, with arrows for cursors and a cross for the
// ellipse tool, the last.
struct CanvasWindow : ::testing::Test {
    CanvasWindow() {
        WNDCLASSW wc{};
        wc.lpfnWndProc = ::DefWindowProcW;
        wc.hInstance = ::GetModuleHandleW(nullptr);
        wc.hbrBackground = static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
        wc.lpszClassName = L"RhombaCanvasHostTest";
        ::RegisterClassW(&wc);
        hwnd = ::CreateWindowW(wc.lpszClassName, L"canvas", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50,
                               50, 320, 240, nullptr, nullptr, wc.hInstance, nullptr);
        ::UpdateWindow(hwnd);
        HDC dc = ::GetDC(hwnd);
        RECT all{0, 0, 400, 400};
        ::FillRect(dc, &all, wc.hbrBackground);
        ::ReleaseDC(hwnd, dc);
        cursors.fill(::LoadCursorW(nullptr, IDC_ARROW));
        cursors.back() = ::LoadCursorW(nullptr, IDC_CROSS);
    }
    ~CanvasWindow() override { ::DestroyWindow(hwnd); }

    COLORREF Pixel(int x, int y) const {
        HDC dc = ::GetDC(hwnd);
        const COLORREF c = ::GetPixel(dc, x, y);
        ::ReleaseDC(hwnd, dc);
        return c;
    }

    HWND hwnd;
    std::array<HCURSOR, kCanvasCursorCount> cursors;
};

TEST_F(CanvasWindow, CapturesSetsCursorsAndDrawsFeedbackThatDrawingTwiceRemoves) {
    Win32CanvasHost host(hwnd, cursors);
    host.CaptureMouse();
    EXPECT_EQ(::GetCapture(), hwnd);
    host.ReleaseMouse();
    EXPECT_EQ(::GetCapture(), nullptr);
    host.SetToolCursor(CanvasCursor::Ellipse);
    EXPECT_EQ(reinterpret_cast<HCURSOR>(::GetClassLongPtrW(hwnd, GCLP_HCURSOR)), cursors.back());

    ASSERT_EQ(Pixel(40, 30), RGB(255, 255, 255));
    FeedbackLayer feedback(host);
    feedback.Show(Feedback::Box({20, 30}, {80, 60}));
    EXPECT_EQ(Pixel(40, 30), RGB(0, 0, 0));
    EXPECT_EQ(Pixel(40, 45), RGB(255, 255, 255)); // the inside stays
    feedback.Show(Feedback::Line({10, 100}, {110, 100}));
    EXPECT_EQ(Pixel(40, 30), RGB(255, 255, 255));
    EXPECT_EQ(Pixel(50, 100), RGB(0, 0, 0));
    feedback.Hide();
    EXPECT_EQ(Pixel(50, 100), RGB(255, 255, 255));
}

} // namespace
} // namespace rhomba::test
