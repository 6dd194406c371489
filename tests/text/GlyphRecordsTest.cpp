#include "text/GlyphRecords.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace rhomba {
namespace {

// value + fract / 65536 as a 16.16 number.
constexpr std::int32_t Fx(int value, std::uint16_t fract = 0) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value) << 16 | fract);
}

struct Walked {
    std::unique_ptr<PathObject> path = std::make_unique<PathObject>();
    int figures = 0;
};

Walked Walk(const std::vector<std::uint8_t>& bytes, double penX = 0) {
    Walked w;
    w.figures = AppendGlyphFigures(bytes, penX, *w.path);
    return w;
}

TEST(GlyphRecordsTest, ReadsTheRawLayoutAndKeepsOnlyIntegerPartsOfLines) {
    // One polygon by hand: cb 28, type 24, start (10.75, -2.5), a line record with one point
    // (30.5, 40.25). FIXED is the fraction word first, then the signed integer word.
    const std::vector<std::uint8_t> bytes = {
        28, 0, 0, 0,  24, 0, 0, 0,                 // cb, dwType
        0x00, 0xC0, 10, 0,  0x00, 0x80, 0xFD, 0xFF, // start x = 10 + .75, y = -3 + .5
        1, 0, 1, 0,                                 // TT_PRIM_LINE, one point
        0x00, 0x80, 30, 0,  0x00, 0x40, 40, 0,      // (30.5, 40.25)
    };
    const Walked w = Walk(bytes, 100);
    ASSERT_EQ(w.figures, 1);
    ASSERT_EQ(w.path->NodeCount(), 2u);
    EXPECT_EQ(w.path->PointAt(0), (Point2{110, -3}));
    EXPECT_EQ(w.path->TypeAt(0), node::kMoveTo);
    EXPECT_EQ(w.path->PointAt(1), (Point2{130, 40}));
    EXPECT_EQ(w.path->TypeAt(1), node::kLineTo | node::kCloseFigure);
}

TEST(GlyphRecordsTest, QuadraticRunBecomesOneCubicWithFractionsOver65535) {
    std::vector<std::uint8_t> bytes;
    GlyphRecordWriter writer(bytes);
    writer.BeginPolygon(Fx(0), Fx(0));
    // Two points: control (100, 200), end (200.5, 0).
    const std::int32_t run[] = {Fx(100), Fx(200), Fx(200, 0x8000), Fx(0)};
    writer.Curve(glyph::kPrimQSpline, run);
    writer.Finish();

    const Walked w = Walk(bytes);
    ASSERT_EQ(w.path->NodeCount(), 4u);
    const double endX = 200 + 32768 / 65535.0;
    const double t = 0.68;
    EXPECT_DOUBLE_EQ(w.path->PointAt(1).x, 100 * t);
    EXPECT_DOUBLE_EQ(w.path->PointAt(1).y, 200 * t);
    EXPECT_DOUBLE_EQ(w.path->PointAt(2).x, endX + (100 - endX) * t);
    EXPECT_DOUBLE_EQ(w.path->PointAt(2).y, 200 * t);
    EXPECT_EQ(w.path->PointAt(3), (Point2{endX, 0}));
    EXPECT_EQ(w.path->TypeAt(1), node::kBezierTo);
    EXPECT_EQ(w.path->TypeAt(3), node::kBezierTo | node::kCloseFigure);
}

TEST(GlyphRecordsTest, LongQuadraticRunUsesFirstSecondLastAndLastPoint) {
    std::vector<std::uint8_t> bytes;
    GlyphRecordWriter writer(bytes);
    writer.BeginPolygon(Fx(10), Fx(10));
    writer.Curve(glyph::kPrimLine, std::vector<std::int32_t>{Fx(20), Fx(10)});
    // Four points: Q = (30, 20), (40, 40), R = (50, 60), E = (60, 60); S is the line's end.
    const std::int32_t run[] = {Fx(30), Fx(20), Fx(40), Fx(40), Fx(50), Fx(60), Fx(60), Fx(60)};
    writer.Curve(glyph::kPrimQSpline, run);
    writer.Finish();

    const Walked w = Walk(bytes);
    ASSERT_EQ(w.path->NodeCount(), 5u);
    const double t = 0.68 * 3;
    EXPECT_DOUBLE_EQ(w.path->PointAt(2).x, 20 + (30 - 20) * t);
    EXPECT_DOUBLE_EQ(w.path->PointAt(2).y, 10 + (20 - 10) * t);
    EXPECT_DOUBLE_EQ(w.path->PointAt(3).x, 60 + (50 - 60) * t);
    EXPECT_DOUBLE_EQ(w.path->PointAt(3).y, 60 + (60 - 60) * t);
    EXPECT_EQ(w.path->PointAt(4), (Point2{60, 60}));
}

TEST(GlyphRecordsTest, CubicRunGivesOneBezierPerThreePointsWithIntegerParts) {
    std::vector<std::uint8_t> bytes;
    GlyphRecordWriter writer(bytes);
    writer.BeginPolygon(Fx(0), Fx(0));
    const std::int32_t run[] = {Fx(1, 0xFFFF), Fx(2), Fx(3), Fx(4), Fx(5), Fx(6),
                                Fx(7), Fx(8), Fx(9), Fx(10), Fx(11), Fx(12, 0x8000)};
    writer.Curve(glyph::kPrimCSpline, run);
    writer.Finish();

    const Walked w = Walk(bytes);
    ASSERT_EQ(w.path->NodeCount(), 7u);
    EXPECT_EQ(w.path->PointAt(1), (Point2{1, 2}));
    EXPECT_EQ(w.path->PointAt(6), (Point2{11, 12}));
    for (std::size_t i = 1; i < 6; ++i) EXPECT_EQ(w.path->TypeAt(i), node::kBezierTo);
    EXPECT_EQ(w.path->TypeAt(6), node::kBezierTo | node::kCloseFigure);
}

TEST(GlyphRecordsTest, EveryContourIsItsOwnClosedFigure) {
    std::vector<std::uint8_t> bytes;
    GlyphRecordWriter writer(bytes);
    writer.BeginPolygon(Fx(0), Fx(0));
    writer.Curve(glyph::kPrimLine, std::vector<std::int32_t>{Fx(10), Fx(0), Fx(10), Fx(10)});
    writer.BeginPolygon(Fx(2), Fx(2));
    writer.Curve(glyph::kPrimLine, std::vector<std::int32_t>{Fx(8), Fx(2)});
    writer.Curve(glyph::kPrimLine, std::vector<std::int32_t>{Fx(8), Fx(8)});
    writer.Finish();

    PathObject path;
    path.AddNode({-5, -5}, node::kMoveTo);
    path.AddNode({-4, -5}, node::kLineTo);
    EXPECT_EQ(AppendGlyphFigures(bytes, 50, path), 2);
    const std::vector<NodeType> expected = {
        node::kMoveTo, node::kLineTo, node::kMoveTo, node::kLineTo, node::kLineTo | 1,
        node::kMoveTo, node::kLineTo, node::kLineTo | 1};
    EXPECT_EQ(path.Types(), expected);
    EXPECT_EQ(path.PointAt(5), (Point2{52, 2}));
    EXPECT_EQ(path.PointAt(7), (Point2{58, 8}));
}

TEST(GlyphRecordsTest, DamagedRecordsEndTheWalkWithoutReadingPastTheBuffer) {
    std::vector<std::uint8_t> good;
    GlyphRecordWriter writer(good);
    writer.BeginPolygon(Fx(0), Fx(0));
    writer.Curve(glyph::kPrimLine, std::vector<std::int32_t>{Fx(10), Fx(0)});
    writer.BeginPolygon(Fx(0), Fx(0));
    writer.Curve(glyph::kPrimLine, std::vector<std::int32_t>{Fx(20), Fx(0)});
    writer.Finish();

    // The second polygon claims more bytes than there are: the first still counts.
    std::vector<std::uint8_t> longCount = good;
    longCount[28] = 0xFF;
    EXPECT_EQ(Walk(longCount).figures, 1);

    // A curve claims more points than its polygon holds: that polygon has no curves.
    std::vector<std::uint8_t> manyPoints = good;
    manyPoints[18] = 0x40;
    const Walked w = Walk(manyPoints);
    EXPECT_EQ(w.figures, 1);
    EXPECT_EQ(w.path->NodeCount(), 2u);

    // A byte count below the header size and a cut-off buffer.
    std::vector<std::uint8_t> tiny = good;
    tiny[0] = 4;
    EXPECT_EQ(Walk(tiny).figures, 0);
    EXPECT_EQ(Walk(std::vector<std::uint8_t>(good.begin(), good.begin() + 20)).figures, 0);
    EXPECT_EQ(Walk({}).path->NodeCount(), 0u);
}

TEST(GlyphRecordsTest, UnknownCurveTypeIsSteppedOver) {
    std::vector<std::uint8_t> bytes;
    GlyphRecordWriter writer(bytes);
    writer.BeginPolygon(Fx(0), Fx(0));
    writer.Curve(7, std::vector<std::int32_t>{Fx(99), Fx(99)});
    writer.Curve(glyph::kPrimLine, std::vector<std::int32_t>{Fx(5), Fx(5)});
    writer.Finish();
    const Walked w = Walk(bytes);
    ASSERT_EQ(w.path->NodeCount(), 2u);
    EXPECT_EQ(w.path->PointAt(1), (Point2{5, 5}));
}

} // namespace
} // namespace rhomba
