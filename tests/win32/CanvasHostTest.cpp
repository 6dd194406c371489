// The canvas port on a real window: capture, cursors, inverted feedback and the popup menu.
#include "ui/ContextMenu.h"
#include "ui/tools/Feedback.h"
#include "win32/Win32CanvasHost.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

// A plain white window standing in for the canvas.
class CanvasWindow {
public:
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
        ::FillRect(dc, &all, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
        ::ReleaseDC(hwnd, dc);
    }
    ~CanvasWindow() { ::DestroyWindow(hwnd); }

    COLORREF Pixel(int x, int y) const {
        HDC dc = ::GetDC(hwnd);
        const COLORREF c = ::GetPixel(dc, x, y);
        ::ReleaseDC(hwnd, dc);
        return c;
    }

    HWND hwnd;
};

// Arrows, and a cross for the ellipse tool, the last.
std::array<HCURSOR, kCanvasCursorCount> Cursors() {
    std::array<HCURSOR, kCanvasCursorCount> cursors;
    cursors.fill(::LoadCursorW(nullptr, IDC_ARROW));
    cursors.back() = ::LoadCursorW(nullptr, IDC_CROSS);
    return cursors;
}

TEST(Win32CanvasHost, CapturesSetsCursorsAndDrawsFeedbackThatDrawingTwiceRemoves) {
    CanvasWindow window;
    const auto cursors = Cursors();
    Win32CanvasHost host(window.hwnd, cursors);
    host.CaptureMouse();
    EXPECT_EQ(::GetCapture(), window.hwnd);
    host.ReleaseMouse();
    EXPECT_EQ(::GetCapture(), nullptr);
    host.SetToolCursor(CanvasCursor::Ellipse);
    const auto classCursor = ::GetClassLongPtrW(window.hwnd, GCLP_HCURSOR);
    EXPECT_EQ(reinterpret_cast<HCURSOR>(classCursor), cursors.back());

    ASSERT_EQ(window.Pixel(40, 30), RGB(255, 255, 255));
    FeedbackLayer feedback(host);
    feedback.Show(Feedback::Box({20, 30}, {80, 60}));
    EXPECT_EQ(window.Pixel(40, 30), RGB(0, 0, 0));
    EXPECT_EQ(window.Pixel(40, 45), RGB(255, 255, 255)); // the inside stays
    feedback.Show(Feedback::Line({10, 100}, {110, 100}));
    EXPECT_EQ(window.Pixel(40, 30), RGB(255, 255, 255));
    EXPECT_EQ(window.Pixel(50, 100), RGB(0, 0, 0));
    feedback.Hide();
    EXPECT_EQ(window.Pixel(50, 100), RGB(255, 255, 255));
}

// Chooses the first entry of the open popup menu with the keyboard, after checking its texts.
std::wstring g_text;
UINT g_grayed = 0;
void CALLBACK ChooseFirst(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    HWND popup = ::FindWindowW(L"#32768", nullptr);
    if (popup == nullptr) {
        ::EndMenu();
        return;
    }
    auto menu = reinterpret_cast<HMENU>(::SendMessageW(popup, MN_GETHMENU, 0, 0));
    wchar_t text[64] = {};
    ::GetMenuStringW(menu, 7, text, 64, MF_BYCOMMAND);
    g_text = text;
    g_grayed = ::GetMenuState(menu, 9, MF_BYCOMMAND) & MF_GRAYED;
    ::PostMessageW(popup, WM_KEYDOWN, VK_DOWN, 0);
    ::PostMessageW(popup, WM_KEYDOWN, VK_RETURN, 0);
}
void CALLBACK GiveUp(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    ::EndMenu();
}

TEST(Win32CanvasHost, TrackedMenuReturnsTheChosenEntry) {
    CanvasWindow window;
    Win32CanvasHost host(window.hwnd, Cursors());
    ::SetForegroundWindow(window.hwnd);
    const ContextMenu menu{{{7, "Gr\xFC\xDF" "e", true}, {}, {9, "L\xF6schen", false}}};
    ::SetTimer(nullptr, 0, 200, ChooseFirst);
    const UINT_PTR guard = ::SetTimer(nullptr, 0, 5000, GiveUp);
    EXPECT_EQ(host.TrackMenu(menu, 10, 10), 7);
    ::KillTimer(nullptr, guard);
    EXPECT_EQ(g_text, L"Gr\u00FC\u00DFe");
    EXPECT_NE(g_grayed, 0u);
}

} // namespace
} // namespace rhomba
