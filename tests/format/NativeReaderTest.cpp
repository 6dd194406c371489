#include "format/Clipboard.h"
#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathObject.h"
#include "model/TextObject.h"
#include "support/Allocations.h"
#include "support/Reporters.h"
#include "support/TempFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace rhomba {
namespace {

using test::RecordingReporter;
using test::TempFile;

Document& Parsed(Document& doc, const std::string& text, bool paste = false) {
    ParseNative(doc, text, paste);
    return doc;
}

const std::string kHead = "Rhomba Version 1.0\r\n";

// What the rows of the writer's table cannot show: where the read values land in memory.
TEST(NativeReader, ReadsStyledPathsTextsAndHotspotsIntoTheModel) {
    Document doc;
    Parsed(doc, kHead + "Layer EvP Haus\r\nStrokeColor FF0000\r\nPenWidth 2.5\r\nPenDash 4 2\r\n"
                        "FillColor FF\r\nM\t0\t0\r\nC\t1\t2\t3\t4\t5\t6\r\nClosePath\r\nS\r\n"
                        "TextFont bi Courier New\r\nTextSize 20\r\nTextTransform 1 0.5 0 1\r\n"
                        "Text B 7 8 Hallo\r\nHotspot v start 1 9 5 3\r\n");
    Layer& layer = doc.LayerAt(0);
    EXPECT_EQ(layer.GetName(), "Haus");
    EXPECT_TRUE(layer.IsHidden());
    ASSERT_EQ(layer.ChildCount(), 3u);
    auto& path = static_cast<PathObject&>(*layer.ChildAt(0));
    EXPECT_EQ(path.GetStrokeColor(), 0x0000FFu);
    EXPECT_EQ(path.GetFillColor(), 0xFF0000u);
    EXPECT_TRUE(path.HasStroke() && !path.HasFill());
    EXPECT_EQ(path.GetPenWidth(), 2.5);
    EXPECT_EQ(path.GetDashCount(), 2);
    EXPECT_EQ(path.TypeAt(3), node::kBezierTo | node::kCloseFigure);
    auto& text = static_cast<TextObject&>(*layer.ChildAt(1));
    EXPECT_EQ(text.GetFont(), "Courier New");
    EXPECT_TRUE(text.IsBold() && text.IsItalic() && text.HasStroke() && text.HasFill());
    EXPECT_EQ(text.GetSize(), 20);
    EXPECT_EQ(text.GetTextTransform().b, 0.5);
    EXPECT_EQ(text.GetFillColor(), 0xFF0000u);
    auto& spot = static_cast<Hotspot&>(*layer.ChildAt(2));
    EXPECT_EQ(spot.GetMode(), 'v');
}

TEST(NativeReader, NestingBeyondTheLimitFlattensIntoTheDeepestGroup) {
    const int depth = kMaxGroupDepth + 50;
    std::string text = kHead;
    for (int i = 0; i < depth; ++i) text += "Group\n";
    text += "M 0 0\nL 1 1\nB\n";
    for (int i = 0; i < depth; ++i) text += "GroupEnd\n";
    Document doc;
    const std::string saved = SaveNativeText(Parsed(doc, text + "M 0 0\nL 2 2\nB\n"));
    std::string expected = "Rhomba Version 1.0\r\n\r\nLayer EVP \r\n";
    for (int i = 0; i < kMaxGroupDepth; ++i) expected += "\r\nGroup \r\n";
    expected += "\r\nM\t0\t0\r\nL\t1\t1\r\nB\r\n";
    for (int i = 0; i < kMaxGroupDepth; ++i) expected += "GroupEnd\r\n";
    EXPECT_EQ(saved, expected + "\r\nM\t0\t0\r\nL\t2\t2\r\nB\r\n\r\nRhombaEnd\r\n");
}

TEST(NativeReader, DeeplyNestedTreesSaveAndDieWithoutRecursion) {
    Document doc;
    Group* container = &doc.CurrentLayer();
    for (int i = 0; i < 200000; ++i) {
        container = static_cast<Group*>(container->InsertAt(std::make_unique<Group>(), &doc, 0, 0));
    }
    auto path = std::make_unique<PathObject>();
    path->AddNode({0, 0}, node::kMoveTo);
    path->AddNode({1, 1}, node::kLineTo);
    container->InsertAt(std::move(path), &doc, 0, 0);
    NativeWriter writer;
    // CountObjects is the model's recursive count; ask the children directly instead.
    doc.LayerAt(0).SaveNative(writer, true);
    EXPECT_GT(writer.Text().size(), 200000u * 8);
}

TEST(NativeReader, PlacementLinePutsTheNextObjectIntoItsParentWithItsId) {
    Document doc;
    Parsed(doc, kHead + "Group g\nGroupEnd\n");
    Group& group = static_cast<Group&>(*doc.CurrentLayer().ChildAt(0));
    group.InsertAt(std::make_unique<Hotspot>(), &doc, 0, 0);
    const std::string ids = std::to_string(group.GetId());
    Parsed(doc, kHead + "%IDs " + ids + " 0 500\nHotspot n vorn 0 0 0 0\n"
                        "%IDs " + ids + " 0 500\nHotspot n doppelt 0 0 0 0\n"
                        "%IDs 99999 0 600\nHotspot n waise 0 0 0 0\n");
    ASSERT_EQ(group.ChildCount(), 2u);
    EXPECT_EQ(group.ChildAt(0)->GetName(), "vorn");
    EXPECT_EQ(group.ChildAt(0)->GetId(), 500u);
    // The taken id and the unknown parent fall back to the ordinary place.
    Layer& layer = doc.CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), 3u);
    EXPECT_EQ(layer.ChildAt(1)->GetName(), "doppelt");
    EXPECT_NE(layer.ChildAt(1)->GetId(), 500u);
    EXPECT_EQ(layer.ChildAt(2)->GetName(), "waise");
    // After the largest id the ids still differ.
    Parsed(doc, kHead + "%IDs " + ids + " 0 4294967295\nHotspot n a 0 0 0 0\nGroup g\nGroupEnd\n"
                        "Hotspot n b 0 0 0 0\n%IDs " + ids + " 0 8\nHotspot n c 0 0 0 0\n");
    std::set<std::uint32_t> unique;
    for (std::size_t i = 0; i < layer.ChildCount(); ++i) unique.insert(layer.ChildAt(i)->GetId());
    for (std::size_t i = 0; i < group.ChildCount(); ++i) unique.insert(group.ChildAt(i)->GetId());
    EXPECT_EQ(unique.size(), layer.ChildCount() + group.ChildCount());
}

TEST(NativeReader, PasteSelectsThePastedObjectsOnly) {
    Document doc;
    Parsed(doc, kHead + "M 0 0\nL 1 1\nB\n");
    doc.AddToSelection(doc.CurrentLayer().ChildAt(0));
    doc.ClearSelection();
    Parsed(doc, kHead + "Group g\nM 0 0\nL 1 1\nB\nGroupEnd\nHotspot n h 0 0 0 0\n", true);
    Layer& layer = doc.CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), 3u);
    ASSERT_EQ(doc.Selection().size(), 2u);
    EXPECT_EQ(doc.Selection()[0], layer.ChildAt(1));
    EXPECT_EQ(doc.Selection()[1], layer.ChildAt(2));
    EXPECT_TRUE(static_cast<Group&>(*layer.ChildAt(1)).ChildAt(0)->IsSelected());
    EXPECT_FALSE(layer.ChildAt(0)->IsSelected());
}

TEST(NativeFile, RefusesMissingShortAndForeignFilesWithTheirMessages) {
    RecordingReporter reporter;
    Document doc;
    doc.AddObject(std::make_unique<Hotspot>());
    TempFile missing("fehlt.rhomba", "", false);
    EXPECT_FALSE(LoadNativeFile(doc, missing.path, reporter));
    EXPECT_EQ(doc.CurrentLayer().ChildCount(), 1u); // untouched
    TempFile shortFile("kurz.rhomba", "Rhomba Version 1.0\r\n"); // 20 bytes
    EXPECT_FALSE(LoadNativeFile(doc, shortFile.path, reporter));
    EXPECT_EQ(doc.CurrentLayer().ChildCount(), 1u);
    TempFile foreign("fremd.rhomba", "Rhombus Version 1.0\r\n" + std::string(200, 'x'));
    EXPECT_FALSE(LoadNativeFile(doc, foreign.path, reporter));
    EXPECT_EQ(doc.CurrentLayer().ChildCount(), 0u); // cleared before the check

    ASSERT_EQ(reporter.messages.size(), 3u);
    EXPECT_EQ(reporter.messages[0],
              "Die Datei '" + missing.path + "' konnte nicht zum Lesen ge\xF6" "ffnet werden.");
    EXPECT_EQ(reporter.messages[1], "'" + shortFile.path + "' ist keine Rhomba-Datei.");
    EXPECT_EQ(reporter.messages[2], "Es ist keine Rhomba-Datei.\r\n\r\nAnfang: Rhombus Version 1.0\r\n" +
                                        std::string(79, 'x') + " ...");
}

TEST(NativeFile, SavingAndLoadingTakeTheFileNameOnlyOnSuccess) {
    RecordingReporter reporter;
    TempFile bom("bom.rhomba", "\xEF\xBB\xBFRhomba\nHotspot n h"); // 21 bytes: the shortest
    Document loaded;
    EXPECT_TRUE(LoadNativeFile(loaded, bom.path, reporter));
    EXPECT_TRUE(reporter.messages.empty());
    EXPECT_EQ(loaded.GetFileName(), bom.path);
    EXPECT_EQ(loaded.CurrentLayer().ChildCount(), 1u);

    TempFile target("ziel.rhomba", std::string(5000, 'o'));
    Document doc;
    doc.AddObject(std::make_unique<Hotspot>());
    EXPECT_FALSE(SaveNativeFile(doc, test::MissingFolderPath("x.rhomba"), reporter));
    EXPECT_EQ(doc.GetFileName(), "");
    ASSERT_TRUE(SaveNativeFile(doc, target.path, reporter));
    EXPECT_EQ(target.Read(), SaveNativeText(doc));
    EXPECT_EQ(doc.GetFileName(), target.path);
    Document reread;
    ASSERT_TRUE(LoadNativeFile(reread, target.path, reporter));
    EXPECT_EQ(SaveNativeText(reread), SaveNativeText(doc));
}

// A failure at every allocation in turn: each is reported, and the drawing stays as it was.
TEST(NativeFile, RunningOutOfMemoryWhileLoadingOrPastingLeavesTheDrawingAsItWas) {
    const std::string text = kHead + "Layer EVP neu\nM 0 0\nL 1 1\nB\nGroup g\nText F 1 2 T\nGroupEnd\n"
                                     "%IDs 3 0 0\nHotspot n h 0 0 0 0\nLayer EVP zwei\nM 0 0\nL 1 1\nS\n";
    TempFile file("voll.rhomba", text);
    for (const bool paste : {false, true}) {
        for (long nth = 0;; ++nth) {
            Document doc;
            Parsed(doc, kHead + "Layer EVP alt\nGroup alt\nGroupEnd\nLayer evp leer\n");
            const std::string before = SaveNativeText(doc);
            RecordingReporter reporter;
            const ClipboardText clipboard{text};
            test::FailingAllocation failing(nth);
            paste ? PasteText(doc, clipboard, reporter) : LoadNativeFile(doc, file.path, reporter);
            if (!failing.Failed()) break;
            EXPECT_EQ(SaveNativeText(doc), before) << nth;
            EXPECT_EQ(reporter.messages, std::vector<std::string>{"Nicht gen\xFCgend Speicher (" +
                                                                  std::to_string(text.size()) +
                                                                  " Bytes)."});
        }
    }
}

} // namespace
} // namespace rhomba
