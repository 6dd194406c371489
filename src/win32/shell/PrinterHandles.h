#pragma once

#include <windows.h>

#include <commdlg.h>

namespace rhomba {

// The printer choice shared by the settings and print dialogs: the device mode and device names
// blocks that the print dialog hands out, both empty until a printer is known.
class PrinterHandles {
public:
    PrinterHandles() = default;
    ~PrinterHandles();
    PrinterHandles(const PrinterHandles&) = delete;
    PrinterHandles& operator=(const PrinterHandles&) = delete;

    // Takes the default printer without showing anything; false when there is none.
    bool SelectDefault();
    // The printer-setup dialog over owner, starting from the held (or default) printer; keeps
    // the new choice on OK.
    bool Select(HWND owner);

    // Each copies one name of the device names block into buffer (size characters) and returns
    // its length plus 2, or 0 when there is no printer.
    int DriverName(char* buffer, int size);
    int DeviceName(char* buffer, int size);
    int OutputPort(char* buffer, int size);

    // A device context on the chosen printer, or null.
    HDC CreatePrinterDc();

private:
    bool Run(PRINTDLGA& dialog);
    int ReadName(int which, char* buffer, int size);

    HGLOBAL devMode_ = nullptr;
    HGLOBAL devNames_ = nullptr;
};

// The one printer choice of the run.
PrinterHandles& ThePrinter();

} // namespace rhomba
