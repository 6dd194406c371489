#pragma once

#include "model/Types.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace rhomba {

// A GDI object as the drawing code sees it: an opaque number, 0 for none.
using GdiHandle = std::uintptr_t;

// A point in the device's logical coordinates.
struct DevicePoint {
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend constexpr bool operator==(const DevicePoint&, const DevicePoint&) = default;
};

// The GDI constants the drawing code passes through, with GDI's values.
namespace gdi {
inline constexpr int kPsSolid = 0;
inline constexpr int kPsDot = 2;
inline constexpr int kPsNull = 5;
inline constexpr std::uint32_t kPsUserStyle = 7;
inline constexpr std::uint32_t kPsGeometric = 0x10000;
inline constexpr std::uint32_t kBsSolid = 0;
inline constexpr int kR2Not = 6;
inline constexpr int kR2CopyPen = 13;
inline constexpr int kMmText = 1;
inline constexpr int kMmAnisotropic = 8;
inline constexpr unsigned kTaBaseline = 24;
inline constexpr int kTransparent = 1;
inline constexpr int kHorzRes = 8;
inline constexpr int kVertRes = 10;
inline constexpr int kLogPixelsX = 88;
inline constexpr int kLogPixelsY = 90;
inline constexpr int kStartDoc = 10;
inline constexpr int kGetPhysPageSize = 12;
inline constexpr int kGetPrintingOffset = 13;
} // namespace gdi

enum class StockObject {
    NullPen,
    BlackPen,
    NullBrush,
    BlackBrush,
    WhiteBrush,
    AnsiFixedFont,
};

// The logical-font record handed to CreateFontIndirect; the face is Windows-1252 bytes of at
// most 31 characters.
struct LogFont {
    std::int32_t height = 0;
    std::int32_t width = 0;
    std::int32_t escapement = 0;
    std::int32_t orientation = 0;
    std::int32_t weight = 0;
    std::uint8_t italic = 0;
    std::uint8_t underline = 0;
    std::uint8_t strikeOut = 0;
    std::uint8_t charSet = 0;
    std::uint8_t outPrecision = 0;
    std::uint8_t clipPrecision = 0;
    std::uint8_t quality = 0;
    std::uint8_t pitchAndFamily = 0;
    std::string faceName;
};

// The brush description of ExtCreatePen.
struct LogBrush {
    std::uint32_t style = gdi::kBsSolid;
    ColorRef color = 0;
    std::uintptr_t hatch = 0;
};

// The GDI operations drawing uses, with GDI's semantics: objects are created, selected (the
// selection returns the object it replaced), and deleted by the caller; paths are bracketed by
// BeginPath/EndPath; PolyDraw takes PT_* type bytes. Implemented on an HDC on Windows and by a
// recording device in the tests.
class Device {
public:
    virtual ~Device() = default;

    virtual GdiHandle CreatePen(int style, int width, ColorRef color) = 0;
    virtual GdiHandle ExtCreatePen(std::uint32_t style, std::uint32_t width, const LogBrush& brush,
                                   std::span<const std::uint32_t> entries) = 0;
    virtual GdiHandle CreateSolidBrush(ColorRef color) = 0;
    virtual GdiHandle CreateLogFont(const LogFont& font) = 0;
    virtual GdiHandle GetStockObject(StockObject object) = 0;
    // Returns the object of the same kind that was selected before.
    virtual GdiHandle SelectObject(GdiHandle object) = 0;
    virtual bool DeleteObject(GdiHandle object) = 0;

    virtual void BeginPath() = 0;
    virtual void EndPath() = 0;
    virtual void StrokeAndFillPath() = 0;
    virtual void FillPath() = 0;
    virtual void StrokePath() = 0;
    virtual void PolyDraw(std::span<const DevicePoint> points,
                          std::span<const std::uint8_t> types) = 0;
    virtual void MoveTo(int x, int y) = 0;
    virtual void LineTo(int x, int y) = 0;
    // Three points per curve: two controls and the end.
    virtual void PolyBezierTo(std::span<const DevicePoint> points) = 0;
    virtual void CloseFigure() = 0;
    virtual void Rectangle(int left, int top, int right, int bottom) = 0;
    virtual void Ellipse(int left, int top, int right, int bottom) = 0;

    // Return the previous value.
    virtual int SetROP2(int mode) = 0;
    virtual ColorRef SetTextColor(ColorRef color) = 0;
    virtual void SetTextAlign(unsigned align) = 0;
    virtual void SetBkMode(int mode) = 0;
    virtual void TextOutW(int x, int y, const std::u16string& text) = 0;

    virtual void SetMapMode(int mode) = 0;
    virtual void SetWindowExt(int cx, int cy) = 0;
    virtual void SetViewportExt(int cx, int cy) = 0;
    virtual void SetWindowOrg(int x, int y) = 0;

    // Printer side. StartDocument is the STARTDOC escape with the spooler name; a negative result
    // means the job cannot start. PrinterPoint answers GETPRINTINGOFFSET and GETPHYSPAGESIZE.
    virtual int StartDocument(const std::string& name) = 0;
    virtual DevicePoint PrinterPoint(int escape) = 0;
    virtual int GetDeviceCaps(int index) = 0;
    virtual void StartPage() = 0;
    virtual void EndPage() = 0;
    virtual void EndDoc() = 0;
};

// Restores what a helper replaced and deletes what it created, so no path leaks a pen.
class SelectedObject {
public:
    SelectedObject(Device& device, GdiHandle object, bool owned)
        : device_(device), object_(object), owned_(owned), previous_(device.SelectObject(object)) {}
    ~SelectedObject() {
        device_.SelectObject(previous_);
        if (owned_) device_.DeleteObject(object_);
    }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

private:
    Device& device_;
    GdiHandle object_;
    bool owned_;
    GdiHandle previous_;
};

} // namespace rhomba
