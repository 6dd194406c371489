#include "export/SvgWriter.h"

#include "model/Document.h"
#include "model/TextObject.h"
#include "support/BoxGlyphs.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

class TextSvgTest : public test::BoxGlyphTest {
protected:
    std::string Export(TextObject& text, int depth = 1) {
        SvgWriter out;
        text.ExportSvg(out, {1, 0, 0, -1, 0, 100}, depth);
        return out.Take();
    }
};

TEST_F(TextSvgTest, ElementCarriesPlaceTurnScaleStyleAndEscapedText) {
    TextObject text;
    text.SetText("a<b & c");
    text.SetTextFont("Helvetica");
    text.SetTextSize(32);
    text.SetBold(true);
    text.SetItalic(true);
    text.SetTextTransform(0, 1, -1, 0);
    text.SetTextPosition(10, 20);
    text.SetStroke(true);
    text.SetStrokeColor(0x0000FF);
    text.SetPenWidth(1);
    EXPECT_EQ(Export(text),
              "\t<text x=\"0\" y=\"0\" transform=\"translate(10 80) rotate(-90) scale(2)\" "
              "style=\"font-family: Arial; font-size: 16; font-style: italic; "
              "font-weight: bold; stroke: #ff0000; stroke-width: 0.5; fill: #000000;\">"
              "a&lt;b &amp; c</text>\r\n");
}

TEST_F(TextSvgTest, TinyTurnsAreNotWrittenAndOtherFacesStay) {
    TextObject text;
    text.SetText("A");
    text.SetTextFont("Courier");
    text.SetTextPosition(1.23456, 0);
    text.SetTextTransform(Matrix2D::Rotation(0.05).a, Matrix2D::Rotation(0.05).b,
                          Matrix2D::Rotation(0.05).c, Matrix2D::Rotation(0.05).d);
    const std::string svg = Export(text, 2);
    EXPECT_EQ(svg.substr(0, 2), "\t\t");
    EXPECT_NE(svg.find("translate(1.2346 100) scale(0.75)\""), std::string::npos) << svg;
    EXPECT_NE(svg.find("font-family: Courier New; "), std::string::npos);
    EXPECT_NE(svg.find("stroke: none; fill: #000000;\">A<"), std::string::npos) << svg;

    text.SetTextFont("Courier New Bold");
    text.SetTextTransform(-1, 0, 0, -1);
    const std::string turned = Export(text);
    EXPECT_NE(turned.find("rotate(-180) "), std::string::npos) << turned;
    EXPECT_NE(turned.find("font-family: Courier New Bold; "), std::string::npos);

    TextObject empty;
    EXPECT_EQ(Export(empty), "");
}

TEST_F(TextSvgTest, TextsCountInTheDocumentSize) {
    Document document;
    auto text = std::make_unique<TextObject>();
    text->SetText("A");
    text->SetTextSize(1000);
    document.AddObject(std::move(text));
    const std::string svg = BuildSvgDocument(document);
    EXPECT_NE(svg.find("width=\"670\" height=\"938\""), std::string::npos) << svg;
    EXPECT_NE(svg.find("<text x=\"0\" y=\"0\" transform=\"translate(0 700) scale(62.5)\""),
              std::string::npos)
        << svg;
}

} // namespace
} // namespace rhomba
