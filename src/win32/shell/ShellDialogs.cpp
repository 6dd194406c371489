#include "win32/shell/ShellDialogs.h"

#include "render/CanvasView.h"
#include "ui/resource.h"
#include "win32/PrintDc.h"
#include "win32/shell/PrinterHandles.h"
#include "win32/shell/Shell.h"

#include <shellapi.h>

namespace rhomba {

namespace {

// Device name, a line break and the output port, each of at most 256 characters.
void ShowPrinter(HWND dialog) {
    char device[257] = {}, port[257] = {};
    ThePrinter().DeviceName(device, sizeof device);
    ThePrinter().OutputPort(port, sizeof port);
    ::SetDlgItemTextW(dialog, IDC_PRINTER_NAME, Wide(std::string(device) + "\r\n" + port).c_str());
}

// What the settings and print dialogs share: "&Drucker..." and the close box. True when the
// message was one of these.
bool PrinterDialogMessage(HWND dialog, UINT message, WPARAM wParam) {
    if (message == WM_COMMAND && LOWORD(wParam) == IDC_PRINTER_CHOOSE) {
        ThePrinter().Select(dialog);
        ShowPrinter(dialog);
        return true;
    }
    if (message == WM_CLOSE) {
        ::EndDialog(dialog, 0);
        return true;
    }
    return false;
}

// The dialogs reach what they change through this pointer, set only while one is open.
DisplaySwitches* openSwitches = nullptr;

INT_PTR CALLBACK SettingsProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (openSwitches == nullptr) return FALSE;
    if (PrinterDialogMessage(dialog, message, wParam)) return TRUE;
    DisplaySwitches& switches = *openSwitches;
    auto box = [dialog](int id) { return ::IsDlgButtonChecked(dialog, id) == BST_CHECKED; };
    switch (message) {
    case WM_INITDIALOG:
        ::CheckDlgButton(dialog, IDC_SHOW_ISO_LINES,
                         switches.isometricLines ? BST_CHECKED : BST_UNCHECKED);
        ::CheckDlgButton(dialog, IDC_SHOW_CROSS,
                         switches.coordinateCross ? BST_CHECKED : BST_UNCHECKED);
        ::CheckDlgButton(dialog, IDC_SHOW_PAGE, switches.pageFrame ? BST_CHECKED : BST_UNCHECKED);
        ShowPrinter(dialog);
        return TRUE;
    case WM_COMMAND:
        switch (LOWORD(wParam)) {
        case IDOK:
            switches.isometricLines = box(IDC_SHOW_ISO_LINES);
            switches.coordinateCross = box(IDC_SHOW_CROSS);
            switches.pageFrame = box(IDC_SHOW_PAGE);
            ::EndDialog(dialog, 1);
            return TRUE;
        case IDCANCEL:
            ::PostMessageW(dialog, WM_CLOSE, 0, 0);
            return TRUE;
        }
        return FALSE;
    default:
        return FALSE;
    }
}

Document* printedDocument = nullptr;

INT_PTR CALLBACK PrintProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (printedDocument == nullptr) return FALSE;
    if (PrinterDialogMessage(dialog, message, wParam)) return TRUE;
    switch (message) {
    case WM_INITDIALOG:
        ShowPrinter(dialog);
        return TRUE;
    case WM_COMMAND:
        switch (LOWORD(wParam)) {
        case IDC_PRINT_START:
            if (HDC printer = ThePrinter().CreatePrinterDc()) {
                PrintOnPrinterDc(*printedDocument, printer);
                ::DeleteDC(printer);
            }
            ::EndDialog(dialog, 1);
            return TRUE;
        case IDCANCEL:
            ::EndDialog(dialog, 0);
            return TRUE;
        }
        return FALSE;
    default:
        return FALSE;
    }
}

INT_PTR CALLBACK AboutProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        return TRUE;
    case WM_COMMAND:
        switch (LOWORD(wParam)) {
        case IDOK:
        case IDCANCEL:
            ::EndDialog(dialog, LOWORD(wParam));
            return TRUE;
        case IDC_ABOUT_HELP:
            ::ShellExecuteA(TheShell().main, "open", HelpPagePath().c_str(), nullptr, nullptr,
                            SW_SHOW);
            return TRUE;
        }
        return FALSE;
    default:
        return FALSE;
    }
}

INT_PTR Modal(HWND owner, int id, DLGPROC procedure) {
    return ::DialogBoxParamW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(id), owner, procedure,
                             0);
}

} // namespace

bool RunSettingsDialogBox(HWND owner, DisplaySwitches& switches) {
    openSwitches = &switches;
    const INT_PTR result = Modal(owner, IDD_SETTINGS, SettingsProc);
    openSwitches = nullptr;
    return result == 1;
}

void RunPrintDialogBox(HWND owner, Document& document) {
    printedDocument = &document;
    Modal(owner, IDD_PRINT, PrintProc);
    printedDocument = nullptr;
}

void RunAboutDialogBox(HWND owner) { Modal(owner, IDD_ABOUT, AboutProc); }

std::string HelpPagePath() {
    char program[MAX_PATH] = {};
    const DWORD length = ::GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::string path(program, length);
    path.erase(path.find_last_of("\\/") + 1);
    return path + "rhomba-hilfe.html";
}

} // namespace rhomba
