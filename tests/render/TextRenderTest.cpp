#include "model/TextObject.h"
#include "render/TextDraw.h"
#include "RenderTestSupport.h"

namespace rhomba::test {
namespace {

using Calls = std::vector<std::string>;

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

} // namespace
} // namespace rhomba::test
