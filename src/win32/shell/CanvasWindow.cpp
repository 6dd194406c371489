// The canvas: paints the view without flicker, hands the mouse to the tools and every command on
// to the main window.
#include "ui/Editor.h"
#include "ui/tools/ToolController.h"
#include "win32/GdiDevice.h"
#include "win32/shell/Shell.h"

#include <windowsx.h>

namespace rhomba {

namespace {

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
        editor.view.Paint(device, editor.Tool());
        // A drag's inverted feedback goes back on, so that its next erase leaves no stripes.
        if (ToolController* tools = editor.Tools()) tools->PaintFeedback(device);
        picture.Present();
    }
    ::EndPaint(canvas, &paint);
}

// The tools' entry point for the mouse, with the key flags and signed client coordinates.
void Mouse(UINT message, int x, int y, unsigned keys) {
    ToolController* tools = TheShell().editor->Tools();
    if (tools == nullptr) return;
    switch (message) {
    case WM_LBUTTONDOWN: return tools->MouseDown(x, y, keys);
    case WM_MOUSEMOVE: return tools->MouseMove(x, y, keys);
    case WM_LBUTTONUP: return tools->MouseUp(x, y, keys);
    case WM_LBUTTONDBLCLK: return tools->DoubleClick(x, y, keys);
    case WM_RBUTTONUP: return tools->RightButtonUp(x, y, keys);
    }
}

} // namespace

void SetTool(int tool) {
    if (ToolController* tools = TheShell().editor->Tools()) tools->SetTool(tool);
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
    case WM_KEYDOWN:
    case WM_KEYUP:
        return MainWindowProc(TheShell().main, message, wParam, lParam);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        // A press on the drawing takes the keys from the panel, which applies what was typed.
        ::SetFocus(canvas);
        [[fallthrough]];
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
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
