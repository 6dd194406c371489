// Start-up in its fixed order, the file association and the message loop.
#include "format/NativeReader.h"
#include "ui/Editor.h"
#include "ui/resource.h"
#include "win32/shell/PropertiesPanel.h"
#include "win32/shell/Shell.h"
#include "win32/shell/Win32ShellHost.h"
#include "win32/Win32CanvasHost.h"

#include <algorithm>
#include <cwchar>
#include <memory>

namespace rhomba {

namespace {

void LoadCursors(HINSTANCE instance) {
    auto system = [](LPCWSTR id) { return ::LoadCursorW(nullptr, id); };
    auto own = [instance](int id) { return ::LoadCursorW(instance, MAKEINTRESOURCEW(id)); };
    TheShell().cursors = {system(IDC_ARROW),          system(IDC_SIZEALL),
                          system(IDC_SIZENESW),       system(IDC_SIZENS),
                          system(IDC_SIZENWSE),       system(IDC_SIZEWE),
                          own(IDR_CURSOR_TEXT),       own(IDR_CURSOR_SCROLL),
                          own(IDR_CURSOR_PATH),       own(IDR_CURSOR_NODE),
                          own(IDR_CURSOR_MOVE),       own(IDR_CURSOR_ZOOM),
                          own(IDR_CURSOR_RECT),       own(IDR_CURSOR_ELLIPSE)};
}

void RegisterMainClass(HINSTANCE instance) {
    WNDCLASSEXW mainClass{};
    mainClass.cbSize = sizeof mainClass;
    mainClass.style = CS_HREDRAW | CS_VREDRAW;
    mainClass.lpfnWndProc = MainWindowProc;
    mainClass.hInstance = instance;
    mainClass.hIcon = ::LoadIconW(instance, MAKEINTRESOURCEW(IDI_APP));
    mainClass.hIconSm = ::LoadIconW(instance, MAKEINTRESOURCEW(IDI_APP_SMALL));
    mainClass.hCursor = TheShell().cursors[static_cast<int>(CanvasCursor::Arrow)];
    mainClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    mainClass.lpszMenuName = MAKEINTRESOURCEW(IDR_MAINMENU);
    mainClass.lpszClassName = kProductName;
    ::RegisterClassExW(&mainClass);
}

// The editor lives as long as the process; a test that starts it again gets a fresh one.
std::unique_ptr<Win32ShellHost> host;
std::unique_ptr<Editor> editor;
std::unique_ptr<Win32CanvasHost> canvasHost;

// The tools reach the status strip, the canvas and the panel through the shell's services.
void AttachTools(Shell& shell) {
    canvasHost = std::make_unique<Win32CanvasHost>(shell.canvas, shell.cursors);
    canvasHost->onCursorPoints = ShowCursorPoints;
    canvasHost->onCursorMillimetres = ShowCursorMillimetres;
    canvasHost->onStatusText = [](const std::string& text) { SetStatusText(text.c_str()); };
    canvasHost->onRedraw = Redraw;
    canvasHost->onRefreshPanel = RefreshPropertiesPanel;
    canvasHost->onShowPanelAt = ShowPropertiesPanelAt;
    shell.canvasHost = canvasHost.get();
    editor->AttachCanvas(*canvasHost);
}

} // namespace

Shell& TheShell() {
    static Shell shell;
    return shell;
}

std::string CommandLineFileName(std::string commandLine) {
    commandLine.erase(std::remove(commandLine.begin(), commandLine.end(), '"'), commandLine.end());
    return commandLine;
}

void RegisterFileType(const std::wstring& programPath) {
    if (programPath.find(L'\\') == std::wstring::npos) return;
    auto setDefault = [](HKEY key, const std::wstring& value) {
        ::RegSetValueExW(key, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                         static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
    };
    HKEY type = nullptr;
    if (::RegCreateKeyW(HKEY_CLASSES_ROOT, L".rhomba", &type) != ERROR_SUCCESS) return;
    setDefault(type, kProductName);
    ::RegCloseKey(type);
    HKEY command = nullptr;
    if (::RegCreateKeyW(HKEY_CLASSES_ROOT, L"Rhomba\\shell\\open\\command", &command) !=
        ERROR_SUCCESS) {
        return;
    }
    setDefault(command, L"\"" + programPath + L"\" \"%1\"");
    ::RegCloseKey(command);
}

bool StartEditor(HINSTANCE instance, const std::string& commandLine, int show) {
    Shell& shell = TheShell();
    shell = Shell{};
    shell.instance = instance;
    canvasHost.reset();
    host = std::make_unique<Win32ShellHost>();
    editor = std::make_unique<Editor>(*host);
    shell.host = host.get();
    shell.editor = editor.get();

    LoadCursors(instance);
    RegisterMainClass(instance);
    HWND main = ::CreateWindowExW(0, kProductName, kProductName, WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                                  CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                                  instance, nullptr);
    if (main == nullptr) return false;
    AttachTools(shell);
    ::ShowWindow(main, show);
    ::UpdateWindow(main);

    ShowPropertiesPanel(true);
    ::CheckMenuItem(::GetMenu(main), IDM_PROPERTIES, MF_BYCOMMAND | MF_CHECKED);
    RefreshPropertiesPanel();

    shell.accelerators = ::LoadAcceleratorsW(instance, MAKEINTRESOURCEW(IDR_MAINMENU));

    wchar_t path[512] = {};
    const DWORD length = ::GetModuleFileNameW(nullptr, path, 512);
    if (length > 0 && length < 512) RegisterFileType(path);

    if (!commandLine.empty()) {
        LoadNativeFile(editor->document, CommandLineFileName(commandLine), *host);
        Redraw();
    }
    return true;
}

int RunMessageLoop() {
    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (::TranslateAcceleratorW(message.hwnd, TheShell().accelerators, &message)) continue;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

} // namespace rhomba
