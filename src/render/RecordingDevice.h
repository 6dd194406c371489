#pragma once

#include "render/Device.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace rhomba {

// A Device that writes each call as one line of text, for tests that check call sequences.
// It keeps GDI's object bookkeeping (what is selected, what is alive) even with recording
// switched off, which leaves only the cost of the drawing code itself (benchmarks).
//
// Objects are named in the log: stock objects by their GDI name (NULL_PEN, BLACK_BRUSH, ...),
// created ones by kind and number (pen1, brush2, font3). Colours are written as 0x%06X.
class RecordingDevice : public Device {
public:
    explicit RecordingDevice(bool recording = true) : recording_(recording) {}

    void SetRecording(bool on) { recording_ = on; }
    const std::vector<std::string>& Calls() const { return calls_; }
    void ClearCalls() { calls_.clear(); }
    // The calls whose name (first word) is name.
    std::vector<std::string> CallsNamed(const std::string& name) const;
    std::size_t CountNamed(const std::string& name) const;

    // Objects created and not yet deleted.
    std::size_t LiveObjects() const { return kinds_.size(); }
    std::string NameOf(GdiHandle object) const;
    std::string SelectedPen() const { return NameOf(pen_); }
    std::string SelectedBrush() const { return NameOf(brush_); }
    std::string SelectedFont() const { return NameOf(font_); }
    int Rop2() const { return rop2_; }

    // What the printer side answers.
    int startDocResult = 1;
    DevicePoint printingOffset{};
    DevicePoint physicalPageSize{};
    std::unordered_map<int, int> deviceCaps;

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
    void PolyDraw(std::span<const DevicePoint> points, std::span<const std::uint8_t> types) override;
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
    enum class Kind : std::uint8_t { Pen, Brush, Font };
    static constexpr GdiHandle kSystemFont = 7;
    static constexpr GdiHandle kFirstCreated = 16;

    GdiHandle Create(Kind kind);
    bool KindOf(GdiHandle object, Kind& kind) const;
    void Log(std::string line);

    bool recording_;
    std::vector<std::string> calls_;
    std::unordered_map<GdiHandle, Kind> kinds_;
    GdiHandle next_ = kFirstCreated;
    GdiHandle pen_ = 2;    // BLACK_PEN, as in a fresh device context
    GdiHandle brush_ = 5;  // WHITE_BRUSH
    GdiHandle font_ = kSystemFont;
    int rop2_ = gdi::kR2CopyPen;
    ColorRef textColor_ = 0;
};

} // namespace rhomba
