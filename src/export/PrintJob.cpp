#include "export/PrintJob.h"

#include "model/Document.h"
#include "render/DrawContext.h"

namespace rhomba {

std::string PrintDocumentName(const Document& document) {
    return document.GetFileName().empty() ? "Neue Graphic.rhomba" : document.GetFileName();
}

PrintMetrics ReadPrintMetrics(Device& printer) {
    const DevicePoint offset = printer.PrinterPoint(gdi::kGetPrintingOffset);
    const DevicePoint page = printer.PrinterPoint(gdi::kGetPhysPageSize);
    auto atLeastOne = [](int v) { return v < 1 ? 1 : v; };
    const int horzRes = atLeastOne(printer.GetDeviceCaps(gdi::kHorzRes));
    const int vertRes = atLeastOne(printer.GetDeviceCaps(gdi::kVertRes));
    PrintMetrics m;
    m.dpiX = atLeastOne(printer.GetDeviceCaps(gdi::kLogPixelsX));
    m.dpiY = atLeastOne(printer.GetDeviceCaps(gdi::kLogPixelsY));
    auto points = [&](int pixels) { return pixels / static_cast<double>(m.dpiX) * 72.0; };
    m.offsetX = points(offset.x);
    m.offsetY = points(offset.y);
    m.pageWidth = points(page.x);
    m.pageHeight = points(page.y);
    m.printableWidth = points(horzRes);
    m.printableHeight = points(vertRes);
    m.marginRight = m.pageWidth - m.offsetX - m.printableWidth;
    m.marginBottom = m.pageHeight - m.offsetY - m.printableHeight;
    return m;
}

bool RunPrintJob(Document& document, Device& printer) {
    if (printer.StartDocument(PrintDocumentName(document)) < 0) return false;
    const PrintMetrics m = ReadPrintMetrics(printer);
    printer.StartPage();
    printer.SetMapMode(gdi::kMmAnisotropic);
    printer.SetWindowExt(72 * m.dpiX, 72 * m.dpiX);
    printer.SetViewportExt(m.dpiX, m.dpiY);
    printer.SetWindowOrg(0, static_cast<int>(-m.printableHeight * m.dpiY));
    const double scale = m.dpiX;
    // Note: screen pens keep the canvas zoom on paper too; existing prints depend on it.
    document.DrawEdit(printer, {Matrix2D::Scaling(scale, -scale), document.view.zoom}, 0);
    printer.EndPage();
    printer.EndDoc();
    return true;
}

} // namespace rhomba
