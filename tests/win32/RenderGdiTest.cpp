// The drawing code through real GDI: a small drawing painted into a DIB section and checked
// pixel by pixel.
#include "model/Document.h"
#include "model/PathObject.h"
#include "render/DeviceCache.h"
#include "render/DrawContext.h"
#include "win32/GdiDevice.h"

#include <gtest/gtest.h>

#include <memory>

namespace rhomba {
namespace {

constexpr int kSize = 100;

// A top-down 32-bit DIB section selected into a memory context, cleared to white.
class Bitmap {
public:
    Bitmap() {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = kSize;
        info.bmiHeader.biHeight = -kSize;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        info.bmiHeader.biCompression = BI_RGB;
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
    // 0xRRGGBB of a pixel.
    std::uint32_t At(int x, int y) const {
        ::GdiFlush();
        return static_cast<const std::uint32_t*>(bits_)[y * kSize + x] & 0xFFFFFF;
    }

private:
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ old_;
    void* bits_ = nullptr;
};

std::unique_ptr<PathObject> Square(double x0, double y0, double x1, double y1) {
    auto path = std::make_unique<PathObject>();
    path->AddNode({x0, y0}, node::kMoveTo);
    path->AddNode({x1, y0}, node::kLineTo);
    path->AddNode({x1, y1}, node::kLineTo);
    path->AddNode({x0, y1}, node::kLineTo | node::kCloseFigure);
    return path;
}

class RenderGdi : public ::testing::Test {
protected:
    void SetUp() override {
        RestoreProcessStartDeviceState();
        // Layer 0: a red square with a thick black edge. Layer 1, hidden: a blue square.
        auto* red = static_cast<PathObject*>(document.AddObject(Square(20, 20, 80, 80)));
        red->SetFillColor(0x0000FF);
        red->SetPenWidth(4);  // 4 x 1.7639 x zoom 0.5 = 3.5, four pixels on the screen
        document.NewLayer("verborgen", "v");
        auto* blue = static_cast<PathObject*>(document.AddObject(Square(84, 84, 96, 96)));
        blue->SetFillColor(0xFF0000);
        blue->SetStroke(false);
        document.ClearSelection();
    }
    void TearDown() override { RestoreProcessStartDeviceState(); }

    Document document;
    // One point is one pixel, y up from the bottom edge.
    const Matrix2D view{1, 0, 0, -1, 0, kSize};
};

TEST_F(RenderGdi, DrawEditFillsStrokesAndLeavesHiddenLayersOut) {
    Bitmap bitmap;
    GdiDevice device(bitmap.Dc());
    document.DrawEdit(device, {view, document.view.zoom}, 0);
    EXPECT_EQ(bitmap.At(50, 50), 0xFF0000u) << "fill inside";
    EXPECT_EQ(bitmap.At(20, 50), 0x000000u) << "stroke on the left edge";
    EXPECT_EQ(bitmap.At(50, 20), 0x000000u) << "stroke on the top edge";
    EXPECT_EQ(bitmap.At(5, 5), 0xFFFFFFu) << "outside";
    EXPECT_EQ(bitmap.At(90, 10), 0xFFFFFFu) << "hidden layer";
}

TEST_F(RenderGdi, RenderDrawsHiddenLayersToo) {
    Bitmap bitmap;
    GdiDevice device(bitmap.Dc());
    ResetDeviceCache();
    SetPathOutputMode(PathOutputMode::ExplicitPath);
    document.LayerAt(0).ChildAt(0)->SetPenWidth(0.1);  // two logical units at 20 per point
    document.Render(device, view);
    EXPECT_EQ(bitmap.At(50, 50), 0xFF0000u);
    EXPECT_EQ(bitmap.At(90, 10), 0x0000FFu) << "hidden layer, rendered";
    EXPECT_EQ(bitmap.At(5, 5), 0xFFFFFFu);
    // The cache deleted what it replaced; the last pen and brush are still selected.
    const GdiHandle pen = device.SelectObject(device.GetStockObject(StockObject::BlackPen));
    EXPECT_NE(pen, 0u);
    device.DeleteObject(pen);
    device.DeleteObject(device.SelectObject(device.GetStockObject(StockObject::WhiteBrush)));
}

TEST_F(RenderGdi, OffscreenCanvasCopiesInOneStep) {
    Bitmap target;
    {
        OffscreenCanvas canvas(target.Dc(), kSize, kSize);
        GdiDevice device(canvas.Dc());
        document.DrawEdit(device, {view, document.view.zoom}, 0);
        EXPECT_EQ(target.At(50, 50), 0xFFFFFFu) << "nothing reaches the window before the copy";
        canvas.Present();
    }
    EXPECT_EQ(target.At(50, 50), 0xFF0000u);
}

} // namespace
} // namespace rhomba
