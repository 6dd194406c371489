#include "render/DeviceCache.h"

#include "render/DevicePath.h"

#include <algorithm>
#include <cstring>

namespace rhomba {

namespace {

DeviceCache g_cache;
PathOutputMode g_mode = PathOutputMode::PolyDraw;

constexpr double kLogicalPerPoint = 20.0;

void SplitDashWords(const DashDot& dash, std::uint32_t& low, std::uint32_t& high) {
    low = static_cast<std::uint32_t>(dash[0]) | static_cast<std::uint32_t>(dash[1]) << 8 |
          static_cast<std::uint32_t>(dash[2]) << 16 | static_cast<std::uint32_t>(dash[3]) << 24;
    high = static_cast<std::uint32_t>(dash[4]) | static_cast<std::uint32_t>(dash[5]) << 8 |
           static_cast<std::uint32_t>(dash[6]) << 16 | static_cast<std::uint32_t>(dash[7]) << 24;
}

// Selects object and deletes whatever it replaced: the cache keeps values, never handles.
void SelectReplacing(Device& device, GdiHandle object) {
    const GdiHandle old = device.SelectObject(object);
    if (old != 0) device.DeleteObject(old);
}

} // namespace

DeviceCache& TheDeviceCache() { return g_cache; }

void ResetDeviceCache() {
    g_cache.penColor = kCacheInvalid;
    g_cache.penWidth = kCacheInvalid;
    g_cache.dashCount = kCacheInvalid;
    g_cache.dashLow = kCacheInvalid;
    g_cache.dashHigh = kCacheInvalid;
    g_cache.brushColor = kCacheInvalid;
    g_cache.textColor = kCacheInvalid;
    g_cache.fontFace = "Arial ";
    g_cache.fontHeight = 87654321;
    g_cache.fontBold = false;
    g_cache.fontItalic = false;
    g_cache.fontEscapement = 0.0;
}

PathOutputMode GetPathOutputMode() { return g_mode; }
void SetPathOutputMode(PathOutputMode mode) { g_mode = mode; }

void RestoreProcessStartDeviceState() {
    g_cache = DeviceCache{};
    g_mode = PathOutputMode::PolyDraw;
}

void SelectDevicePen(Device& device, ColorRef color, double penWidth, const DashDot& dash,
                     int dashCount) {
    const auto width = static_cast<std::uint32_t>(DeviceRound(penWidth * kLogicalPerPoint));
    const auto count = static_cast<std::uint32_t>(dashCount);
    std::uint32_t low = 0, high = 0;
    SplitDashWords(dash, low, high);
    if (color == g_cache.penColor && width == g_cache.penWidth && count == g_cache.dashCount &&
        (count == 0 || (low == g_cache.dashLow && high == g_cache.dashHigh))) {
        return;
    }
    g_cache.penColor = color;
    g_cache.penWidth = width;
    g_cache.dashCount = count;
    g_cache.dashLow = low;
    g_cache.dashHigh = high;
    const GdiHandle pen =
        count == 0 ? device.CreatePen(gdi::kPsSolid, static_cast<int>(width), color)
                   : CreateDashPen(device, static_cast<int>(width), color, dashCount, dash,
                                   kLogicalPerPoint);
    SelectReplacing(device, pen);
}

void SelectDeviceBrush(Device& device, ColorRef color) {
    if (color == g_cache.brushColor) return;
    g_cache.brushColor = color;
    SelectReplacing(device, device.CreateSolidBrush(color));
}

void SelectDeviceNullPen(Device& device) {
    if (g_cache.penColor == kCacheInvalid) return;
    g_cache.penColor = kCacheInvalid;
    SelectReplacing(device, device.GetStockObject(StockObject::NullPen));
}

void SelectDeviceFont(Device& device, const std::string& face, double size, int escapement,
                      bool bold, bool italic) {
    const std::string& name = face.empty() ? std::string("Arial") : face;
    const std::int32_t height = DeviceRound(size * kLogicalPerPoint);
    const double escapementValue = escapement;
    if (name == g_cache.fontFace && height == g_cache.fontHeight && bold == g_cache.fontBold &&
        italic == g_cache.fontItalic && escapementValue == g_cache.fontEscapement) {
        return;
    }
    g_cache.fontFace = name;
    g_cache.fontHeight = height;
    g_cache.fontBold = bold;
    g_cache.fontItalic = italic;
    g_cache.fontEscapement = escapementValue;

    LogFont font;
    font.height = -height;
    font.escapement = escapement;
    font.weight = bold ? 700 : 400;
    font.italic = italic ? 1 : 0;
    font.quality = 2;
    font.pitchAndFamily = 2;
    // 32 characters with the last one forced to zero leave 31 of the name.
    font.faceName = name.substr(0, 31);
    const std::size_t nul = font.faceName.find('\0');
    if (nul != std::string::npos) font.faceName.resize(nul);
    SelectReplacing(device, device.CreateLogFont(font));
}

void SetDeviceTextColor(Device& device, ColorRef color) {
    if (color == g_cache.textColor) return;
    g_cache.textColor = color;
    device.SetTextColor(color);
}

int BuildDashEntries(const DashDot& pattern, int count, double scale, std::uint32_t* entries) {
    const int n = std::clamp(count, 0, 8);
    double exactSum = 0;
    long long madeSum = 0;
    for (int i = 0; i < n; ++i) {
        exactSum += pattern[static_cast<std::size_t>(i)] * scale;
        const long long target = DeviceRound(exactSum);
        // Raising or lowering the rounded length one by one until the running sum meets the
        // rounded exact sum ends exactly here, whatever the length rounded to.
        long long entry = target - madeSum;
        entry = std::max(entry, 1LL);
        madeSum += entry;
        entries[i] = static_cast<std::uint32_t>(entry);
    }
    return n;
}

GdiHandle CreateDashPen(Device& device, int width, ColorRef color, int count,
                        const DashDot& pattern, double scale) {
    std::uint32_t entries[8] = {};
    const int n = BuildDashEntries(pattern, count, scale, entries);
    LogBrush brush;
    brush.style = gdi::kBsSolid;
    brush.color = color;
    return device.ExtCreatePen(gdi::kPsGeometric | gdi::kPsUserStyle,
                               static_cast<std::uint32_t>(std::max(width, 1)), brush,
                               std::span<const std::uint32_t>(entries, static_cast<std::size_t>(n)));
}

} // namespace rhomba
