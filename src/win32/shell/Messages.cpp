// Message boxes and the window title.
#include "win32/shell/Shell.h"

#include <cstdarg>
#include <cstdio>

namespace rhomba {

namespace {

// Formats into the 1024 characters the messages have; longer texts are cut, never overrun.
std::string Format(const char* format, va_list arguments) {
    char text[1024];
    std::vsnprintf(text, sizeof text, format, arguments);
    return text;
}

int Box(unsigned style, const std::string& text) {
    return ::MessageBoxW(TheShell().main, Wide(text).c_str(), kProductName, style);
}

} // namespace

int ShowInfoMessage(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const std::string text = Format(format, arguments);
    va_end(arguments);
    return Box(MB_OK | MB_ICONINFORMATION, text);
}

int ShowMessageBox(unsigned style, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const std::string text = Format(format, arguments);
    va_end(arguments);
    return Box(style, text);
}

void UpdateTitle(const std::string& name) {
    if (TheShell().main == nullptr) return;
    std::wstring title = kProductName;
    if (!name.empty()) title = Wide(name) + L" - " + title;
    ::SetWindowTextW(TheShell().main, title.c_str());
}

void SetStatusTextF(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const std::string text = Format(format, arguments);
    va_end(arguments);
    SetStatusText(text.c_str());
}

} // namespace rhomba
