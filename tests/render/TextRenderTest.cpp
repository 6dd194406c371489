#include "model/TextObject.h"
#include "render/DrawContext.h"
#include "render/DrawFlags.h"
#include "render/TextDraw.h"
#include "text/GlyphSource.h"
#include "support/RenderTest.h"

namespace rhomba::test {
namespace {

class TextRender : public RenderTest {
protected:
    void SetUp() override {
        RenderTest::SetUp();
        ResetDeviceCache();
    }
};

TEST(TextColour, HalfFillPlusStrokeWrapsPerChannel) {
    EXPECT_EQ(MixTextColour(0x0000FF, 0x0000FF), 0x00007Eu);
    EXPECT_EQ(MixTextColour(0x804020, 0x010203), 0x412213u);
    EXPECT_EQ(MixTextColour(0xFFFFFF, 0x818282), 0x000101u);
}

TEST(TextDirection, EscapementByQuadrant) {
    EXPECT_EQ(TextEscapement(Matrix2D{}), 0);
    EXPECT_EQ(TextEscapement(Matrix2D{0, -1, 1, 0, 0, 0}), 2700);
    EXPECT_EQ(TextEscapement(Matrix2D{0, 1, -1, 0, 0, 0}), 900);
    EXPECT_EQ(TextEscapement(Matrix2D{-1, 0, 0, -1, 0, 0}), 1800);
    EXPECT_EQ(TextEscapement(Matrix2D::Rotation(30)), 300);
    EXPECT_EQ(TextEscapement(Matrix2D{1, 1, 0, 1, 0, 0}), 450);
    EXPECT_EQ(TextEscapement(Matrix2D{-1, -1, 0, 1, 0, 0}), 2250);
    EXPECT_EQ(TextEscapement(Matrix2D{1, -0.5, 0, 1, 0, 0}), 3334);
}

TEST_F(TextRender, FontColourAndAnchor) {
    TextObject text;
    text.SetText("Gr\xFC\xDF");
    text.SetTextSize(10);
    text.SetBold(true);
    text.SetTextPosition(1, 2);
    text.SetTextTransform(0, -1, 1, 0);
    text.SetStroke(true);
    text.SetStrokeColor(0x0000FF);
    text.SetFillColor(0x0000FF);
    text.Render(device, Matrix2D{20, 0, 0, -20, 20, 100});
    EXPECT_EQ(device.Calls(),
              (Calls{"SetTextColor 0x00007E",
                     "CreateFont -200 0 2700 0 700 0 0 0 0 0 0 2 2 'Arial' -> font1",
                     "SelectObject font1", "DeleteObject SYSTEM_FONT",
                     "TextOutW 40 60 'Gr\\u00FC\\u00DF'"}));
}

TEST_F(TextRender, EqualTextsShareTheFontAndColour) {
    for (int i = 0; i < 10; ++i) {
        TextObject text;
        text.SetText("A");
        text.SetTextPosition(i, 0);
        text.Render(device, Matrix2D{});
    }
    EXPECT_EQ(device.CountNamed("CreateFont"), 1u);
    EXPECT_EQ(device.CallsNamed("SetTextColor"), (Calls{"SetTextColor 0x000000"}));
    EXPECT_EQ(device.CountNamed("TextOutW"), 10u);
}

TEST_F(TextRender, NothingForEmptyOrInvisibleTexts) {
    TextObject empty;
    empty.Render(device, Matrix2D{});
    TextObject invisible;
    invisible.SetText("x");
    invisible.SetFill(false);
    invisible.Render(device, Matrix2D{});
    EXPECT_TRUE(device.Calls().empty());

    TextObject strokeOnly;
    strokeOnly.SetText("x");
    strokeOnly.SetFill(false);
    strokeOnly.SetStroke(true);
    strokeOnly.SetStrokeColor(0x123456);
    strokeOnly.Render(device, Matrix2D{});
    EXPECT_EQ(device.CallsNamed("SetTextColor"), (Calls{"SetTextColor 0x123456"}));
}

// Every character is the same square of 500 units, drawn with straight lines.
class SquareGlyphs : public GlyphSource {
public:
    SquareGlyphs() {
        auto u16 = [&](unsigned v) {
            glyph_.records.push_back(static_cast<std::uint8_t>(v));
            glyph_.records.push_back(static_cast<std::uint8_t>(v >> 8));
        };
        auto u32 = [&](unsigned v) { u16(v & 0xFFFF); u16(v >> 16); };
        auto point = [&](int x, int y) {
            u16(0);
            u16(static_cast<unsigned>(x));
            u16(0);
            u16(static_cast<unsigned>(y));
        };
        u32(44);  // header and one curve of three points
        u32(24);  // TT_POLYGON_TYPE
        point(0, 0);
        u16(1);  // TT_PRIM_LINE
        u16(3);
        point(500, 0);
        point(500, 500);
        point(0, 500);
        glyph_.cellIncrementX = 600;
    }
    const Glyph* GetGlyph(const GlyphFace&, char16_t) override { return &glyph_; }

private:
    Glyph glyph_;
};

TEST_F(TextRender, ScreenDrawingGoesThroughTheOutline) {
    SquareGlyphs glyphs;
    InstallGlyphSource(&glyphs, false);
    TextObject text;
    text.SetText("A");
    text.SetTextSize(20);  // the square becomes 10 points
    text.SetTextPosition(100, 100);
    text.SetSelected(true);
    text.DrawEdit(device, {}, 0);
    InstallGlyphSource(nullptr);
    const Calls polys = device.CallsNamed("PolyDraw");
    // Only the fill: letters without stroke get no stroke pass, selected or not.
    ASSERT_EQ(polys.size(), 1u);
    EXPECT_EQ(polys[0].substr(0, 40), "PolyDraw 100,100:6 110,100:2 110,110:2 1");
    EXPECT_EQ(device.CallsNamed("CreateSolidBrush"), (Calls{"CreateSolidBrush 0x000000 -> brush1"}));
    EXPECT_EQ(device.LiveObjects(), 0u);

    device.ClearCalls();
    text.DrawEdit(device, {}, kDrawNodesOnly);
    EXPECT_GE(device.CountNamed("Rectangle"), 3u);
}

} // namespace
} // namespace rhomba::test
