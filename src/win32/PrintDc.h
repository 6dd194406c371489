#pragma once

#include <windows.h>

namespace rhomba {

class Document;

// Runs the print job on a printer context made by the printer selection; false when the
// spooler refused the document.
bool PrintOnPrinterDc(Document& document, HDC printer);

} // namespace rhomba
