#include "win32/shell/PrinterHandles.h"

#include <commdlg.h>

#include <cstring>

namespace rhomba {

namespace {

void Free(HGLOBAL& handle) {
    if (handle != nullptr) ::GlobalFree(handle);
    handle = nullptr;
}

PRINTDLGA NewPrintDialog() {
    PRINTDLGA dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.nFromPage = dialog.nToPage = dialog.nMinPage = dialog.nMaxPage = dialog.nCopies = 1;
    return dialog;
}

} // namespace

PrinterHandles::~PrinterHandles() {
    Free(devMode_);
    Free(devNames_);
}

// Keeps what the dialog returns only when it returns both blocks.
bool PrinterHandles::Run(PRINTDLGA& dialog) {
    if (!::PrintDlgA(&dialog)) return false;
    if (dialog.hDevMode == nullptr || dialog.hDevNames == nullptr) return true;
    if (dialog.hDevMode != devMode_) Free(devMode_);
    if (dialog.hDevNames != devNames_) Free(devNames_);
    devMode_ = dialog.hDevMode;
    devNames_ = dialog.hDevNames;
    return true;
}

bool PrinterHandles::SelectDefault() {
    Free(devMode_);
    Free(devNames_);
    PRINTDLGA dialog = NewPrintDialog();
    dialog.Flags = PD_RETURNDEFAULT;
    return Run(dialog);
}

bool PrinterHandles::Select(HWND owner) {
    if (devMode_ == nullptr || devNames_ == nullptr) SelectDefault();
    PRINTDLGA dialog = NewPrintDialog();
    dialog.hwndOwner = owner;
    dialog.hDevMode = devMode_;
    dialog.hDevNames = devNames_;
    dialog.Flags = PD_PRINTSETUP;
    return Run(dialog);
}

int PrinterHandles::ReadName(int which, char* buffer, int size) {
    if (devNames_ == nullptr) SelectDefault();
    if (devNames_ == nullptr || size < 1) return 0;
    const auto* names = static_cast<const DEVNAMES*>(::GlobalLock(devNames_));
    if (names == nullptr) return 0;
    const WORD offsets[3] = {names->wDriverOffset, names->wDeviceOffset, names->wOutputOffset};
    const char* name = reinterpret_cast<const char*>(names) + offsets[which];
    std::strncpy(buffer, name, static_cast<std::size_t>(size) - 1);
    buffer[size - 1] = '\0';
    ::GlobalUnlock(devNames_);
    return static_cast<int>(std::strlen(buffer)) + 2;
}

int PrinterHandles::DriverName(char* buffer, int size) { return ReadName(0, buffer, size); }
int PrinterHandles::DeviceName(char* buffer, int size) { return ReadName(1, buffer, size); }
int PrinterHandles::OutputPort(char* buffer, int size) { return ReadName(2, buffer, size); }

HDC PrinterHandles::CreatePrinterDc() {
    // The three names one after another in one buffer, each in what is left of it.
    char names[128] = {};
    char* driver = names;
    const int driverLength = DriverName(driver, 128);
    if (driverLength < 1) return nullptr;
    char* device = driver + std::strlen(driver) + 1;
    const int deviceLength = DeviceName(device, static_cast<int>(names + 128 - device));
    if (deviceLength < 1) return nullptr;
    char* port = device + std::strlen(device) + 1;
    if (port >= names + 128 || OutputPort(port, static_cast<int>(names + 128 - port)) < 1)
        return nullptr;
    auto* mode = static_cast<DEVMODEA*>(::GlobalLock(devMode_));
    if (mode == nullptr) return nullptr;
    HDC printer = ::CreateDCA(driver, device, port, mode);
    ::GlobalUnlock(devMode_);
    return printer;
}

PrinterHandles& ThePrinter() {
    static PrinterHandles printer;
    return printer;
}

} // namespace rhomba
