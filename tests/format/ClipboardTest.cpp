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

const std::string kAsk = "M\xF6" "chten Sie ein automatisch generiertes Textobjekte einf\xFCgen?";

TEST(Clipboard, CopyWritesSelectedObjectsInSelectionOrderWithoutLayersAndNothingWithout) {
    Document doc;
    GraphicObject* first = doc.AddObject(Line(1));
    GraphicObject* second = doc.AddObject(Line(2));
    second->SetName("zwei");
    doc.ClearSelection();
    EXPECT_EQ(CopySelectionText(doc), "");
    doc.AddToSelection(second);
    doc.AddToSelection(first);
    EXPECT_EQ(CopySelectionText(doc),
              "Rhomba Version 1.0\r\n\r\nPathObject zwei\r\nPenWidth 0.25\r\nFillColor AAAAAA\r\n"
              "M\t0\t0\r\nL\t2\t0\r\nB\r\n\r\nM\t0\t0\r\nL\t1\t0\r\nB\r\n\r\nRhombaEnd\r\n");
}

TEST(Clipboard, PastedCopyKeepsStyleAndNameAndLandsInTheCurrentLayerSelected) {
    Document doc;
    auto path = Line(3);
    path->SetName("Achse");
    path->SetStrokeColor(0x0000FF);
    doc.AddObject(std::move(path));
    const std::string copied = CopySelectionText(doc);
    doc.NewLayer("Ziel", "EVP");
    RecordingReporter reporter;
    ASSERT_TRUE(PasteText(doc, {copied, false}, reporter));
    EXPECT_TRUE(reporter.questions.empty());
    ASSERT_EQ(doc.LayerAt(1).ChildCount(), 1u);
    EXPECT_EQ(doc.Selection(), std::vector<GraphicObject*>{doc.LayerAt(1).ChildAt(0)});
    EXPECT_EQ(CopySelectionText(doc), copied); // name and style kept
}

// Converted text is asked about without a preview; no imports nothing.
TEST(Clipboard, UnicodeNativeDataIsNarrowedOtherTextConvertedMarkedAndAsked) {
    const ClipboardText native = FromUnicodeClipboard(u"Rhomba Version 1.0\r\nRhombaEnd");
    EXPECT_FALSE(native.converted);
    EXPECT_EQ(native.bytes, "Rhomba Version 1.0\r\nRhombaEnd");
    const ClipboardText other = FromUnicodeClipboard(u"Gr\u00FC\u00DFe \u20AC \u4E2D\U00010000");
    EXPECT_TRUE(other.converted);
    EXPECT_EQ(other.bytes, "Gr\xFC\xDF" "e \x80 ??");

    Document doc;
    RecordingReporter reporter;
    reporter.answers = {false};
    EXPECT_FALSE(PasteText(doc, {"Hallo", true}, reporter));
    EXPECT_EQ(reporter.questions, std::vector<std::string>{kAsk});
    EXPECT_EQ(doc.CurrentLayer().ChildCount(), 0u);
}

// Lines end at LF, CR LF or a lone CR, as the reader's do; a lone CR once slipped through into
// the built text and made the rest of its line a native line of its own.
TEST(Clipboard, TextImportAsksWithPreviewAndMakesOneTextPerLine) {
    Document doc;
    RecordingReporter reporter;
    const std::string text = "erste\tZeile\r\n\r\n" + std::string(150, 'x') + "\rM 0 0\rL 1 1\rB\r\n";
    ASSERT_TRUE(PasteText(doc, {text, false}, reporter));
    EXPECT_EQ(reporter.questions, std::vector<std::string>{kAsk + "\r\n\r\nInhalt: " +
                                                            text.substr(0, 150)});
    ASSERT_EQ(doc.Selection().size(), 1u);
    EXPECT_EQ(SaveNativeText(doc),
              "Rhomba Version 1.0\r\n\r\nLayer EVP \r\n\r\nGroup importierter Text\r\n\r\n"
              "FillColor 0\r\nTextSize 10\r\nText F 20 810 erste Zeile\r\n"
              "\r\nText F 20 790 " + std::string(150, 'x') + "\r\n\r\nText F 20 780 M 0 0\r\n"
              "\r\nText F 20 770 L 1 1\r\n\r\nText F 20 760 B\r\nGroupEnd\r\n\r\nRhombaEnd\r\n");
}

TEST(Clipboard, NoAfterTheFirstHundredLinesKeepsLinesZeroToNinetyNine) {
    std::string text;
    for (int i = 0; i < 250; ++i) text += (i % 7 == 3 ? "" : "Zeile " + std::to_string(i)) + "\n";
    Document doc;
    RecordingReporter reporter;
    reporter.answers = {true, false};
    ASSERT_TRUE(PasteText(doc, {text, false}, reporter));
    ASSERT_EQ(reporter.questions.size(), 2u);
    EXPECT_EQ(reporter.questions[1], "Es wurden 100 Zeilen f\xFCr den Import vorbereitet.\r\n\r\n"
                                     "M\xF6" "chten Sie fortfahren?");
    auto& group = static_cast<Group&>(*doc.CurrentLayer().ChildAt(0));
    ASSERT_EQ(group.ChildCount(), 100u - 14u); // lines 3, 10, ..., 94 are empty
    EXPECT_EQ(static_cast<TextObject&>(*group.ChildAt(group.ChildCount() - 1)).GetText(), "Zeile 99");

    RecordingReporter yes;
    Document all;
    PasteText(all, {text, false}, yes);
    EXPECT_EQ(yes.questions.size(), 3u); // at 100 and 200
}

} // namespace
} // namespace rhomba
