#include "render/RecordingDevice.h"

#include <cstdio>

namespace rhomba {

namespace {

const char* const kStockNames[] = {"NULL_PEN",    "BLACK_PEN",   "NULL_BRUSH",
                                   "BLACK_BRUSH", "WHITE_BRUSH", "ANSI_FIXED_FONT"};

std::string Colour(ColorRef color) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%06X", static_cast<unsigned>(color));
    return text;
}

std::string Ints(std::initializer_list<long long> values) {
    std::string out;
    for (long long v : values) out += ' ' + std::to_string(v);
    return out;
}

std::string PointText(DevicePoint p) {
    return std::to_string(p.x) + ',' + std::to_string(p.y);
}

} // namespace

std::vector<std::string> RecordingDevice::CallsNamed(const std::string& name) const {
    std::vector<std::string> out;
    for (const std::string& call : calls_) {
        if (call.compare(0, call.find(' '), name) == 0) out.push_back(call);
    }
    return out;
}

std::size_t RecordingDevice::CountNamed(const std::string& name) const {
    return CallsNamed(name).size();
}

std::string RecordingDevice::NameOf(GdiHandle object) const {
    if (object >= 1 && object <= 6) return kStockNames[object - 1];
    if (object == kSystemFont) return "SYSTEM_FONT";
    Kind kind;
    if (!KindOf(object, kind)) return object == 0 ? "null" : "dead" + std::to_string(object);
    const char* prefix = kind == Kind::Pen ? "pen" : kind == Kind::Brush ? "brush" : "font";
    return prefix + std::to_string(object - kFirstCreated + 1);
}

GdiHandle RecordingDevice::Create(Kind kind) {
    const GdiHandle handle = next_++;
    kinds_.emplace(handle, kind);
    return handle;
}

bool RecordingDevice::KindOf(GdiHandle object, Kind& kind) const {
    if (object >= 1 && object <= 2) {
        kind = Kind::Pen;
    } else if (object >= 3 && object <= 5) {
        kind = Kind::Brush;
    } else if (object == 6 || object == kSystemFont) {
        kind = Kind::Font;
    } else {
        const auto it = kinds_.find(object);
        if (it == kinds_.end()) return false;
        kind = it->second;
    }
    return true;
}

void RecordingDevice::Log(std::string line) { calls_.push_back(std::move(line)); }

GdiHandle RecordingDevice::CreatePen(int style, int width, ColorRef color) {
    const GdiHandle h = Create(Kind::Pen);
    if (recording_) Log("CreatePen" + Ints({style, width}) + ' ' + Colour(color) + " -> " + NameOf(h));
    return h;
}

GdiHandle RecordingDevice::ExtCreatePen(std::uint32_t style, std::uint32_t width,
                                        const LogBrush& brush,
                                        std::span<const std::uint32_t> entries) {
    const GdiHandle h = Create(Kind::Pen);
    if (recording_) {
        char head[64];
        std::snprintf(head, sizeof head, "ExtCreatePen 0x%X %u ", style, width);
        std::string line = head + Colour(brush.color) + " [";
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (i) line += ',';
            line += std::to_string(entries[i]);
        }
        Log(line + "] -> " + NameOf(h));
    }
    return h;
}

GdiHandle RecordingDevice::CreateSolidBrush(ColorRef color) {
    const GdiHandle h = Create(Kind::Brush);
    if (recording_) Log("CreateSolidBrush " + Colour(color) + " -> " + NameOf(h));
    return h;
}

GdiHandle RecordingDevice::CreateLogFont(const LogFont& f) {
    const GdiHandle h = Create(Kind::Font);
    if (recording_) {
        Log("CreateFont" + Ints({f.height, f.width, f.escapement, f.orientation, f.weight,
                                 f.italic, f.underline, f.strikeOut, f.charSet, f.outPrecision,
                                 f.clipPrecision, f.quality, f.pitchAndFamily}) +
            " '" + f.faceName + "' -> " + NameOf(h));
    }
    return h;
}

GdiHandle RecordingDevice::GetStockObject(StockObject object) {
    return static_cast<GdiHandle>(object) + 1;
}

GdiHandle RecordingDevice::SelectObject(GdiHandle object) {
    Kind kind;
    if (!KindOf(object, kind)) {
        if (recording_) Log("SelectObject " + NameOf(object) + " failed");
        return 0;
    }
    GdiHandle& slot = kind == Kind::Pen ? pen_ : kind == Kind::Brush ? brush_ : font_;
    const GdiHandle old = slot;
    slot = object;
    if (recording_) Log("SelectObject " + NameOf(object));
    return old;
}

bool RecordingDevice::DeleteObject(GdiHandle object) {
    if (recording_) Log("DeleteObject " + NameOf(object));
    // Stock objects ignore deletion, as in GDI; a selected object cannot be deleted either.
    if (object == pen_ || object == brush_ || object == font_) return false;
    return kinds_.erase(object) != 0;
}

void RecordingDevice::BeginPath() { if (recording_) Log("BeginPath"); }
void RecordingDevice::EndPath() { if (recording_) Log("EndPath"); }
void RecordingDevice::StrokeAndFillPath() { if (recording_) Log("StrokeAndFillPath"); }
void RecordingDevice::FillPath() { if (recording_) Log("FillPath"); }
void RecordingDevice::StrokePath() { if (recording_) Log("StrokePath"); }

void RecordingDevice::PolyDraw(std::span<const DevicePoint> points,
                               std::span<const std::uint8_t> types) {
    if (!recording_) return;
    std::string line = "PolyDraw";
    for (std::size_t i = 0; i < points.size() && i < types.size(); ++i) {
        line += ' ' + PointText(points[i]) + ':' + std::to_string(types[i]);
    }
    Log(line);
}

void RecordingDevice::MoveTo(int x, int y) { if (recording_) Log("MoveTo" + Ints({x, y})); }
void RecordingDevice::LineTo(int x, int y) { if (recording_) Log("LineTo" + Ints({x, y})); }

void RecordingDevice::PolyBezierTo(std::span<const DevicePoint> points) {
    if (!recording_) return;
    std::string line = "PolyBezierTo";
    for (DevicePoint p : points) line += ' ' + PointText(p);
    Log(line);
}

void RecordingDevice::CloseFigure() { if (recording_) Log("CloseFigure"); }

void RecordingDevice::Rectangle(int left, int top, int right, int bottom) {
    if (recording_) Log("Rectangle" + Ints({left, top, right, bottom}));
}

void RecordingDevice::Ellipse(int left, int top, int right, int bottom) {
    if (recording_) Log("Ellipse" + Ints({left, top, right, bottom}));
}

int RecordingDevice::SetROP2(int mode) {
    if (recording_) Log("SetROP2" + Ints({mode}));
    const int old = rop2_;
    rop2_ = mode;
    return old;
}

ColorRef RecordingDevice::SetTextColor(ColorRef color) {
    if (recording_) Log("SetTextColor " + Colour(color));
    const ColorRef old = textColor_;
    textColor_ = color;
    return old;
}

void RecordingDevice::SetTextAlign(unsigned align) {
    if (recording_) Log("SetTextAlign" + Ints({align}));
}

void RecordingDevice::SetBkMode(int mode) { if (recording_) Log("SetBkMode" + Ints({mode})); }

void RecordingDevice::TextOutW(int x, int y, const std::u16string& text) {
    if (!recording_) return;
    std::string shown;
    for (char16_t c : text) {
        if (c >= 0x20 && c < 0x7F) {
            shown += static_cast<char>(c);
        } else {
            char esc[8];
            std::snprintf(esc, sizeof esc, "\\u%04X", static_cast<unsigned>(c));
            shown += esc;
        }
    }
    Log("TextOutW" + Ints({x, y}) + " '" + shown + "'");
}

void RecordingDevice::SetMapMode(int mode) { if (recording_) Log("SetMapMode" + Ints({mode})); }
void RecordingDevice::SetWindowExt(int cx, int cy) {
    if (recording_) Log("SetWindowExt" + Ints({cx, cy}));
}
void RecordingDevice::SetViewportExt(int cx, int cy) {
    if (recording_) Log("SetViewportExt" + Ints({cx, cy}));
}
void RecordingDevice::SetWindowOrg(int x, int y) {
    if (recording_) Log("SetWindowOrg" + Ints({x, y}));
}

int RecordingDevice::StartDocument(const std::string& name) {
    if (recording_) Log("StartDoc '" + name + "' " + std::to_string(name.size()));
    return startDocResult;
}

DevicePoint RecordingDevice::PrinterPoint(int escape) {
    if (recording_) Log("Escape" + Ints({escape}));
    if (escape == gdi::kGetPrintingOffset) return printingOffset;
    if (escape == gdi::kGetPhysPageSize) return physicalPageSize;
    return {};
}

int RecordingDevice::GetDeviceCaps(int index) {
    if (recording_) Log("GetDeviceCaps" + Ints({index}));
    const auto it = deviceCaps.find(index);
    return it == deviceCaps.end() ? 0 : it->second;
}

void RecordingDevice::StartPage() { if (recording_) Log("StartPage"); }
void RecordingDevice::EndPage() { if (recording_) Log("EndPage"); }
void RecordingDevice::EndDoc() { if (recording_) Log("EndDoc"); }

} // namespace rhomba
