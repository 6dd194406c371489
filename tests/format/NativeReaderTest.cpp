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

#include <chrono>
#include <cmath>
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

TEST(NativeReader, ReadsStyledPathsTextsAndHotspots) {
    Document doc;
    Parsed(doc, kHead + "Layer EVP Haus\r\nPathObject Dach\r\nStrokeColor FF0000\r\nPenWidth 2.5\r\n"
                        "PenDash 4 2\r\nFillColor FF\r\nM\t0\t0\r\nC\t1\t2\t3\t4\t5\t6\r\n"
                        "ClosePath\r\nS\r\nTextFont bi Courier New\r\nTextSize 20\r\n"
                        "TextTransform 1 0.5 0 1\r\nTextObject Titel\r\nText B 7 8 Hallo  Welt\r\n"
                        "Hotspot v start 1 9 5 3\r\nRhombaEnd\r\n");
    ASSERT_EQ(doc.LayerCount(), 1u);
    Layer& layer = doc.LayerAt(0);
    EXPECT_EQ(layer.GetName(), "Haus");
    ASSERT_EQ(layer.ChildCount(), 3u);

    auto& path = static_cast<PathObject&>(*layer.ChildAt(0));
    EXPECT_EQ(path.GetName(), "Dach");
    EXPECT_EQ(path.GetStrokeColor(), 0x0000FFu);
    EXPECT_EQ(path.GetFillColor(), 0xFF0000u);
    EXPECT_TRUE(path.HasStroke());
    EXPECT_FALSE(path.HasFill());
    EXPECT_EQ(path.GetPenWidth(), 2.5);
    EXPECT_EQ(path.GetDashCount(), 2);
    ASSERT_EQ(path.NodeCount(), 4u);
    EXPECT_EQ(path.TypeAt(3), node::kBezierTo | node::kCloseFigure);
    EXPECT_EQ(path.PointAt(3).y, 6);

    auto& text = static_cast<TextObject&>(*layer.ChildAt(1));
    EXPECT_EQ(text.GetText(), "Hallo  Welt");
    EXPECT_EQ(text.GetName(), "Titel");
    EXPECT_EQ(text.GetFont(), "Courier New");
    EXPECT_TRUE(text.IsBold() && text.IsItalic());
    EXPECT_EQ(text.GetSize(), 20);
    EXPECT_EQ(text.GetTextTransform().b, 0.5);
    EXPECT_EQ(text.GetPosition().x, 7);
    EXPECT_TRUE(text.HasStroke() && text.HasFill());
    EXPECT_EQ(text.GetFillColor(), 0xFF0000u);

    auto& spot = static_cast<Hotspot&>(*layer.ChildAt(2));
    EXPECT_EQ(spot.GetName(), "start");
    EXPECT_EQ(spot.GetMode(), 'v');
    EXPECT_EQ(spot.GetRect().left, 1);
}

TEST(NativeReader, PendingNamesGoToTheNextObjectOfTheirKindOnly) {
    Document doc;
    Parsed(doc, kHead + "PathObject eins\nText F 0 0 x\nM 0 0\nL 1 1\nN\nM 0 0\nL 2 2\nN\n");
    Layer& layer = doc.CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), 3u);
    EXPECT_EQ(layer.ChildAt(0)->GetName(), "");
    EXPECT_EQ(layer.ChildAt(1)->GetName(), "eins");
    EXPECT_EQ(layer.ChildAt(2)->GetName(), "");
}

TEST(NativeReader, LayerLinesNameAnEmptyLayerOtherwiseStartANewOneAndLowercaseVHides) {
    Document doc;
    Parsed(doc, kHead + "Layer EVP erste\nLayer EVP umbenannt\nM 0 0\nL 1 1\nB\n"
                        "Layer EvP versteckt\nM 0 0\nL 1 1\nB\n");
    ASSERT_EQ(doc.LayerCount(), 2u);
    EXPECT_EQ(doc.LayerAt(0).GetName(), "umbenannt");
    EXPECT_FALSE(doc.LayerAt(0).IsHidden());
    EXPECT_EQ(doc.LayerAt(1).GetName(), "versteckt");
    EXPECT_TRUE(doc.LayerAt(1).IsHidden());
    EXPECT_EQ(doc.LayerAt(1).ChildCount(), 1u);
}

TEST(NativeReader, PathsNeedTwoNodesAndAnOpenPathForLinesCurvesAndClose) {
    Document doc;
    Parsed(doc, kHead + "L 5 5\nClosePath\nC 1 1 1 1 1 1\nB\nM 1 1\nB\nM 0 0\nM 3 3\nL 4 4\nF\n"
                        "M 9 9\nL 8 8\n");
    Layer& layer = doc.CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), 1u); // the last path never ends
    const auto& path = static_cast<PathObject&>(*layer.ChildAt(0));
    EXPECT_EQ(path.NodeCount(), 3u); // a second move is a second figure of the same path
    EXPECT_EQ(path.TypeAt(1), node::kMoveTo);
}

TEST(NativeReader, NumbersAreReadLenientlyAndJunkLinesSkipped) {
    Document doc;
    Parsed(doc, kHead + "\x01\x02 junk\n\n   \nUnknown 1 2\nBitmapObject 1 2 3\nM abc 1e400\n"
                        "L nan -0x10\nL +2.5e1 .5\nL 1,5 7xyz\nB\n");
    const auto& path = static_cast<PathObject&>(*doc.CurrentLayer().ChildAt(0));
    ASSERT_EQ(path.NodeCount(), 4u);
    EXPECT_EQ(path.PointAt(0).x, 0);
    EXPECT_TRUE(std::isinf(path.PointAt(0).y));
    EXPECT_EQ(path.PointAt(1).x, 0);
    EXPECT_EQ(path.PointAt(1).y, -0.0);
    EXPECT_EQ(path.PointAt(2).x, 25);
    EXPECT_EQ(path.PointAt(2).y, 0.5);
    EXPECT_EQ(path.PointAt(3).x, 1);
    EXPECT_EQ(path.PointAt(3).y, 7);
}

TEST(NativeReader, StopsAtRhombaEndAndAtATextWithoutLineEnd) {
    Document doc;
    Parsed(doc, kHead + "M 0 0\nL 1 1\nB\nRhombaEnd\nM 0 0\nL 1 1\nB\n");
    EXPECT_EQ(doc.CurrentLayer().ChildCount(), 1u);
    Document noEnd;
    Parsed(noEnd, "Rhomba Version 1.0 M 0 0");
    EXPECT_EQ(noEnd.CurrentLayer().ChildCount(), 0u);
    Document lastLine;
    Parsed(lastLine, kHead + "M 0 0\nL 1 1\nS");
    EXPECT_EQ(lastLine.CurrentLayer().ChildCount(), 1u);
    Document oldMac;
    Parsed(oldMac, "Rhomba Version 1.0\rM 0 0\rL 1 1\rS\r\rM 0 0\r\nL 2 2\r\r\nF");
    EXPECT_EQ(oldMac.CurrentLayer().ChildCount(), 2u);
    // Lone CRs cost no search to the end of the text per line (a megabyte took seconds).
    std::string lines = kHead;
    for (int i = 0; i < 50000; ++i) lines += "M 0 0\rL 1 1\rS\r";
    const auto start = std::chrono::steady_clock::now();
    Parsed(oldMac, lines);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    EXPECT_EQ(oldMac.CurrentLayer().ChildCount(), 50002u);
}

TEST(NativeReader, GroupEndWithoutAnOpenGroupIsIgnored) {
    Document doc;
    Parsed(doc, kHead + "GroupEnd\nGroup g\nM 0 0\nL 1 1\nB\nGroupEnd\nGroupEnd\nM 0 0\nL 1 1\nB\n");
    Layer& layer = doc.CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), 2u);
    EXPECT_EQ(layer.ChildAt(0)->GetKind(), ObjectKind::Group);
    EXPECT_EQ(layer.ChildAt(0)->GetName(), "g");
    EXPECT_EQ(layer.ChildAt(1)->GetKind(), ObjectKind::Path);
}

TEST(NativeReader, NestingBeyondTheLimitFlattensIntoTheDeepestGroup) {
    std::string text = kHead;
    const int depth = kMaxGroupDepth + 50;
    for (int i = 0; i < depth; ++i) text += "Group\n";
    text += "M 0 0\nL 1 1\nB\n";
    for (int i = 0; i < depth; ++i) text += "GroupEnd\n";
    text += "M 0 0\nL 2 2\nB\n";
    Document doc;
    Parsed(doc, text);
    Layer& layer = doc.CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), 2u);
    int levels = 0;
    GraphicObject* object = layer.ChildAt(0);
    while (object->GetKind() == ObjectKind::Group) {
        ++levels;
        auto& group = static_cast<Group&>(*object);
        ASSERT_EQ(group.ChildCount(), 1u);
        object = group.ChildAt(0);
    }
    EXPECT_EQ(levels, kMaxGroupDepth);
    EXPECT_EQ(object->GetKind(), ObjectKind::Path);
}

TEST(NativeReader, DeeplyNestedTreesSaveAndDieWithoutRecursion) {
    Document doc;
    Group* container = &doc.CurrentLayer();
    for (int i = 0; i < 200000; ++i) {
        container = static_cast<Group*>(
            container->InsertAt(std::make_unique<Group>(), &doc, 0, 0));
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

TEST(NativeReader, SavedDrawingsLoadAndSaveToTheSameBytes) {
    const std::string original =
        kHead + "\r\nLayer EVP Vorne\r\n\r\nPathObject Rahmen\r\nStrokeColor 00FF00\r\nPenWidth 0.33\r\n"
                "PenDash 3 1 5 2\r\nFillColor 123\r\nM\t-1.5\t2.0001\r\nL\t3\t4\r\nClosePath\r\n"
                "M\t5\t5\r\nC\t1\t2\t3\t4\t1.23457e+06\t6\r\nClosePath\r\nB\r\n\r\nGroup Haus\r\n"
                "\r\nGroup \r\n\r\nTextObject T\r\nFillColor 0\r\nTextFont b Times\r\n"
                "TextSize 9.5\r\nTextTransform 0.866 0.5 -0.5 0.866\r\nText F 1 2 a  b\r\n"
                "GroupEnd\r\n\r\nHotspot n H_9 1 2 3 0\r\nGroupEnd\r\n\r\nM\t0\t0\r\nL\t1\t1\r\nN\r\n"
                "\r\nLayer EVP Hinten\r\n\r\nStrokeColor 000000\r\nPenDash 0\r\nM\t0\t0\r\nL\t1\t1\r\nS\r\n"
                "\r\nRhombaEnd\r\n";
    Document doc;
    ParseNative(doc, original, false);
    EXPECT_EQ(SaveNativeText(doc), original);
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

TEST(NativeFile, LoadsWithByteOrderMarkAndTakesTheFileName) {
    RecordingReporter reporter;
    TempFile bom("bom.rhomba", "\xEF\xBB\xBFRhomba Version 1.0\r\nM 0 0\r\nL 1 1\r\nB\r\n");
    Document doc;
    EXPECT_TRUE(LoadNativeFile(doc, bom.path, reporter));
    EXPECT_TRUE(reporter.messages.empty());
    EXPECT_EQ(doc.GetFileName(), bom.path);
    EXPECT_EQ(doc.CurrentLayer().ChildCount(), 1u);
}

TEST(NativeFile, SavingWritesTheWholeTextAndTakesTheNameOnlyOnSuccess) {
    TempFile target("ziel.rhomba", std::string(5000, 'o'));
    Document doc;
    doc.AddObject(std::make_unique<Hotspot>());
    RecordingReporter reporter;
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
