// The panel's dealings with the system: the colour and font choosers, the colour buttons' look and
// the keys of its edit fields.
#include "win32/panel/PanelWindow.h"

#include "win32/shell/Shell.h" // Wide, Narrow

#include <commctrl.h>
#include <commdlg.h>

#include <algorithm>
#include <cmath>
#include <cwchar>

namespace rhomba {

namespace {

static_assert(sizeof(ColorRef) == sizeof(COLORREF));

// The chooser's sizes run from 1 to 1638 points; anything else starts it at 12.
double ChooserSize(double size) {
    if (!std::isfinite(size) || size < 1) return 12;
    return std::min(size, 1638.0);
}

bool IsEdit(HWND control) {
    wchar_t name[16] = {};
    ::GetClassNameW(control, name, 16);
    return ::lstrcmpiW(name, L"Edit") == 0;
}

// The next field to type into, across the shown pages: Tab passes the buttons by, which would
// keep the keyboard without a way on.
HWND NextField(HWND edit, bool backwards) {
    HWND frame = ::GetParent(::GetParent(edit)); // the frame holds the pages, they the fields
    HWND next = edit;
    for (int step = 0; step < 64; ++step) {
        next = ::GetNextDlgTabItem(frame, next, backwards);
        if (next == nullptr || next == edit || IsEdit(next)) break;
    }
    return next != nullptr ? next : edit;
}

LRESULT CALLBACK EditKeysProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                              DWORD_PTR data) {
    HWND canvas = reinterpret_cast<HWND>(data);
    const bool multiline = (::GetWindowLongW(edit, GWL_STYLE) & ES_MULTILINE) != 0;
    switch (message) {
    case WM_KEYDOWN:
        if (wParam == VK_TAB) {
            ::SetFocus(NextField(edit, ::GetKeyState(VK_SHIFT) < 0));
            return 0;
        }
        if (wParam == VK_ESCAPE || (wParam == VK_RETURN && !multiline)) {
            ::SetFocus(canvas);
            return 0;
        }
        break;
    case WM_CHAR:
        if (wParam == '\t' || wParam == 27 || (wParam == '\r' && !multiline)) return 0; // no beep
        break;
    case WM_COMMAND:
        // The editor's accelerators are translated before the field sees its keys, and the
        // command is sent to the field: the edit keys among them are given back to it.
        if (HIWORD(wParam) == 1 && lParam == 0) {
            switch (LOWORD(wParam)) {
            case IDM_COPY: return ::SendMessageW(edit, WM_COPY, 0, 0);
            case IDM_CUT: return ::SendMessageW(edit, WM_CUT, 0, 0);
            case IDM_PASTE: return ::SendMessageW(edit, WM_PASTE, 0, 0);
            case IDM_DELETE: return ::DefSubclassProc(edit, WM_KEYDOWN, VK_DELETE, 0);
            default: ::PostMessageW(::GetAncestor(edit, GA_ROOT), WM_COMMAND, wParam, 0); return 0;
            }
        }
        break;
    case WM_NCDESTROY:
        ::RemoveWindowSubclass(edit, EditKeysProc, 0);
        break;
    default:
        break;
    }
    return ::DefSubclassProc(edit, message, wParam, lParam);
}

} // namespace

std::optional<ColorRef> ChooseColour(HWND owner, ColorRef colour,
                                     std::array<ColorRef, 16>& custom) {
    CHOOSECOLORW choose{};
    choose.lStructSize = sizeof choose;
    choose.hwndOwner = owner;
    choose.rgbResult = colour;
    choose.lpCustColors = reinterpret_cast<COLORREF*>(custom.data());
    choose.Flags = CC_FULLOPEN | CC_RGBINIT;
    if (!::ChooseColorW(&choose)) return std::nullopt;
    return static_cast<ColorRef>(choose.rgbResult) & kColourMask;
}

std::optional<FontChoice> ChooseFontFor(HWND owner, const FontChoice& shown) {
    const double size = ChooserSize(shown.size);
    HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    LOGFONTW font{};
    font.lfHeight = -static_cast<LONG>(std::lround(size * dpi / 72));
    font.lfWeight = shown.bold ? FW_BOLD : FW_NORMAL;
    font.lfItalic = shown.italic ? TRUE : FALSE;
    font.lfCharSet = DEFAULT_CHARSET;
    std::wcsncpy(font.lfFaceName, Wide(shown.name).c_str(), LF_FACESIZE - 1);

    CHOOSEFONTW choose{};
    choose.lStructSize = sizeof choose;
    choose.hwndOwner = owner;
    choose.lpLogFont = &font;
    choose.iPointSize = static_cast<INT>(std::lround(size * 10));
    // Texts become paths through their glyph outlines, which only outline fonts have.
    choose.Flags = CF_SCREENFONTS | CF_TTONLY | CF_NOVERTFONTS | CF_INITTOLOGFONTSTRUCT;
    if (!::ChooseFontW(&choose)) return std::nullopt;
    return FontChoice{Narrow(font.lfFaceName), font.lfWeight >= FW_SEMIBOLD, font.lfItalic != 0,
                      choose.iPointSize / 10.0};
}

void DrawColourButton(const DRAWITEMSTRUCT& item, ColorRef colour) {
    HDC dc = item.hDC;
    RECT box = item.rcItem;
    const bool pushed = (item.itemState & ODS_SELECTED) != 0;
    const bool enabled = (item.itemState & ODS_DISABLED) == 0;
    ::DrawFrameControl(dc, &box, DFC_BUTTON, DFCS_BUTTONPUSH | (pushed ? DFCS_PUSHED : 0));
    RECT swatch = box;
    ::InflateRect(&swatch, -4, -4);
    if (pushed) ::OffsetRect(&swatch, 1, 1);
    COLORREF ink = ::GetSysColor(enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT);
    if (enabled) {
        HBRUSH fill = ::CreateSolidBrush(colour);
        ::FillRect(dc, &swatch, fill);
        ::DeleteObject(fill);
        ::FrameRect(dc, &swatch, static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH)));
        // The dots stay readable on any colour.
        const int light =
            (299 * (colour & 0xFF) + 587 * ((colour >> 8) & 0xFF) + 114 * ((colour >> 16) & 0xFF)) /
            1000;
        ink = light < 128 ? RGB(255, 255, 255) : RGB(0, 0, 0);
    }
    wchar_t text[16] = {};
    ::GetWindowTextW(item.hwndItem, text, 16);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, ink);
    ::DrawTextW(dc, text, -1, &swatch, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    if ((item.itemState & ODS_FOCUS) != 0) {
        ::InflateRect(&swatch, 2, 2);
        ::DrawFocusRect(dc, &swatch);
    }
}

void KeepEditKeys(HWND edit, HWND canvas) {
    if (!IsEdit(edit)) return;
    ::SetWindowSubclass(edit, EditKeysProc, 0, reinterpret_cast<DWORD_PTR>(canvas));
}

} // namespace rhomba
