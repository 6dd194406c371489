#pragma once

#include "geometry/Point2.h"
#include "model/PathObject.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace rhomba {

// The record vocabulary of a native glyph outline.
namespace glyph {
inline constexpr std::size_t kHeaderSize = 16;   // cb, dwType, pfxStart
inline constexpr std::size_t kCurveHeadSize = 4; // wType, cpfx
inline constexpr std::size_t kPointSize = 8;     // two FIXED values
inline constexpr std::uint32_t kPolygonType = 24; // TT_POLYGON_TYPE
inline constexpr std::uint16_t kPrimLine = 1;
inline constexpr std::uint16_t kPrimQSpline = 2;
inline constexpr std::uint16_t kPrimCSpline = 3;
// The factor of the single cubic that stands for a quadratic run of n points: 0.68 * (n - 1).
inline constexpr double kQSplineFactor = 0.68;
} // namespace glyph

// Appends the figures of one glyph's records to out, shifted by (penX, 0); returns the number
// of figures. Each figure starts with a move to the header's start point and is closed after its
// last curve.
// Note: the precisions are the system's own and decide the shape of every text: line points and
// start points keep only the integer part of their FIXED coordinates, quadratic runs take the
// fraction over 65535.0 and become one cubic each (controls S + (Q - S) t and E + (R - E) t with
// t = 0.68 (n - 1)), cubic runs give one Bezier per three points.
// Records that run past the end of the buffer end the walk; what was read before stays.
int AppendGlyphFigures(std::span<const std::uint8_t> records, double penX, PathObject& out);

// Writers for hand-built or converted record buffers (the FreeType source, tests).
class GlyphRecordWriter {
public:
    explicit GlyphRecordWriter(std::vector<std::uint8_t>& out) : out_(out) {}
    // Opens a polygon; its byte count is patched when the next one starts or at Finish.
    void BeginPolygon(std::int32_t startX16, std::int32_t startY16);
    // A curve record of the given type; points are 16.16 fixed values.
    void Curve(std::uint16_t type, std::span<const std::int32_t> xy16);
    void Finish();

private:
    void Put16(std::uint16_t v);
    void Put32(std::uint32_t v);

    std::vector<std::uint8_t>& out_;
    std::size_t polygonStart_ = SIZE_MAX;
};

} // namespace rhomba
