// The editor's entry point.
#include "win32/shell/Shell.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR commandLine, int show) {
    if (!rhomba::StartEditor(instance, commandLine != nullptr ? commandLine : "", show)) return 0;
    return rhomba::RunMessageLoop();
}
