#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathObject.h"
#include "model/TextObject.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

std::unique_ptr<PathObject> Path(std::initializer_list<Point2> points, bool closed = false) {
    auto path = std::make_unique<PathObject>();
    bool first = true;
    for (Point2 p : points) {
        path->AddNode(p, first ? node::kMoveTo : node::kLineTo);
        first = false;
    }
    if (closed) path->SetType(path->NodeCount() - 1, node::kLineTo | node::kCloseFigure);
    return path;
}

// A path in the reset style: black stroke of width 1, white fill.
std::unique_ptr<PathObject> PlainPath(std::initializer_list<Point2> points) {
    auto path = Path(points);
    path->SetPenWidth(1.0);
    path->SetFillColor(0xFFFFFF);
    return path;
}

std::unique_ptr<TextObject> Text(const std::string& content, double x, double y) {
    auto text = std::make_unique<TextObject>();
    text->SetText(content);
    text->SetTextPosition(x, y);
    return text;
}

// The body between the header line and the end lines of a one-layer drawing.
std::string Body(Document& doc) {
    const std::string text = SaveNativeText(doc);
    const std::string head = "Rhomba Version 1.0\r\n\r\nLayer EVP \r\n";
    const std::string tail = "\r\nRhombaEnd\r\n";
    EXPECT_EQ(text.substr(0, head.size()), head);
    EXPECT_EQ(text.substr(text.size() - tail.size()), tail);
    return text.substr(head.size(), text.size() - head.size() - tail.size());
}

TEST(NativeWriter, WritesTheReferenceDrawingByteForByte) {
    Document doc;
    auto frame = Path({{10, 20}, {110, 20}, {110, 70}, {10, 70}}, true);
    frame->SetName("Rahmen");
    frame->SetStrokeColor(0x0000FF); // red
    frame->SetPenWidth(0.25);
    frame->SetFillColor(0xAAAAAA);
    doc.AddObject(std::move(frame));
    doc.AddObject(Text("Hallo", 10, 80));
    EXPECT_EQ(SaveNativeText(doc),
              "Rhomba Version 1.0\r\n\r\nLayer EVP \r\n\r\nPathObject Rahmen\r\n"
              "StrokeColor FF0000\r\nPenWidth 0.25\r\nFillColor AAAAAA\r\n"
              "M\t10\t20\r\nL\t110\t20\r\nL\t110\t70\r\nL\t10\t70\r\nClosePath\r\nB\r\n"
              "\r\nFillColor 0\r\nText F 10 80 Hallo\r\n\r\nRhombaEnd\r\n");
}

TEST(NativeWriter, EmptyDrawingIsHeaderAndEndOnly) {
    Document doc;
    EXPECT_EQ(SaveNativeText(doc), "Rhomba Version 1.0\r\n\r\nRhombaEnd\r\n");
}

TEST(NativeWriter, ResetStyleWritesNoStyleLinesAndChangesAreWrittenOnce) {
    Document doc;
    doc.AddObject(PlainPath({{0, 0}, {1, 1}}));
    doc.AddObject(PlainPath({{0, 0}, {2, 2}}));
    EXPECT_EQ(Body(doc), "\r\nM\t0\t0\r\nL\t1\t1\r\nB\r\n\r\nM\t0\t0\r\nL\t2\t2\r\nB\r\n");

    Document blue;
    for (int i = 0; i < 2; ++i) {
        auto path = PlainPath({{0, 0}, {1, 0}});
        path->SetFillColor(0xFF0000);   // blue fill: "%X" drops the leading zeros
        path->SetStrokeColor(0xFF0000); // blue stroke: "%06X" keeps them
        blue.AddObject(std::move(path));
    }
    EXPECT_EQ(Body(blue), "\r\nStrokeColor 0000FF\r\nFillColor FF\r\nM\t0\t0\r\nL\t1\t0\r\nB\r\n"
                          "\r\nM\t0\t0\r\nL\t1\t0\r\nB\r\n");
}

TEST(NativeWriter, StyleOfSwitchedOffPaintIsNotWrittenAndLetterFollowsSwitches) {
    Document doc;
    const char letters[] = {'B', 'F', 'S', 'N'};
    for (int i = 0; i < 4; ++i) {
        auto path = PlainPath({{0, 0}, {1, 0}});
        path->SetFill(i < 2);
        path->SetStroke(i % 2 == 0);
        path->SetFillColor(0x123456);
        path->SetStrokeColor(0x654321);
        doc.AddObject(std::move(path));
    }
    const std::string body = Body(doc);
    for (char letter : letters) {
        EXPECT_NE(body.find(std::string("L\t1\t0\r\n") + letter + "\r\n"), std::string::npos);
    }
    // Fill written by the first (B) path, stroke by it too; nothing else changes afterwards.
    EXPECT_EQ(body.find("FillColor"), body.rfind("FillColor"));
    EXPECT_EQ(body.find("StrokeColor"), body.rfind("StrokeColor"));
}

TEST(NativeWriter, PenWidthComparedRawButWrittenAtTwoDecimals) {
    Document doc;
    auto a = PlainPath({{0, 0}, {1, 0}});
    a->SetPenWidth(0.251);
    auto b = PlainPath({{0, 0}, {1, 0}});
    b->SetPenWidth(0.25);
    doc.AddObject(std::move(a));
    doc.AddObject(std::move(b));
    const std::string body = Body(doc);
    EXPECT_NE(body.find("PenWidth 0.25\r\nM"), std::string::npos);
    EXPECT_NE(body.find("PenWidth 0.25\r\n"), body.rfind("PenWidth 0.25\r\n"));
}

TEST(NativeWriter, DashLinesListPairsUntilTheFirstZero) {
    Document doc;
    auto dashed = PlainPath({{0, 0}, {1, 0}});
    dashed->SetDashDot(DashDot{3, 1, 250, 2, 0, 9, 0, 0});
    auto solid = PlainPath({{0, 0}, {1, 0}});
    doc.AddObject(std::move(dashed));
    doc.AddObject(std::move(solid));
    const std::string body = Body(doc);
    EXPECT_NE(body.find("PenDash 3 1 250 2\r\n"), std::string::npos);
    EXPECT_NE(body.find("PenDash 0\r\n"), std::string::npos);
}

TEST(NativeWriter, CoordinatesRoundedToFourDecimalsAndCurvesOnOneLine) {
    Document doc;
    auto path = std::make_unique<PathObject>();
    path->SetPenWidth(1.0);
    path->SetFillColor(0xFFFFFF);
    path->AddNode({0.123456, -2.00005}, node::kMoveTo);
    path->AddNode({1, 2}, node::kBezierTo);
    path->AddNode({3, 4}, node::kBezierTo);
    path->AddNode({1234567.0, 6}, node::kBezierTo | node::kCloseFigure);
    doc.AddObject(std::move(path));
    EXPECT_EQ(Body(doc), "\r\nM\t0.1235\t-2.0001\r\nC\t1\t2\t3\t4\t1.23457e+06\t6\r\nClosePath\r\nB\r\n");
}

TEST(NativeWriter, StrayCloseBitsOnMovesAndCurveStartsAreClearedInMemory) {
    Document doc;
    auto path = std::make_unique<PathObject>();
    path->AddNode({0, 0}, node::kMoveTo | node::kCloseFigure);
    path->AddNode({1, 1}, node::kBezierTo | node::kCloseFigure);
    path->AddNode({2, 2}, node::kBezierTo);
    path->AddNode({3, 3}, node::kBezierTo);
    path->AddNode({4, 4}, 0); // type 0 nodes are skipped
    PathObject* raw = static_cast<PathObject*>(doc.AddObject(std::move(path)));
    const std::string body = Body(doc);
    EXPECT_EQ(body.find("ClosePath"), std::string::npos);
    EXPECT_EQ(raw->TypeAt(0) & node::kCloseFigure, 0);
    EXPECT_EQ(raw->TypeAt(1) & node::kCloseFigure, 0);
    EXPECT_EQ(body.find("\t4\t4"), std::string::npos);
}

TEST(NativeWriter, ObjectsWithNothingToShowLeaveNoTrace) {
    Document doc;
    doc.AddObject(Path({{5, 5}}));
    doc.AddObject(Text("", 1, 1));
    doc.AddObject(std::make_unique<Group>());
    auto hollow = std::make_unique<Group>();
    hollow->InsertAt(std::make_unique<Group>(), &doc, 0, 0);
    doc.AddObject(std::move(hollow));
    EXPECT_EQ(Body(doc), "");
}

TEST(NativeWriter, TextStyleLinesFillBeforeStrokeAndLineBreaksBecomeBlanks) {
    Document doc;
    auto text = Text("zwei\r\nZeilen\n", 1.00004, 2);
    text->SetName("Titel");
    text->SetStroke(true);
    text->SetStrokeColor(0x00FF00);
    text->SetPenWidth(2);
    text->SetFillColor(0x0000FF);
    text->SetBold(true);
    text->SetItalic(true);
    text->SetTextFont("Courier");
    text->SetTextSize(12.25);
    text->SetTextTransform(0.5, 0.123456, 0, 1);
    doc.AddObject(std::move(text));
    EXPECT_EQ(Body(doc), "\r\nTextObject Titel\r\nFillColor FF0000\r\nStrokeColor 00FF00\r\n"
                         "PenWidth 2\r\nTextFont bi Courier\r\nTextSize 12.3\r\n"
                         "TextTransform 0.5 0.1235 0 1\r\nText B 1 2 zwei  Zeilen \r\n");
}

TEST(NativeWriter, TextSizeComparedAtTwoDecimals) {
    Document doc;
    auto same = Text("a", 0, 0);
    same->SetTextSize(12.004);
    doc.AddObject(std::move(same));
    auto italic = Text("b", 0, 0);
    italic->SetItalic(true);
    italic->SetTextSize(12.004);
    doc.AddObject(std::move(italic));
    const std::string body = Body(doc);
    EXPECT_EQ(body.find("TextSize"), std::string::npos);
    EXPECT_NE(body.find("TextFont i Arial\r\n"), std::string::npos);
}

TEST(NativeWriter, HotspotsGetAStableHexNameAndStartIsAlwaysModeV) {
    Document doc;
    auto spot = std::make_unique<Hotspot>();
    spot->SetRect(1, 9, 5.55555, 3);
    Hotspot* unnamed = static_cast<Hotspot*>(doc.AddObject(std::move(spot)));
    auto start = std::make_unique<Hotspot>();
    start->SetName("start");
    start->SetMode('x');
    start->SetRect(0, 1, 1, 0);
    doc.AddObject(std::move(start));

    char expectedName[16];
    std::snprintf(expectedName, sizeof expectedName, "H_%x", unsigned(unnamed->GetId()));
    const std::string body = Body(doc);
    EXPECT_EQ(unnamed->GetName(), expectedName);
    EXPECT_EQ(body, std::string("\r\nHotspot n ") + expectedName + " 1 9 5.5556 3\r\n" +
                        "\r\nHotspot v start 0 1 1 0\r\n");
    EXPECT_EQ(SaveNativeText(doc), SaveNativeText(doc)); // the name sticks
}

TEST(NativeWriter, GroupsNestBetweenGroupAndGroupEndAndLayersAlwaysSayEVP) {
    Document doc;
    auto outer = std::make_unique<Group>();
    outer->SetName("aussen");
    auto inner = std::make_unique<Group>();
    inner->InsertAt(PlainPath({{0, 0}, {1, 1}}), &doc, 0, 0);
    outer->InsertAt(std::move(inner), &doc, 0, 0);
    doc.AddObject(std::move(outer));
    doc.NewLayer("Zweite Ebene", "v");
    EXPECT_EQ(SaveNativeText(doc),
              "Rhomba Version 1.0\r\n\r\nLayer EVP \r\n\r\nGroup aussen\r\n\r\nGroup \r\n"
              "\r\nM\t0\t0\r\nL\t1\t1\r\nB\r\nGroupEnd\r\nGroupEnd\r\n"
              "\r\nLayer EVP Zweite Ebene\r\n\r\nRhombaEnd\r\n");
}

TEST(NativeWriter, ObjectWrittenWithResetStartsFromResetStyle) {
    NativeWriter writer;
    writer.Style().penWidth = 0.25;
    auto path = PlainPath({{0, 0}, {1, 0}});
    path->SaveNative(writer, true);
    EXPECT_EQ(writer.Text(), "\r\nM\t0\t0\r\nL\t1\t0\r\nB\r\n");
}

} // namespace
} // namespace rhomba
