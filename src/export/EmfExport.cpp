#include "export/EmfExport.h"

#include "model/Document.h"
#include "render/DeviceCache.h"

namespace rhomba {

Rect2 DocumentBoundsForDevice(Document& document) {
    Rect2 box;
    // An empty drawing keeps the empty-box marker; its offsets would be absurd, so it is taken
    // as a box at the origin.
    if (!document.GetBounds(box, false) || box.left > box.right || box.bottom > box.top) {
        box = {0, 0, 0, 0};
    }
    return box;
}

Matrix2D EmfViewMatrix(const Rect2& bounds) {
    return {20, 0, 0, -20, 20 - 20 * bounds.left, 20 * bounds.top + 20};
}

void RenderEmf(Device& metafile, Document& document) {
    const Rect2 bounds = DocumentBoundsForDevice(document);
    // Note: a frame rectangle (the box x 20, width and height x 1.8) used to be derived here,
    // but the metafile has always been created without one and GDI computes its own frame.
    ResetDeviceCache();
    SetPathOutputMode(PathOutputMode::ExplicitPath);

    // 15 logical units (a point is 20) make one pixel of a 96 dpi reference.
    metafile.SetMapMode(gdi::kMmAnisotropic);
    metafile.SetWindowExt(15, 15);
    metafile.SetViewportExt(1, 1);
    metafile.SetTextAlign(gdi::kTaBaseline);
    metafile.SetBkMode(gdi::kTransparent);

    document.Render(metafile, EmfViewMatrix(bounds));

    SelectReplacing(metafile, metafile.GetStockObject(StockObject::BlackPen));
    SelectReplacing(metafile, metafile.GetStockObject(StockObject::WhiteBrush));
    SelectReplacing(metafile, metafile.GetStockObject(StockObject::AnsiFixedFont));
}

} // namespace rhomba
