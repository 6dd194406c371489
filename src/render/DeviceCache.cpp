#include "render/DeviceCache.h"

#include "render/DevicePath.h"

#include <algorithm>
#include <tuple>

namespace rhomba {

namespace {

DeviceCache g_cache;
PathOutputMode g_mode = PathOutputMode::PolyDraw;

constexpr double kLogicalPerPoint = 20.0;

// Four pattern bytes from first on as one word, the first in the low byte.
std::uint32_t DashWord(const DashDot& dash, std::size_t first) {
    std::uint32_t word = 0;
    for (std::size_t i = 4; i-- > 0;) word = word << 8 | dash[first + i];
    return word;
}

} // namespace

void SelectReplacing(Device& device, GdiHandle object) {
    const GdiHandle old = device.SelectObject(object);
    if (old != 0) device.DeleteObject(old);
}

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
    const std::uint32_t low = DashWord(dash, 0), high = DashWord(dash, 4);
    // A solid pen matches whatever pattern the cached one had.
    if (color == g_cache.penColor && width == g_cache.penWidth && count == g_cache.dashCount &&
        (count == 0 || (low == g_cache.dashLow && high == g_cache.dashHigh))) {
        return;
    }
    std::tie(g_cache.penColor, g_cache.penWidth, g_cache.dashCount, g_cache.dashLow,
             g_cache.dashHigh) = std::tuple(color, width, count, low, high);
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
    auto cached = std::tie(g_cache.fontFace, g_cache.fontHeight, g_cache.fontBold,
                           g_cache.fontItalic, g_cache.fontEscapement);
    const auto wanted = std::tie(name, height, bold, italic, escapementValue);
    if (cached == wanted) return;
    cached = wanted;

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
