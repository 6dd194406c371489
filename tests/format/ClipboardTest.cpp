#include "format/Clipboard.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "model/TextObject.h"
#include "support/Reporters.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

using test::RecordingReporter;

std::unique_ptr<PathObject> Line(double length) {
    auto path = std::make_unique<PathObject>();
    path->AddNode({0, 0}, node::kMoveTo);
    path->AddNode({length, 0}, node::kLineTo);
    return path;
}

TEST(Clipboard, CopyWithoutSelectionGivesNothing) {
    Document doc;
    doc.AddObject(Line(1));
    doc.ClearSelection();
    EXPECT_EQ(CopySelectionText(doc), "");
}

TEST(Clipboard, CopyWritesSelectedObjectsInSelectionOrderWithoutLayers) {
    Document doc;
    GraphicObject* first = doc.AddObject(Line(1));
    GraphicObject* second = doc.AddObject(Line(2));
    second->SetName("zwei");
    doc.ClearSelection();
    doc.AddToSelection(second);
    doc.AddToSelection(first);
    EXPECT_EQ(CopySelectionText(doc),
              "Rhomba Version 1.0\r\n\r\nPathObject zwei\r\nPenWidth 0.25\r\nFillColor AAAAAA\r\n"
              "M\t0\t0\r\nL\t2\t0\r\nB\r\n\r\nM\t0\t0\r\nL\t1\t0\r\nB\r\n\r\nRhombaEnd\r\n");
}

TEST(Clipboard, CopyAndPasteKeepStyleAndNameAndLandInTheCurrentLayerSelected) {
    Document doc;
    auto path = Line(3);
    path->SetName("Achse");
    path->SetStrokeColor(0x0000FF);
    path->SetPenWidth(0.7);
    doc.AddObject(std::move(path));
    const std::string copied = CopySelectionText(doc);
    doc.NewLayer("Ziel", "EVP");
    doc.NewLayer("Ziel2", "EVP"); // still empty: renames
    RecordingReporter reporter;
    ASSERT_TRUE(PasteText(doc, {copied, false}, reporter));
    EXPECT_TRUE(reporter.questions.empty());
    ASSERT_EQ(doc.LayerCount(), 2u);
    Layer& target = doc.LayerAt(1);
    ASSERT_EQ(target.ChildCount(), 1u);
    const GraphicObject& pasted = *target.ChildAt(0);
    EXPECT_EQ(pasted.GetName(), "Achse");
    EXPECT_EQ(pasted.GetStrokeColor(), 0x0000FFu);
    EXPECT_EQ(pasted.GetPenWidth(), 0.7);
    ASSERT_EQ(doc.Selection().size(), 1u);
    EXPECT_EQ(doc.Selection()[0], &pasted);
}

TEST(Clipboard, UnicodeNativeDataIsNarrowedOtherTextConvertedAndMarked) {
    const ClipboardText native = FromUnicodeClipboard(u"Rhomba Version 1.0\r\nRhombaEnd");
    EXPECT_FALSE(native.converted);
    EXPECT_EQ(native.bytes, "Rhomba Version 1.0\r\nRhombaEnd");
    const ClipboardText other = FromUnicodeClipboard(u"Gr\u00FC\u00DFe \u20AC \u4E2D\U0001F600");
    EXPECT_TRUE(other.converted);
    EXPECT_EQ(other.bytes, "Gr\xFC\xDF" "e \x80 ??");
}

TEST(Clipboard, TextImportAsksWithPreviewAndBuildsOneTextPerLine) {
    Document doc;
    RecordingReporter reporter;
    const std::string text = "erste\tZeile\r\n\r\n" + std::string(200, 'x') + "\r\n";
    ASSERT_TRUE(PasteText(doc, {text, false}, reporter));
    ASSERT_EQ(reporter.questions.size(), 1u);
    EXPECT_EQ(reporter.questions[0],
              "M\xF6" "chten Sie ein automatisch generiertes Textobjekte einf\xFCgen?\r\n\r\nInhalt: " +
                  text.substr(0, 150));

    Layer& layer = doc.CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), 1u);
    auto& group = static_cast<Group&>(*layer.ChildAt(0));
    EXPECT_EQ(group.GetName(), "importierter Text");
    EXPECT_TRUE(group.IsSelected());
    ASSERT_EQ(group.ChildCount(), 2u);
    auto& first = static_cast<TextObject&>(*group.ChildAt(0));
    EXPECT_EQ(first.GetText(), "erste Zeile");
    EXPECT_EQ(first.GetPosition().x, 20);
    EXPECT_EQ(first.GetPosition().y, 810);
    EXPECT_EQ(first.GetSize(), 10);
    EXPECT_EQ(first.GetFont(), "Arial");
    EXPECT_TRUE(first.HasFill());
    EXPECT_FALSE(first.HasStroke());
    EXPECT_EQ(first.GetFillColor(), 0u);
    auto& third = static_cast<TextObject&>(*group.ChildAt(1));
    EXPECT_EQ(third.GetPosition().y, 790); // the blank line still counts
}

TEST(Clipboard, ConvertedTextIsAskedWithoutPreviewAndNoImportsNothing) {
    Document doc;
    RecordingReporter reporter;
    reporter.answers = {false};
    EXPECT_FALSE(PasteText(doc, {"Hallo", true}, reporter));
    ASSERT_EQ(reporter.questions.size(), 1u);
    EXPECT_EQ(reporter.questions[0],
              "M\xF6" "chten Sie ein automatisch generiertes Textobjekte einf\xFCgen?");
    EXPECT_EQ(doc.CurrentLayer().ChildCount(), 0u);
}

TEST(Clipboard, NoAfterTheFirstHundredLinesKeepsLinesZeroToNinetyNine) {
    std::string text;
    for (int i = 0; i < 250; ++i) text += (i % 7 == 3 ? std::string() : "Zeile " + std::to_string(i)) + "\n";
    Document doc;
    RecordingReporter reporter;
    reporter.answers = {true, false};
    ASSERT_TRUE(PasteText(doc, {text, false}, reporter));
    ASSERT_EQ(reporter.questions.size(), 2u);
    EXPECT_EQ(reporter.questions[1], "Es wurden 100 Zeilen f\xFCr den Import vorbereitet.\r\n\r\n"
                                     "M\xF6" "chten Sie fortfahren?");
    auto& group = static_cast<Group&>(*doc.CurrentLayer().ChildAt(0));
    int expected = 0;
    for (int i = 0; i < 100; ++i) expected += i % 7 == 3 ? 0 : 1;
    ASSERT_EQ(group.ChildCount(), static_cast<std::size_t>(expected));
    EXPECT_EQ(static_cast<TextObject&>(*group.ChildAt(group.ChildCount() - 1)).GetText(), "Zeile 99");

    Document all;
    RecordingReporter yes;
    PasteText(all, {text, false}, yes);
    EXPECT_EQ(yes.questions.size(), 3u); // at 100 and 200
}

} // namespace
} // namespace rhomba
