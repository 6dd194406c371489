#pragma once

#include "render/Device.h"

#include <cstdint>
#include <span>
#include <string>

namespace rhomba {

// The values last handed to the device pass, shared by all device contexts of the process so
// that a drawing of many equal objects creates each pen, brush and font once.
// Note: before the first reset every value is zero, so a black, solid, zero-width pen matches
// and selects nothing. The reset face "Arial " has a trailing blank so that it never equals a
// real face.
struct DeviceCache {
    std::uint32_t penColor = 0;
    std::uint32_t penWidth = 0;
    std::uint32_t dashCount = 0;
    std::uint32_t dashLow = 0;   // pattern bytes 0..3
    std::uint32_t dashHigh = 0;  // pattern bytes 4..7
    std::uint32_t brushColor = 0;
    std::uint32_t textColor = 0;
    std::string fontFace;
    std::int32_t fontHeight = 0;
    bool fontBold = false;
    bool fontItalic = false;
    double fontEscapement = 0.0;
};

// How the device pass hands a path to GDI.
enum class PathOutputMode : std::uint8_t {
    PolyDraw = 0,
    ExplicitPath = 1,
    ExplicitSegments = 2,
};

inline constexpr std::uint32_t kCacheInvalid = 0xFFFFFFFF;

DeviceCache& TheDeviceCache();
// The reset values an EMF export starts from.
void ResetDeviceCache();
// Note: set to ExplicitPath by the EMF export and never set back for the rest of the run.
PathOutputMode GetPathOutputMode();
void SetPathOutputMode(PathOutputMode mode);
// Back to the all-zero cache and PolyDraw mode of a fresh process; for tests and benchmarks.
void RestoreProcessStartDeviceState();

// Selects object and deletes whatever it replaced: the cache keeps values, never handles.
void SelectReplacing(Device& device, GdiHandle object);

// Device pass helpers; widths and dash lengths in points, 20 logical units per point.
void SelectDevicePen(Device& device, ColorRef color, double penWidth, const DashDot& dash,
                     int dashCount);
void SelectDeviceBrush(Device& device, ColorRef color);
// Invalidates a valid pen cache and selects the stock null pen.
void SelectDeviceNullPen(Device& device);
// Escapement in tenths of a degree; an empty face becomes "Arial".
void SelectDeviceFont(Device& device, const std::string& face, double size, int escapement,
                      bool bold, bool italic);
// SetTextColor only when the colour differs from the cached one.
void SetDeviceTextColor(Device& device, ColorRef color);

// The user-style entries of a dash pattern (count 2, 4, 6 or 8 entries used) at scale logical
// units per pattern unit; rounded so that the running sums never drift and no entry is below 1.
int BuildDashEntries(const DashDot& pattern, int count, double scale, std::uint32_t* entries);
// An ExtCreatePen pen (geometric, user style, round caps and joins) of that pattern.
GdiHandle CreateDashPen(Device& device, int width, ColorRef color, int count,
                        const DashDot& pattern, double scale);

} // namespace rhomba
