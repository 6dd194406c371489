// The canvas: paints the view without flicker, hands the mouse to the tools and every command on
// to the main window.
#include "ui/Editor.h"
#include "win32/GdiDevice.h"
#include "win32/shell/Shell.h"

#include <windowsx.h>

namespace rhomba {

namespace {

// The cursor of each tool, by tool number.
constexpr ShellCursor kToolCursors[] = {kCursorArrow, kCursorScroll, kCursorZoom, kCursorPath,
                                        kCursorNode,  kCursorText,   kCursorRect, kCursorEllipse};

HCURSOR canvasCursor = nullptr;

void Paint(HWND canvas) {
    PAINTSTRUCT paint;
    HDC dc = ::BeginPaint(canvas, &paint);
    RECT client{};
    ::GetClientRect(canvas, &client);
    Editor& editor = *TheShell().editor;
    editor.view.SetClientSize(client.right, client.bottom);
    if (client.right > 0 && client.bottom > 0) {
        OffscreenCanvas picture(dc, client.right, client.bottom);
        GdiDevice device(picture.Dc());
        editor.view.Paint(device, editor.tool);
        picture.Present();
    }
    ::EndPaint(canvas, &paint);
}

// The tools' entry point. Until the tools take the mouse, the canvas shows where it is.
void Mouse(UINT, int x, int y, unsigned) {
    double wx = x, wy = y;
    TheShell().editor->view.ClientToWorld(wx, wy);
    ShowCursorPoints(wx, wy);
    ShowCursorMillimetres(wx, wy);
}

} // namespace

void SetTool(int tool) {
    if (tool < 0 || tool > 7) return;
    TheShell().editor->tool = tool;
    canvasCursor = TheShell().cursors[kToolCursors[tool]];
    Redraw();
}

void Redraw() {
    if (TheShell().canvas != nullptr) ::InvalidateRect(TheShell().canvas, nullptr, TRUE);
}

LRESULT CALLBACK CanvasWindowProc(HWND canvas, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        return 0;
    case WM_PAINT:
        Paint(canvas);
        return 0;
    case WM_ERASEBKGND:
        return 1; // the off-screen picture covers the whole client area
    case WM_SETCURSOR:
        if (LOWORD(lParam) == HTCLIENT && canvasCursor != nullptr) {
            ::SetCursor(canvasCursor);
            return TRUE;
        }
        break;
    case WM_KEYDOWN:
    case WM_KEYUP:
        return MainWindowProc(TheShell().main, message, wParam, lParam);
    case WM_LBUTTONDOWN:
        // A press on the drawing takes the keys from the panel, which applies what was typed.
        ::SetFocus(canvas);
        [[fallthrough]];
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
        Mouse(message, GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam), static_cast<unsigned>(wParam));
        return 0;
    case WM_COMMAND:
        ::PostMessageW(TheShell().main, WM_COMMAND, wParam, lParam);
        return 0;
    default:
        break;
    }
    return ::DefWindowProcW(canvas, message, wParam, lParam);
}

} // namespace rhomba
