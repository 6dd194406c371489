// The drawing code through real GDI: a small drawing painted into a DIB section and checked
// pixel by pixel.
#include "model/Document.h"
#include "render/DeviceCache.h"
#include "render/DrawContext.h"
#include "support/Paths.h"
#include "win32/GdiDevice.h"

#include <gtest/gtest.h>

namespace rhomba::test {
namespace {

constexpr int kSize = 100;

// A top-down 32-bit DIB section selected into a memory context, cleared to white.
class Bitmap {
public:
    Bitmap() {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, kSize, -kSize, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        dc_ = ::CreateCompatibleDC(nullptr);
        bitmap_ = ::CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits_, nullptr, 0);
        old_ = ::SelectObject(dc_, bitmap_);
        RECT all{0, 0, kSize, kSize};
        ::FillRect(dc_, &all, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    }
    ~Bitmap() {
        ::SelectObject(dc_, old_);
        ::DeleteObject(bitmap_);
        ::DeleteDC(dc_);
    }
    HDC Dc() const { return dc_; }
    // 0xRRGGBB of the pixels at (50, 50), on the left and top edges, outside, and at (90, 10).
    std::vector<std::uint32_t> Probe() const {
        ::GdiFlush();
        std::vector<std::uint32_t> seen;
        for (auto [x, y] : {std::pair{50, 50}, {20, 50}, {50, 20}, {5, 5}, {90, 10}})
            seen.push_back(static_cast<const std::uint32_t*>(bits_)[y * kSize + x] & 0xFFFFFF);
        return seen;
    }

private:
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ old_;
    void* bits_ = nullptr;
};

// Layer 0: a red square with a thick black edge. Layer 1, hidden: a blue square in the corner.
// One point is one pixel, y up from the bottom edge.
TEST(RenderGdi, EditingLeavesHiddenLayersOutRenderingDrawsThemAndTheCanvasCopiesInOneStep) {
    RestoreProcessStartDeviceState();
    Document document;
    PathObject* red = Add(document, Square(20, 20, 60));
    red->SetFillColor(0x0000FF);
    red->SetPenWidth(4); // 4 x 1.7639 x zoom 0.5 = 3.5, four pixels on the screen
    document.NewLayer("verborgen", "v");
    PathObject* blue = Add(document, Square(84, 84, 12));
    blue->SetFillColor(0xFF0000);
    blue->SetStroke(false);
    document.ClearSelection();
    const Matrix2D view{1, 0, 0, -1, 0, kSize};
    {
        Bitmap target;
        OffscreenCanvas canvas(target.Dc(), kSize, kSize);
        GdiDevice device(canvas.Dc());
        document.DrawEdit(device, {view, document.view.zoom}, 0);
        // Nothing reaches the window before the copy.
        EXPECT_EQ(target.Probe(), (std::vector<std::uint32_t>(5, 0xFFFFFF)));
        canvas.Present();
        EXPECT_EQ(target.Probe(), (std::vector<std::uint32_t>{0xFF0000, 0, 0, 0xFFFFFF, 0xFFFFFF}));
    }
    Bitmap bitmap;
    GdiDevice device(bitmap.Dc());
    RestoreProcessStartDeviceState();
    SetPathOutputMode(PathOutputMode::ExplicitPath);
    red->SetPenWidth(0.1); // two logical units at 20 per point
    document.Render(device, view);
    const auto rendered = bitmap.Probe();
    EXPECT_EQ(rendered[0], 0xFF0000u);
    EXPECT_EQ(rendered[3], 0xFFFFFFu);
    EXPECT_EQ(rendered[4], 0x0000FFu) << "hidden layer, rendered";
    // The cache deleted what it replaced; the last pen and brush are still selected.
    const GdiHandle pen = device.SelectObject(device.GetStockObject(StockObject::BlackPen));
    EXPECT_NE(pen, 0u);
    device.DeleteObject(pen);
    device.DeleteObject(device.SelectObject(device.GetStockObject(StockObject::WhiteBrush)));
    RestoreProcessStartDeviceState();
}

} // namespace
} // namespace rhomba::test
