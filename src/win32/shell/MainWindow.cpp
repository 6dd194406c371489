// The main window: builds palette, status strip, canvas and the hidden copy field, lays them
// out, grays the edit menu and hands every command to the command table.
#include "ui/Commands.h"
#include "ui/Editor.h"
#include "ui/resource.h"
#include "ui/tools/ToolController.h"
#include "win32/shell/PropertiesPanel.h"
#include "win32/shell/Shell.h"

#include <algorithm>

namespace rhomba {

namespace {

// The status strip takes its initial focus; its message field reaches to the right edge however
// wide the window is.
INT_PTR CALLBACK StatusStripProc(HWND strip, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG) return TRUE;
    if (message == WM_SIZE) {
        HWND text = ::GetDlgItem(strip, IDC_STATUS_TEXT);
        RECT box{};
        ::GetWindowRect(text, &box);
        ::MapWindowPoints(nullptr, strip, reinterpret_cast<POINT*>(&box), 2);
        const int right = std::max<int>(box.left + 1, LOWORD(lParam) - 1);
        ::MoveWindow(text, box.left, box.top, right - box.left, box.bottom - box.top, TRUE);
    }
    return FALSE;
}

void RegisterCanvasClass(HINSTANCE instance) {
    WNDCLASSEXW canvasClass{};
    canvasClass.cbSize = sizeof canvasClass;
    // Double clicks end the path being drawn.
    canvasClass.style = CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS;
    canvasClass.lpfnWndProc = CanvasWindowProc;
    canvasClass.hInstance = instance;
    canvasClass.hIcon = ::LoadIconW(instance, MAKEINTRESOURCEW(IDI_APP));
    canvasClass.hIconSm = ::LoadIconW(instance, MAKEINTRESOURCEW(IDI_APP_SMALL));
    canvasClass.hCursor = TheShell().cursors[static_cast<int>(CanvasCursor::Arrow)];
    canvasClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    canvasClass.lpszClassName = kCanvasClass;
    ::RegisterClassExW(&canvasClass); // a second editor in one process finds it registered
}

void CreateChildren(HWND main) {
    Shell& shell = TheShell();
    shell.main = main;
    shell.palette =
        ::CreateDialogW(shell.instance, MAKEINTRESOURCEW(IDD_TOOLS), main, ToolPaletteProc);
    shell.status =
        ::CreateDialogW(shell.instance, MAKEINTRESOURCEW(IDD_STATUS), main, StatusStripProc);
    RegisterCanvasClass(shell.instance);
    // The canvas paints around the properties panel that floats over it, never over it.
    shell.canvas = ::CreateWindowExW(
        0, kCanvasClass, kCanvasClass, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, main, nullptr, shell.instance, nullptr);
    // "Kopieren" hands its text to this field, which puts it on the clipboard.
    shell.copyEdit = ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | ES_MULTILINE | ES_AUTOVSCROLL, 0,
                                       0, 0, 0, main, reinterpret_cast<HMENU>(IDC_COPY_EDIT),
                                       shell.instance, nullptr);
    ::SendMessageW(shell.copyEdit, EM_SETLIMITTEXT, 0, 0);
}

int OuterWidth(HWND window) {
    RECT box{};
    ::GetWindowRect(window, &box);
    return box.right - box.left;
}

int OuterHeight(HWND window) {
    RECT box{};
    ::GetWindowRect(window, &box);
    return box.bottom - box.top;
}

// Grays what needs a selection or clipboard text, in the "Bearbeiten" menu only.
void EnableEditMenu(HMENU popup) {
    if (::GetMenuState(popup, IDM_DELETE, MF_BYCOMMAND) == static_cast<UINT>(-1)) return;
    Editor& editor = *TheShell().editor;
    for (int position = 0; position < ::GetMenuItemCount(popup); ++position) {
        const UINT id = ::GetMenuItemID(popup, position);
        const CommandEnabling rule = position == POS_ISOMETRY_POPUP
                                         ? CommandEnabling::Selection
                                         : EnablingOf(static_cast<int>(id));
        if (rule == CommandEnabling::Always) continue;
        const bool on = IsEnabledNow(editor, rule);
        ::EnableMenuItem(popup, position, MF_BYPOSITION | (on ? MF_ENABLED : MF_GRAYED));
    }
}

// Space held scrolls, Delete deletes: the tools decide what a key means for them.
void Key(UINT message, WPARAM key) {
    ToolController* tools = TheShell().editor->Tools();
    if (tools == nullptr) return;
    if (message == WM_KEYDOWN) {
        tools->KeyDown(static_cast<int>(key));
    } else {
        tools->KeyUp(static_cast<int>(key));
    }
}

} // namespace

void LayoutMainWindow() {
    const Shell& shell = TheShell();
    if (shell.palette == nullptr || shell.status == nullptr || shell.canvas == nullptr) return;
    RECT client{};
    ::GetClientRect(shell.main, &client);
    const int width = client.right, height = client.bottom;
    const int palette = OuterWidth(shell.palette);
    const int strip = OuterHeight(shell.status);
    ::MoveWindow(shell.status, -1, height - strip, width + 2, strip, TRUE);
    ::MoveWindow(shell.palette, -1, -1, palette, height - strip + 1, TRUE);
    ::MoveWindow(shell.canvas, palette, 0, width - palette, height - strip + 1, TRUE);
}

LRESULT CALLBACK MainWindowProc(HWND main, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        CreateChildren(main);
        return 0;
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED) LayoutMainWindow();
        return 0;
    case WM_DESTROY:
        ::PostQuitMessage(0);
        return 0;
    case WM_KEYDOWN:
    case WM_KEYUP:
        Key(message, wParam);
        return 0;
    case WM_INITMENUPOPUP:
        EnableEditMenu(reinterpret_cast<HMENU>(wParam));
        return 0;
    case WM_COMMAND:
        // Menus and accelerators only: controls' notifications carry their window in lParam.
        if (lParam == 0 && RunCommand(*TheShell().editor, LOWORD(wParam))) {
            // What changes the drawing may change the selection the panel shows.
            if (CommandRedraws(LOWORD(wParam))) RefreshPropertiesPanel();
            return 0;
        }
        break;
    default:
        break;
    }
    return ::DefWindowProcW(main, message, wParam, lParam);
}

} // namespace rhomba
