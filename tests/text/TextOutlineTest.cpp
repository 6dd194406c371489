#include "text/TextOutline.h"

#include "model/TextObject.h"
#include "text/GlyphSource.h"
#include "support/Allocations.h"
#include "support/BoxGlyphs.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace rhomba {
namespace {

using TextOutlineTest = test::BoxGlyphTest;

TEST_F(TextOutlineTest, LongTextsCostMemoryInProportion) {
    // Reserving glyph by glyph copied the outline for every glyph: a million characters never
    // finished. Grown geometrically, the bytes asked for stay a small multiple of the result.
    PathObject outline;
    const std::size_t before = test::AllocatedBytes();
    BuildGlyphOutlines(glyphs, TextFace("Arial", false, false), std::u16string(4000, u'A'), outline);
    EXPECT_LT(test::AllocatedBytes() - before, 50 * outline.NodeCount() * sizeof(Point2));
}

TEST_F(TextOutlineTest, SizeScalesTheThousandUnitOutlineAndBoundsFollow) {
    TextObject text;
    text.SetText("AB");
    text.SetTextPosition(100, 50);
    Rect2 box;
    ASSERT_TRUE(text.GetBounds(box, false));
    // Two boxes at 12/1000: 0..(600 + 500) wide, 700 high.
    EXPECT_DOUBLE_EQ(box.left, 100);
    EXPECT_DOUBLE_EQ(box.right, 100 + 1100 * 0.012);
    EXPECT_DOUBLE_EQ(box.bottom, 50);
    EXPECT_DOUBLE_EQ(box.top, 50 + 700 * 0.012);
    EXPECT_EQ(text.Outline().NodeCount(), 8u);
    EXPECT_DOUBLE_EQ(text.GetWidth(), 1200 / (1000 / 12.0));
    EXPECT_DOUBLE_EQ(text.GetEndPoint().x, 100 + 1200 * 0.012);
    EXPECT_DOUBLE_EQ(text.GetEndPoint().y, 50);
}

TEST_F(TextOutlineTest, TransformComesAfterTheSizeAndBeforeThePosition) {
    TextObject text;
    text.SetText("A");
    text.SetTextSize(1000);
    text.SetTextTransform(0, 1, -1, 0); // a quarter turn
    text.SetTextPosition(10, 20);
    text.RefreshOutline();
    const PathObject& outline = text.Outline();
    ASSERT_EQ(outline.NodeCount(), 4u);
    EXPECT_EQ(outline.PointAt(1), (Point2{10, 520}));  // (500, 0) turned
    EXPECT_EQ(outline.PointAt(2), (Point2{-690, 520})); // (500, 700) turned
    EXPECT_EQ(text.GetEndPoint(), (Point2{10, 620}));
    EXPECT_DOUBLE_EQ(text.GetWidth(), 600);
}

TEST_F(TextOutlineTest, TransformingTheTextTransformsItsOutline) {
    TextObject text;
    text.SetText("A A");
    text.SetTextSize(20);
    text.SetTextTransform(1, 0, 0.3, 1);
    text.SetTextPosition(40, -7);
    text.RefreshOutline();
    std::vector<Point2> expected;
    Matrix2D m = Matrix2D::Rotation(30);
    m.ThenScale(2, 0.5).ThenTranslate(11, 13);
    for (Point2 p : text.Outline().Points()) expected.push_back(m.TransformPoint(p));
    const Point2 end = m.TransformPoint(text.GetEndPoint());

    text.Transform(m);
    text.RefreshOutline();
    ASSERT_EQ(text.Outline().NodeCount(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(text.Outline().PointAt(i).x, expected[i].x, 1e-9);
        EXPECT_NEAR(text.Outline().PointAt(i).y, expected[i].y, 1e-9);
    }
    EXPECT_NEAR(text.GetEndPoint().x, end.x, 1e-9);
    EXPECT_NEAR(text.GetEndPoint().y, end.y, 1e-9);
}

TEST_F(TextOutlineTest, BlanksAdvanceAndMissingGlyphsAreSkipped) {
    TextObject text;
    text.SetText("A #A");
    text.SetTextSize(1000);
    text.RefreshOutline();
    ASSERT_EQ(text.Outline().NodeCount(), 8u);
    EXPECT_DOUBLE_EQ(text.Outline().PointAt(4).x, 850);
    EXPECT_DOUBLE_EQ(text.GetWidth(), 1450);
}

TEST_F(TextOutlineTest, OutlineIsRebuiltOnlyWhenAFieldReallyChanges) {
    TextObject text;
    text.SetText("AA");
    text.RefreshOutline();
    ASSERT_EQ(glyphs.requests.size(), 2u);

    text.SetText("AA");
    text.SetTextFont("Arial");
    text.SetTextSize(12);
    text.SetTextPosition(0, 0);
    text.SetBold(false);
    text.SetItalic(false);
    text.SetTextTransform(1, 0, 0, 1);
    Rect2 box;
    text.GetBounds(box, false);
    text.HitTest({0, 0}, 1);
    EXPECT_EQ(glyphs.requests.size(), 2u);

    text.SetBold(true);
    text.RefreshOutline();
    EXPECT_EQ(glyphs.requests.size(), 4u);
    EXPECT_TRUE(glyphs.faces.back().bold);
    text.Transform(Matrix2D::Translation(5, 5));
    text.RefreshOutline();
    EXPECT_EQ(glyphs.requests.size(), 6u);
    EXPECT_EQ(text.Outline().NodeCount(), 8u);
}

TEST_F(TextOutlineTest, BoundsAndHitsNeedTextAndAGlyphSource) {
    TextObject text;
    Rect2 box;
    EXPECT_FALSE(text.GetBounds(box, false));
    EXPECT_EQ(box, Rect2{});

    text.SetText("A");
    text.SetTextSize(100);
    text.SetTextPosition(10, 10);
    // The box's left edge runs from (10, 10) to (10, 80).
    EXPECT_EQ(text.HitTest({10.5, 40}, 1), &text);
    EXPECT_EQ(text.HitTest({-40, 40}, 1), nullptr);
    text.SetText("");
    EXPECT_FALSE(text.GetBounds(box, false));
    EXPECT_EQ(text.Outline().NodeCount(), 0u);
    EXPECT_EQ(text.HitTest({10.5, 40}, 5), nullptr);

    // Without a source the outline waits for one.
    InstallGlyphSource(nullptr);
    text.SetText("A");
    EXPECT_FALSE(text.GetBounds(box, false));
    InstallGlyphSource(&glyphs, false);
    EXPECT_TRUE(text.GetBounds(box, false));
    EXPECT_EQ(text.Outline().NodeCount(), 4u);
}

TEST_F(TextOutlineTest, TextBytesReachTheSourceAsUtf16AndStopAtZero) {
    TextObject text;
    text.SetText(std::string("\x80\xFC\x9Fz\0q", 6));
    text.SetTextFont("Some Face With A Name Longer Than Thirty-One Bytes");
    text.SetItalic(true);
    text.RefreshOutline();
    const std::vector<char16_t> expected = {0x20AC, 0x00FC, 0x0178, u'z'};
    EXPECT_EQ(glyphs.requests, expected);
    EXPECT_EQ(glyphs.faces.back().name.size(), kMaxFaceNameLength);
    EXPECT_TRUE(glyphs.faces.back().italic);
    EXPECT_EQ(Cp1252ToUtf8("\xE4\x80"), "\xC3\xA4\xE2\x82\xAC");
}

TEST_F(TextOutlineTest, CacheAsksThePlatformOncePerFaceStyleAndCharacter) {
    InstallGlyphSource(&glyphs, true);
    TextObject first;
    first.SetText("ABA\xE4");
    first.RefreshOutline();
    TextObject second;
    second.SetText("BA\xE4 #");
    second.RefreshOutline();
    second.RefreshOutline();
    EXPECT_EQ(glyphs.requests.size(), 5u); // A, B, ae, blank, #
    EXPECT_EQ(second.Outline().NodeCount(), 12u);
    EXPECT_DOUBLE_EQ(second.GetWidth(), 2050 * 0.012);

    second.SetBold(true);
    second.RefreshOutline();
    EXPECT_EQ(glyphs.requests.size(), 10u);
}

} // namespace
} // namespace rhomba
