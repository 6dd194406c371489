#pragma once

#include "ui/CanvasHost.h"
#include "win32/Text.h"

#include <array>
#include <string>

#include <windows.h>

namespace rhomba {

class Editor;
class Win32CanvasHost;
class Win32ShellHost;

// The windows and handles of the one running editor. They live from start-up until the main
// window is destroyed.
struct Shell {
    HINSTANCE instance = nullptr;
    HWND main = nullptr;
    HWND canvas = nullptr;
    HWND palette = nullptr;
    HWND status = nullptr;
    HWND copyEdit = nullptr;
    HACCEL accelerators = nullptr;
    // Loaded at start, in CanvasCursor order.
    std::array<HCURSOR, kCanvasCursorCount> cursors{};
    Win32ShellHost* host = nullptr;
    Win32CanvasHost* canvasHost = nullptr;
    Editor* editor = nullptr;
};

// The product name: window class, first title, message box caption, registry file type.
inline constexpr wchar_t kProductName[] = L"Rhomba";
inline constexpr wchar_t kCanvasClass[] = L"RHOMBAVIEW";

Shell& TheShell();

// Start-up up to the message loop: cursors, window classes, main window with its children,
// properties panel, accelerators, file association and the command-line file. False when the
// main window could not be created.
bool StartEditor(HINSTANCE instance, const std::string& commandLine, int show);
// Offers every message to the accelerators first; returns the quit code.
int RunMessageLoop();
// Writes the ".rhomba" association for the program at programPath; failures are ignored.
void RegisterFileType(const std::wstring& programPath);
// The command line as one file name: every double quote removed.
std::string CommandLineFileName(std::string commandLine);

LRESULT CALLBACK MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK CanvasWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
INT_PTR CALLBACK ToolPaletteProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
void LayoutMainWindow();

// The services the rest of the program uses. Texts are Windows-1252 bytes.
int ShowInfoMessage(const char* format, ...);
int ShowMessageBox(unsigned style, const char* format, ...);
void UpdateTitle(const std::string& name);
void ShowCursorPoints(double x, double y);
void ShowCursorMillimetres(double x, double y);
void SetStatusText(const char* text);
void SetStatusTextF(const char* format, ...);
void UpdateZoomField();
void Redraw();
void SetTool(int tool);

} // namespace rhomba
