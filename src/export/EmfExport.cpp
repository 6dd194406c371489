#include "export/EmfExport.h"

#include "model/Document.h"
#include "render/DeviceCache.h"

#include <cctype>
#include <string_view>

namespace rhomba {

namespace {

bool EqualsNoCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(a[i])) !=
            std::tolower(static_cast<unsigned char>(b[i]))) {
            return false;
        }
    }
    return true;
}

void SelectStockReplacing(Device& device, StockObject object) {
    const GdiHandle old = device.SelectObject(device.GetStockObject(object));
    if (old != 0) device.DeleteObject(old);
}

} // namespace

std::string ProposeEmfFileName(const std::string& documentFileName) {
    if (documentFileName.empty()) return "Grafik.emf";
    std::string name = documentFileName;
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos) return name;
    const std::string_view extension = std::string_view(name).substr(dot);
    if (EqualsNoCase(extension, ".rhomba") || EqualsNoCase(extension, ".iso") ||
        EqualsNoCase(extension, ".pad")) {
        name.resize(dot + 1);
        name += "emf";
    }
    return name;
}

std::string CompleteEmfFileName(const std::string& typedName) {
    const std::size_t slash = typedName.find_last_of("\\/");
    const std::size_t start = slash == std::string::npos ? 0 : slash + 1;
    if (typedName.find('.', start) == std::string::npos) return typedName + ".emf";
    return typedName;
}

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

    SelectStockReplacing(metafile, StockObject::BlackPen);
    SelectStockReplacing(metafile, StockObject::WhiteBrush);
    SelectStockReplacing(metafile, StockObject::AnsiFixedFont);
}

} // namespace rhomba
