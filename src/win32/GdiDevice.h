#pragma once

#include "render/Device.h"

#include <windows.h>

namespace rhomba {

// The device port on a GDI device context; the context stays the caller's.
class GdiDevice : public Device {
public:
    explicit GdiDevice(HDC dc) : dc_(dc) {}
    HDC Dc() const { return dc_; }

    GdiHandle CreatePen(int style, int width, ColorRef color) override;
    GdiHandle ExtCreatePen(std::uint32_t style, std::uint32_t width, const LogBrush& brush,
                           std::span<const std::uint32_t> entries) override;
    GdiHandle CreateSolidBrush(ColorRef color) override;
    GdiHandle CreateLogFont(const LogFont& font) override;
    GdiHandle GetStockObject(StockObject object) override;
    GdiHandle SelectObject(GdiHandle object) override;
    bool DeleteObject(GdiHandle object) override;

    void BeginPath() override;
    void EndPath() override;
    void StrokeAndFillPath() override;
    void FillPath() override;
    void StrokePath() override;
    void PolyDraw(std::span<const DevicePoint> points,
                  std::span<const std::uint8_t> types) override;
    void MoveTo(int x, int y) override;
    void LineTo(int x, int y) override;
    void PolyBezierTo(std::span<const DevicePoint> points) override;
    void CloseFigure() override;
    void Rectangle(int left, int top, int right, int bottom) override;
    void Ellipse(int left, int top, int right, int bottom) override;

    int SetROP2(int mode) override;
    ColorRef SetTextColor(ColorRef color) override;
    void SetTextAlign(unsigned align) override;
    void SetBkMode(int mode) override;
    void TextOutW(int x, int y, const std::u16string& text) override;

    void SetMapMode(int mode) override;
    void SetWindowExt(int cx, int cy) override;
    void SetViewportExt(int cx, int cy) override;
    void SetWindowOrg(int x, int y) override;

    int StartDocument(const std::string& name) override;
    DevicePoint PrinterPoint(int escape) override;
    int GetDeviceCaps(int index) override;
    void StartPage() override;
    void EndPage() override;
    void EndDoc() override;

private:
    HDC dc_;
};

// A white off-screen bitmap of the client size that is painted into and then copied onto the
// window in one step, so a repaint never flickers.
class OffscreenCanvas {
public:
    OffscreenCanvas(HDC target, int width, int height);
    ~OffscreenCanvas();
    OffscreenCanvas(const OffscreenCanvas&) = delete;
    OffscreenCanvas& operator=(const OffscreenCanvas&) = delete;

    HDC Dc() const { return dc_; }
    // Copies the picture onto the target.
    void Present();

private:
    HDC target_;
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ oldBitmap_;
    int width_, height_;
};

} // namespace rhomba
