#pragma once

#include "render/Device.h"

#include <string>

namespace rhomba {

class Document;

// The printer's page in points. Note: every length is divided by the horizontal resolution,
// the vertical ones too; exact for square printer pixels, and kept so.
struct PrintMetrics {
    int dpiX = 1;
    int dpiY = 1;
    double offsetX = 0, offsetY = 0;                 // non-printable left and top margins
    double pageWidth = 0, pageHeight = 0;            // physical page
    double printableWidth = 0, printableHeight = 0;  // HORZRES, VERTRES
    double marginRight = 0, marginBottom = 0;
};

// The spooler's name for the job: the file name, or "Neue Graphic.rhomba".
std::string PrintDocumentName(const Document& document);
PrintMetrics ReadPrintMetrics(Device& printer);

// Prints the drawing on one page at its own coordinates (one point is dpiX logical units,
// drawing y = 0 at the lower edge of the printable area) through DrawEdit without flags.
// False when the printer refused to start the document.
bool RunPrintJob(Document& document, Device& printer);

} // namespace rhomba
