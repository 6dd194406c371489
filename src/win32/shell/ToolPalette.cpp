// The tool palette: eight tool buttons and the zoom field with its menu of zoom steps.
#include "ui/Editor.h"
#include "ui/resource.h"
#include "win32/shell/Shell.h"

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <iterator>

namespace rhomba {

namespace {

struct ToolButton {
    int control;
    int icon;
    int tool;
};

constexpr ToolButton kToolButtons[] = {
    {IDC_TOOL_SELECT, IDI_TOOL_SELECT, 0}, {IDC_TOOL_SCROLL, IDI_TOOL_SCROLL, 1},
    {IDC_TOOL_ZOOM, IDI_TOOL_ZOOM, 2},     {IDC_TOOL_PATH, IDI_TOOL_PATH, 3},
    {IDC_TOOL_NODE, IDI_TOOL_NODE, 4},     {IDC_TOOL_TEXT, IDI_TOOL_TEXT, 5},
    {IDC_TOOL_RECT, IDI_TOOL_RECT, 6},     {IDC_TOOL_ELLIPSE, IDI_TOOL_ELLIPSE, 7},
};

constexpr int kZoomSteps[] = {10,  25,  50,  75,   100,  150,  200, 300,
                              400, 500, 700, 1000, 2000, 4000, 6000};

int ZoomPercent() {
    return static_cast<int>(TheShell().editor->document.view.zoom * 100 + 0.5);
}

void SetZoomText(HWND palette, int percent) {
    wchar_t text[32];
    std::swprintf(text, 32, L"%d %%", percent);
    ::SetDlgItemTextW(palette, IDC_ZOOM, text);
}

// The icons fit the buttons with a small margin, whatever the dialog units come to.
void PutIcons(HWND palette) {
    for (const ToolButton& button : kToolButtons) {
        HWND control = ::GetDlgItem(palette, button.control);
        RECT box{};
        ::GetClientRect(control, &box);
        const int size = std::max(16, std::min<int>(box.right, box.bottom) - 6);
        HANDLE icon = ::LoadImageW(TheShell().instance, MAKEINTRESOURCEW(button.icon), IMAGE_ICON,
                                   size, size, LR_DEFAULTCOLOR);
        if (icon != nullptr)
            ::SendMessageW(control, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
    }
}

// The zoom field never keeps the focus: it opens the menu of zoom steps at once.
void ChooseZoom(HWND palette) {
    HMENU menu = ::CreatePopupMenu();
    const int current = ZoomPercent();
    for (int percent : kZoomSteps) {
        wchar_t text[32];
        std::swprintf(text, 32, L"%d %%", percent);
        ::AppendMenuW(menu, MF_STRING | (percent == current ? MF_CHECKED : 0), percent, text);
    }
    RECT field{};
    ::GetWindowRect(::GetDlgItem(palette, IDC_ZOOM), &field);
    const int chosen = ::TrackPopupMenu(menu, TPM_RETURNCMD | TPM_LEFTALIGN | TPM_TOPALIGN,
                                        field.left - 10, field.top - 10, 0, palette, nullptr);
    ::DestroyMenu(menu);
    if (chosen != 0) {
        SetZoomText(palette, chosen);
        TheShell().editor->view.SetZoom(chosen / 100.0, 0, 0);
        Redraw();
    }
    ::SetFocus(TheShell().main);
}

} // namespace

INT_PTR CALLBACK ToolPaletteProc(HWND palette, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        TheShell().palette = palette;
        ::CheckDlgButton(palette, IDC_TOOL_SELECT, BST_CHECKED);
        UpdateZoomField();
        PutIcons(palette);
        return TRUE;
    case WM_COMMAND: {
        const int id = LOWORD(wParam);
        const int code = HIWORD(wParam);
        if (id == IDC_ZOOM) {
            if (code == EN_SETFOCUS) ChooseZoom(palette);
            return TRUE;
        }
        for (const ToolButton& button : kToolButtons) {
            if (button.control != id) continue;
            if (::IsDlgButtonChecked(palette, id) == BST_CHECKED) SetTool(button.tool);
            ::SetFocus(TheShell().main);
            return TRUE;
        }
        return FALSE;
    }
    default:
        return FALSE;
    }
}

void UpdateZoomField() {
    HWND palette = TheShell().palette;
    if (palette == nullptr || TheShell().editor == nullptr) return;
    wchar_t text[32] = {};
    ::GetDlgItemTextW(palette, IDC_ZOOM, text, 32);
    const int percent = ZoomPercent();
    if (static_cast<int>(std::wcstol(text, nullptr, 10)) != percent) SetZoomText(palette, percent);
}

} // namespace rhomba
