#include "text/GlyphRecords.h"

#include <vector>

namespace rhomba {

namespace {

std::uint16_t Read16(const std::uint8_t* p) {
    return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
}

std::uint32_t Read32(const std::uint8_t* p) {
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
           (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

// A FIXED is a 16-bit fraction followed by a signed 16-bit integer part.
double IntegerPart(const std::uint8_t* fixed) {
    return static_cast<std::int16_t>(Read16(fixed + 2));
}

double WithFraction(const std::uint8_t* fixed) {
    return static_cast<std::int16_t>(Read16(fixed + 2)) + Read16(fixed) / 65535.0;
}

Point2 IntegerPoint(const std::uint8_t* p) { return {IntegerPart(p), IntegerPart(p + 4)}; }
Point2 FractionPoint(const std::uint8_t* p) { return {WithFraction(p), WithFraction(p + 4)}; }

struct Figures {
    std::vector<Point2> points;
    std::vector<NodeType> types;

    void Add(Point2 p, NodeType t) {
        points.push_back(p);
        types.push_back(t);
    }
};

// Walks the curve records of one polygon, between begin and end.
void WalkCurves(const std::uint8_t* at, const std::uint8_t* end, Figures& figures) {
    while (end - at >= static_cast<std::ptrdiff_t>(glyph::kCurveHeadSize)) {
        const std::uint16_t type = Read16(at);
        const std::size_t count = Read16(at + 2);
        const std::uint8_t* pts = at + glyph::kCurveHeadSize;
        if (static_cast<std::size_t>(end - pts) < count * glyph::kPointSize) return;
        switch (type) {
        case glyph::kPrimLine:
            for (std::size_t i = 0; i < count; ++i) {
                figures.Add(IntegerPoint(pts + i * glyph::kPointSize), node::kLineTo);
            }
            break;
        case glyph::kPrimQSpline:
            if (count > 0) {
                const Point2 s = figures.points.back();
                const Point2 q = FractionPoint(pts);
                const Point2 e = FractionPoint(pts + (count - 1) * glyph::kPointSize);
                const Point2 r =
                    count >= 2 ? FractionPoint(pts + (count - 2) * glyph::kPointSize) : e;
                const double t = glyph::kQSplineFactor * static_cast<double>(count - 1);
                figures.Add(s + (q - s) * t, node::kBezierTo);
                figures.Add(e + (r - e) * t, node::kBezierTo);
                figures.Add(e, node::kBezierTo);
            }
            break;
        case glyph::kPrimCSpline:
            for (std::size_t i = 0; i + 3 <= count; i += 3) {
                for (std::size_t k = 0; k < 3; ++k) {
                    figures.Add(IntegerPoint(pts + (i + k) * glyph::kPointSize),
                                node::kBezierTo);
                }
            }
            break;
        default:
            break; // an unknown record is stepped over
        }
        at = pts + count * glyph::kPointSize;
    }
}

} // namespace

int AppendGlyphFigures(std::span<const std::uint8_t> records, double penX, PathObject& out) {
    Figures figures;
    figures.points.reserve(records.size() / glyph::kPointSize + 8);
    figures.types.reserve(records.size() / glyph::kPointSize + 8);
    int count = 0;

    const std::uint8_t* at = records.data();
    const std::uint8_t* const end = records.data() + records.size();
    while (end - at >= static_cast<std::ptrdiff_t>(glyph::kHeaderSize)) {
        const std::uint32_t cb = Read32(at);
        // A byte count that cannot hold its own header or runs past the buffer ends the walk.
        if (cb < glyph::kHeaderSize || cb > static_cast<std::size_t>(end - at)) break;
        const std::size_t moveIndex = figures.points.size();
        figures.Add(IntegerPoint(at + 8), node::kMoveTo);
        WalkCurves(at + glyph::kHeaderSize, at + cb, figures);
        if (figures.points.size() == moveIndex + 1) {
            // A start point without curves draws nothing.
            figures.points.pop_back();
            figures.types.pop_back();
        } else {
            figures.types.back() |= node::kCloseFigure;
            ++count;
        }
        at += cb;
    }

    // Appended glyph by glyph, the nodes grow geometrically: reserving the exact size for each
    // glyph would copy the whole outline every time.
    for (std::size_t i = 0; i < figures.points.size(); ++i) {
        const Point2 p = figures.points[i];
        out.AddNode({p.x + penX, p.y}, figures.types[i]);
    }
    return count;
}

void GlyphRecordWriter::Put16(std::uint16_t v) {
    out_.push_back(static_cast<std::uint8_t>(v));
    out_.push_back(static_cast<std::uint8_t>(v >> 8));
}

void GlyphRecordWriter::Put32(std::uint32_t v) {
    Put16(static_cast<std::uint16_t>(v));
    Put16(static_cast<std::uint16_t>(v >> 16));
}

void GlyphRecordWriter::BeginPolygon(std::int32_t startX16, std::int32_t startY16) {
    Finish();
    polygonStart_ = out_.size();
    Put32(0);
    Put32(glyph::kPolygonType);
    Put32(static_cast<std::uint32_t>(startX16));
    Put32(static_cast<std::uint32_t>(startY16));
}

void GlyphRecordWriter::Curve(std::uint16_t type, std::span<const std::int32_t> xy16) {
    Put16(type);
    Put16(static_cast<std::uint16_t>(xy16.size() / 2));
    for (std::size_t i = 0; i + 1 < xy16.size(); i += 2) {
        Put32(static_cast<std::uint32_t>(xy16[i]));
        Put32(static_cast<std::uint32_t>(xy16[i + 1]));
    }
}

void GlyphRecordWriter::Finish() {
    if (polygonStart_ == SIZE_MAX) return;
    const auto cb = static_cast<std::uint32_t>(out_.size() - polygonStart_);
    for (int k = 0; k < 4; ++k) {
        out_[polygonStart_ + k] = static_cast<std::uint8_t>(cb >> (8 * k));
    }
    polygonStart_ = SIZE_MAX;
}

} // namespace rhomba
