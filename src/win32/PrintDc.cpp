#include "win32/PrintDc.h"

#include "export/PrintJob.h"
#include "win32/GdiDevice.h"

namespace rhomba {

bool PrintOnPrinterDc(Document& document, HDC printer) {
    if (printer == nullptr) return false;
    GdiDevice device(printer);
    return RunPrintJob(document, device);
}

} // namespace rhomba
