#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathObject.h"
#include "model/TextObject.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

// The saved text of a drawing read from body, between the header line and the end lines.
std::string Resaved(const std::string& body) {
    Document doc;
    ParseNative(doc, "Rhomba Version 1.0\r\n" + body, false);
    const std::string text = SaveNativeText(doc);
    const std::string head = "Rhomba Version 1.0\r\n", tail = "\r\nRhombaEnd\r\n";
    EXPECT_EQ(text.substr(0, head.size()), head);
    EXPECT_EQ(text.substr(text.size() - tail.size()), tail);
    return text.substr(head.size(), text.size() - head.size() - tail.size());
}

const std::string kLayer = "\r\nLayer EVP \r\n";
const std::string kLine = "M\t0\t0\r\nL\t1\t0\r\n";

// Read, then written: each row is one rule of the format; an empty expectation means that the
// text comes back byte for byte.
TEST(NativeWriter, WritesWhatItReadsByTheRulesOfTheFormat) {
    const std::string huge(400, '9');
    const struct {
        std::string in, out;
    } rows[] = {
        // The reference drawing; the reset style writes no style lines.
        {"\r\nLayer EVP \r\n\r\nPathObject Rahmen\r\nStrokeColor FF0000\r\nPenWidth 0.25\r\n"
         "FillColor AAAAAA\r\nM\t10\t20\r\nL\t110\t20\r\nL\t110\t70\r\nL\t10\t70\r\nClosePath\r\n"
         "B\r\n\r\nFillColor 0\r\nText F 10 80 Hallo\r\n\r\nM\t0\t0\r\nL\t1\t0\r\nB\r\n", ""},
        // A blue stroke keeps its zeros, a blue fill drops them; each is written once.
        {kLayer + "\r\nStrokeColor 0000FF\r\nFillColor FF\r\n" + kLine + "B\r\n\r\n" + kLine +
             "B\r\n", ""},
        // Switched-off paint writes no style; the letter follows the switches.
        {"StrokeColor 654321\nFillColor 123456\nM 0 0\nL 1 0\nN\nM 0 0\nL 1 0\nF\nM 0 0\nL 1 0\nS",
         kLayer + "\r\n" + kLine + "N\r\n\r\nFillColor 123456\r\n" + kLine +
             "F\r\n\r\nStrokeColor 654321\r\n" + kLine + "S\r\n"},
        // The pen width is compared raw but written at 2 decimals.
        {"PenWidth 0.251\nM 0 0\nL 1 0\nS\nPenWidth 0.25\nM 0 0\nL 1 0\nS",
         kLayer + "\r\nPenWidth 0.25\r\n" + kLine + "S\r\n\r\nPenWidth 0.25\r\n" + kLine + "S\r\n"},
        // Dash pairs end at the first 0.
        {"PenDash 3 1 250 2 0 9\nM 0 0\nL 1 0\nS\nPenDash 0 0\nM 0 0\nL 1 0\nS",
         kLayer + "\r\nPenDash 3 1 250 2\r\n" + kLine + "S\r\n\r\nPenDash 0\r\n" + kLine + "S\r\n"},
        // Coordinates at 4 decimals in six digits; no "-0"; what overflows reads as 0.
        {"M 0.123456 -2.00005\nC 1 2 3 4 1234567 6\nClosePath\nL -0 -0.00004\nL 1e400 " + huge +
             "\nB",
         kLayer + "\r\nM\t0.1235\t-2.0001\r\nC\t1\t2\t3\t4\t1.23457e+06\t6\r\nClosePath\r\n"
                  "L\t0\t0\r\nL\t0\t0\r\nB\r\n"},
        // Texts write fill before stroke; size at 1 decimal, transform at 4.
        {"TextObject Titel\nStrokeColor 00FF00\nPenWidth 2\nFillColor FF0000\nTextFont bi Courier\n"
         "TextSize 12.25\nTextTransform 0.5 0.123456 -0.00001 1\nText B 1.00004 2 zwei  Zeilen ",
         kLayer + "\r\nTextObject Titel\r\nFillColor FF0000\r\nStrokeColor 00FF00\r\nPenWidth 2\r\n"
                  "TextFont bi Courier\r\nTextSize 12.3\r\nTextTransform 0.5 0.1235 0 1\r\n"
                  "Text B 1 2 zwei  Zeilen \r\n"},
        // The text size is compared at 2 decimals.
        {"TextSize 12.004\nText F 0 0 a\nTextFont i Arial\nText F 0 0 b",
         kLayer + "\r\nText F 0 0 a\r\n\r\nTextFont i Arial\r\nText F 0 0 b\r\n"},
        // "start" is always mode v; hotspot values at 4 decimals.
        {"Hotspot x start 0 1 1 0\nHotspot n a 1 9 5.55555 3",
         kLayer + "\r\nHotspot v start 0 1 1 0\r\n\r\nHotspot n a 1 9 5.5556 3\r\n"},
        // Empty texts, empty groups and one-node paths leave no trace.
        {"Text F 1 1\nGroup a\nGroup b\nGroupEnd\nGroupEnd\nM 5 5\nB", kLayer},
        // Groups nest, an unmatched end is ignored, every layer says EVP.
        {"GroupEnd\nGroup aussen\nGroup\nM 0 0\nL 1 0\nB\nGroupEnd\nGroupEnd\nGroupEnd\n"
         "Layer Ev Zweite Ebene",
         kLayer + "\r\nGroup aussen\r\n\r\nGroup \r\n\r\n" + kLine +
             "B\r\nGroupEnd\r\nGroupEnd\r\n\r\nLayer EVP Zweite Ebene\r\n"},
        // A Layer line names a layer that is still empty; names wait for their own kind.
        {"Layer EVP erste\nLayer EVP zweite\nPathObject p\nText F 0 0 x\nM 0 0\nL 1 0\nN",
         "\r\nLayer EVP zweite\r\n\r\nText F 0 0 x\r\n\r\nPathObject p\r\n" + kLine + "N\r\n"},
        // Lines, curves and ClosePath need an open path, which needs two nodes; lines end at
        // LF, CR LF or CR; RhombaEnd ends the drawing.
        {"L 5 5\nClosePath\nC 1 1 1 1 1 1\nB\nM 1 1\nB\nM 0 0\rM 3 3\r\nL 4 4\r\rF\nM 9 9\n"
         "L 8 8\nRhombaEnd\nS",
         kLayer + "\r\nM\t0\t0\r\nM\t3\t3\r\nL\t4\t4\r\nF\r\n"},
        // Numbers are read leniently; junk lines are skipped.
        {"\x01\x02 junk\n\nUnknown 1 2\nBitmapObject 1\nM abc 1e400\nL nan -0x10\nL +2.5e1 .5\n"
         "L 1,5 7xyz\nB",
         kLayer + "\r\nM\t0\t0\r\nL\t0\t0\r\nL\t25\t0.5\r\nL\t1\t7\r\nB\r\n"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Resaved(row.in), row.out.empty() ? row.in : row.out) << row.in;
    }
}

TEST(NativeWriter, EmptyDrawingIsHeaderAndEndOnly) {
    Document doc;
    EXPECT_EQ(SaveNativeText(doc), "Rhomba Version 1.0\r\n\r\nRhombaEnd\r\n");
}

// What the reader cannot make: stray close bits, type 0 nodes, line breaks in texts, a lone
// node, hotspots without a name, an object written with the reset flag.
TEST(NativeWriter, NormalisesWhatOnlyEditingMakes) {
    Document doc;
    auto path = std::make_unique<PathObject>();
    path->SetFillColor(0xFFFFFF);
    path->SetPenWidth(1);
    path->AddNode({0, 0}, node::kMoveTo | node::kCloseFigure);
    path->AddNode({1, 1}, node::kBezierTo | node::kCloseFigure);
    path->AddNode({2, 2}, node::kBezierTo);
    path->AddNode({3, 3}, node::kBezierTo);
    path->AddNode({4, 4}, 0);
    auto* saved = static_cast<PathObject*>(doc.AddObject(std::move(path)));
    auto lone = std::make_unique<PathObject>();
    lone->AddNode({5, 5}, node::kMoveTo);
    doc.AddObject(std::move(lone));
    auto text = std::make_unique<TextObject>();
    text->SetText("zwei\r\nZeilen\n");
    doc.AddObject(std::move(text));
    auto* spot = static_cast<Hotspot*>(doc.AddObject(std::make_unique<Hotspot>()));

    char name[16];
    std::snprintf(name, sizeof name, "H_%x", unsigned(spot->GetId()));
    const std::string expected = "Rhomba Version 1.0\r\n" + kLayer +
                                 "\r\nM\t0\t0\r\nC\t1\t1\t2\t2\t3\t3\r\nB\r\n\r\nFillColor 0\r\n"
                                 "Text F 0 0 zwei  Zeilen \r\n\r\nHotspot n " + name + " 0 0 0 0\r\n" +
                                 "\r\nRhombaEnd\r\n";
    EXPECT_EQ(SaveNativeText(doc), expected);
    EXPECT_EQ(SaveNativeText(doc), expected); // the name sticks
    EXPECT_EQ(saved->TypeAt(0), node::kMoveTo);
    EXPECT_EQ(saved->TypeAt(1), node::kBezierTo);

    NativeWriter writer;
    writer.Style().penWidth = 0.25;
    saved->SaveNative(writer, true);
    EXPECT_EQ(writer.Text(), "\r\nM\t0\t0\r\nC\t1\t1\t2\t2\t3\t3\r\nB\r\n");
}

} // namespace
} // namespace rhomba
