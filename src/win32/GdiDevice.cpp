#include "win32/GdiDevice.h"

#include "model/Windows1252.h"

#include <vector>

namespace rhomba {

namespace {

static_assert(sizeof(DevicePoint) == sizeof(POINT), "DevicePoint must match POINT");

HGDIOBJ Gdi(GdiHandle object) { return reinterpret_cast<HGDIOBJ>(object); }
GdiHandle Handle(HGDIOBJ object) { return reinterpret_cast<GdiHandle>(object); }
const POINT* Points(std::span<const DevicePoint> points) {
    return reinterpret_cast<const POINT*>(points.data());
}

} // namespace

GdiHandle GdiDevice::CreatePen(int style, int width, ColorRef color) {
    return Handle(::CreatePen(style, width, color));
}

GdiHandle GdiDevice::ExtCreatePen(std::uint32_t style, std::uint32_t width,
                                  const LogBrush& brush, std::span<const std::uint32_t> entries) {
    LOGBRUSH lb{};
    lb.lbStyle = brush.style;
    lb.lbColor = brush.color;
    lb.lbHatch = brush.hatch;
    std::vector<DWORD> styles(entries.begin(), entries.end());
    return Handle(::ExtCreatePen(style, width, &lb, static_cast<DWORD>(styles.size()),
                                 styles.empty() ? nullptr : styles.data()));
}

GdiHandle GdiDevice::CreateSolidBrush(ColorRef color) {
    return Handle(::CreateSolidBrush(color));
}

GdiHandle GdiDevice::CreateLogFont(const LogFont& font) {
    LOGFONTW lf{};
    lf.lfHeight = font.height;
    lf.lfWidth = font.width;
    lf.lfEscapement = font.escapement;
    lf.lfOrientation = font.orientation;
    lf.lfWeight = font.weight;
    lf.lfItalic = font.italic;
    lf.lfUnderline = font.underline;
    lf.lfStrikeOut = font.strikeOut;
    lf.lfCharSet = font.charSet;
    lf.lfOutPrecision = font.outPrecision;
    lf.lfClipPrecision = font.clipPrecision;
    lf.lfQuality = font.quality;
    lf.lfPitchAndFamily = font.pitchAndFamily;
    const std::u16string face = Cp1252ToUtf16(font.faceName);
    for (std::size_t i = 0; i < face.size() && i < LF_FACESIZE - 1; ++i) {
        lf.lfFaceName[i] = static_cast<wchar_t>(face[i]);
    }
    return Handle(::CreateFontIndirectW(&lf));
}

GdiHandle GdiDevice::GetStockObject(StockObject object) {
    int id = NULL_PEN;
    switch (object) {
    case StockObject::NullPen: id = NULL_PEN; break;
    case StockObject::BlackPen: id = BLACK_PEN; break;
    case StockObject::NullBrush: id = NULL_BRUSH; break;
    case StockObject::BlackBrush: id = BLACK_BRUSH; break;
    case StockObject::WhiteBrush: id = WHITE_BRUSH; break;
    case StockObject::AnsiFixedFont: id = ANSI_FIXED_FONT; break;
    }
    return Handle(::GetStockObject(id));
}

GdiHandle GdiDevice::SelectObject(GdiHandle object) {
    return Handle(::SelectObject(dc_, Gdi(object)));
}

bool GdiDevice::DeleteObject(GdiHandle object) { return ::DeleteObject(Gdi(object)) != 0; }

void GdiDevice::BeginPath() { ::BeginPath(dc_); }
void GdiDevice::EndPath() { ::EndPath(dc_); }
void GdiDevice::StrokeAndFillPath() { ::StrokeAndFillPath(dc_); }
void GdiDevice::FillPath() { ::FillPath(dc_); }
void GdiDevice::StrokePath() { ::StrokePath(dc_); }

void GdiDevice::PolyDraw(std::span<const DevicePoint> points,
                         std::span<const std::uint8_t> types) {
    const std::size_t n = points.size() < types.size() ? points.size() : types.size();
    if (n == 0) return;
    ::PolyDraw(dc_, Points(points), types.data(), static_cast<int>(n));
}

void GdiDevice::MoveTo(int x, int y) { ::MoveToEx(dc_, x, y, nullptr); }
void GdiDevice::LineTo(int x, int y) { ::LineTo(dc_, x, y); }

void GdiDevice::PolyBezierTo(std::span<const DevicePoint> points) {
    ::PolyBezierTo(dc_, Points(points), static_cast<DWORD>(points.size() / 3 * 3));
}

void GdiDevice::CloseFigure() { ::CloseFigure(dc_); }
void GdiDevice::Rectangle(int left, int top, int right, int bottom) {
    ::Rectangle(dc_, left, top, right, bottom);
}
void GdiDevice::Ellipse(int left, int top, int right, int bottom) {
    ::Ellipse(dc_, left, top, right, bottom);
}

int GdiDevice::SetROP2(int mode) { return ::SetROP2(dc_, mode); }
ColorRef GdiDevice::SetTextColor(ColorRef color) { return ::SetTextColor(dc_, color); }
void GdiDevice::SetTextAlign(unsigned align) { ::SetTextAlign(dc_, align); }
void GdiDevice::SetBkMode(int mode) { ::SetBkMode(dc_, mode); }

void GdiDevice::TextOutW(int x, int y, const std::u16string& text) {
    ::TextOutW(dc_, x, y, reinterpret_cast<const wchar_t*>(text.c_str()),
               static_cast<int>(text.size()));
}

void GdiDevice::SetMapMode(int mode) { ::SetMapMode(dc_, mode); }
void GdiDevice::SetWindowExt(int cx, int cy) { ::SetWindowExtEx(dc_, cx, cy, nullptr); }
void GdiDevice::SetViewportExt(int cx, int cy) { ::SetViewportExtEx(dc_, cx, cy, nullptr); }
void GdiDevice::SetWindowOrg(int x, int y) { ::SetWindowOrgEx(dc_, x, y, nullptr); }

int GdiDevice::StartDocument(const std::string& name) {
    return ::Escape(dc_, STARTDOC, static_cast<int>(name.size()), name.c_str(), nullptr);
}

DevicePoint GdiDevice::PrinterPoint(int escape) {
    POINT p{0, 0};
    ::Escape(dc_, escape, 0, nullptr, &p);
    return {p.x, p.y};
}

int GdiDevice::GetDeviceCaps(int index) { return ::GetDeviceCaps(dc_, index); }
void GdiDevice::StartPage() { ::StartPage(dc_); }
void GdiDevice::EndPage() { ::EndPage(dc_); }
void GdiDevice::EndDoc() { ::EndDoc(dc_); }

OffscreenCanvas::OffscreenCanvas(HDC target, int width, int height)
    : target_(target), width_(width > 0 ? width : 1), height_(height > 0 ? height : 1) {
    dc_ = ::CreateCompatibleDC(target);
    bitmap_ = ::CreateCompatibleBitmap(target, width_, height_);
    oldBitmap_ = ::SelectObject(dc_, bitmap_);
    RECT all{0, 0, width_, height_};
    ::FillRect(dc_, &all, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
}

OffscreenCanvas::~OffscreenCanvas() {
    ::SelectObject(dc_, oldBitmap_);
    ::DeleteObject(bitmap_);
    ::DeleteDC(dc_);
}

void OffscreenCanvas::Present() {
    ::BitBlt(target_, 0, 0, width_, height_, dc_, 0, 0, SRCCOPY);
}

} // namespace rhomba
