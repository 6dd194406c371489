#include "export/ExportFileName.h"
#include "export/SvgWriter.h"
#include "format/NativeReader.h"
#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/PathObject.h"
#include "support/Paths.h"
#include "support/Reporters.h"
#include "support/TempFile.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace rhomba {
namespace {

using test::RecordingReporter;
constexpr auto Path = test::NodePath;

const std::string kPrologue =
    "<?xml version=\"1.0\"?>\r\n<!DOCTYPE svg>\r\n<svg xmlns=\"http://www.w3.org/2000/svg\"";
const std::string kDescAndScale =
    "<desc>SVG-Datei von Rhomba. Wenn SVG halb so kompliziert waere, waere es doppel so "
    "verbreitet.</desc>\r\n<g transform=\"scale(1.333333)\">\t<!-- Pixel zu Punkt skalieren, der "
    "Wert 1.333333 (96/72) kann bei Bedarf angepasst werden -->\r\n";

std::string PathSvg(PathObject& path, const Matrix2D& matrix = {}) {
    SvgWriter out;
    path.ExportSvg(out, matrix, 1);
    return out.Take();
}

TEST(SvgExport, EmptyDrawingStillHasTheWholeSkeleton) {
    Document doc;
    EXPECT_EQ(BuildSvgDocument(doc), kPrologue + " width=\"0\" height=\"0\">\r\n" + kDescAndScale +
                                         "</g>\r\n</svg>");
}

TEST(SvgExport, DocumentBoxSizesThePictureAndMovesTheTopLeftToTheOrigin) {
    Document doc;
    auto path = Path({{{10, 20}, node::kMoveTo}, {{110, 70}, node::kLineTo}});
    path->SetFill(false);
    doc.AddObject(std::move(path));
    EXPECT_EQ(BuildSvgDocument(doc),
              kPrologue + " width=\"134\" height=\"67\">\r\n" + kDescAndScale +
                  "\t<g id=\"Layer_1\">\r\n\t\t<path style=\"stroke: #000000; stroke-width: 0.25; "
                  "fill: none;\" d=\"M 0 50 L 100 0\"/>\r\n\t</g>\r\n</g>\r\n</svg>");
}

TEST(SvgExport, PathDataRoundsMovesAndLinesButNotCurvesAndClosesFigures) {
    auto path = Path({{{0.123456, 0}, node::kMoveTo},
                      {{10, 0}, node::kLineTo},
                      {{10, 10}, node::kLineTo | node::kCloseFigure},
                      {{20, 20}, node::kMoveTo},
                      {{21.123456, 22}, node::kBezierTo},
                      {{23, 24}, node::kBezierTo},
                      {{25, 26}, node::kBezierTo},
                      {{1, 2}, node::kBezierTo},
                      {{3, 4}, node::kBezierTo},
                      {{20, 20}, node::kBezierTo | node::kCloseFigure}});
    EXPECT_EQ(PathSvg(*path),
              "\t<path style=\"stroke: #000000; stroke-width: 0.25; fill: #aaaaaa;\" d=\"M 0.1235 0 "
              "L 10 0 10 10 z M 20 20 C 21.1235 22 23 24 25 26 1 2 3 4 20 20 z\"/>\r\n");
    auto exact = Path({{{0, 0}, node::kMoveTo},
                       {{1.0000001, 2}, node::kBezierTo},
                       {{3, 4}, node::kBezierTo},
                       {{5.55555555, 6}, node::kBezierTo}});
    EXPECT_NE(PathSvg(*exact).find("C 1 2 3 4 5.55556 6\""), std::string::npos);
    auto single = Path({{{0, 0}, node::kMoveTo}});
    EXPECT_EQ(PathSvg(*single), "");
}

TEST(SvgExport, StrokeStyleScalesWidthAndDashesAndColoursAreSwapped) {
    auto path = Path({{{0, 0}, node::kMoveTo}, {{1, 1}, node::kLineTo}});
    path->SetStrokeColor(0x123456);
    path->SetFillColor(0x0000FF);
    path->SetPenWidth(0.33333);
    path->SetDashDot(DashDot{3, 1, 2, 2, 0, 0, 0, 0});
    EXPECT_EQ(PathSvg(*path),
              "\t<path style=\"stroke: #563412; stroke-width: 0.333; stroke-dasharray: 3 1 2 2; "
              "fill: #ff0000;\" d=\"M 0 0 L 1 1\"/>\r\n");
    path->SetStroke(false);
    path->SetFill(false);
    EXPECT_EQ(PathSvg(*path), "\t<path style=\"stroke: none; fill: none;\" d=\"M 0 0 L 1 1\"/>\r\n");

    SvgWriter out;
    out.StrokeStyle(true, 0, 1.0, DashDot{4, 2, 0, 0, 0, 0, 0, 0}, 2, 2.0);
    EXPECT_EQ(out.Text(), "stroke: #000000; stroke-width: 0.5; stroke-dasharray: 2 1; ");
}

TEST(SvgExport, GroupsAndLayersAreWrappedWithUniqueIdsAndIndentationStopsAtTwenty) {
    Document doc;
    Group* container = &doc.CurrentLayer();
    for (int i = 0; i < 25; ++i) {
        container = static_cast<Group*>(container->InsertAt(std::make_unique<Group>(), &doc, 0, 0));
    }
    container->InsertAt(Path({{{0, 0}, node::kMoveTo}, {{1, 1}, node::kLineTo}}), &doc, 0, 0);
    doc.CurrentLayer().InsertAt(std::make_unique<Hotspot>(), &doc, 0, 1);
    const std::string svg = BuildSvgDocument(doc);
    EXPECT_NE(svg.find("\n\t<g id=\"Layer_1\">\r\n\t\t<g id=\"Group_2\">\r\n"), std::string::npos);
    EXPECT_NE(svg.find("<g id=\"Group_1a\">"), std::string::npos); // hexadecimal
    EXPECT_NE(svg.find("\n" + std::string(20, '\t') + "<path"), std::string::npos);
    EXPECT_EQ(svg.find(std::string(21, '\t')), std::string::npos);
    EXPECT_EQ(svg.find("Hotspot"), std::string::npos);
    EXPECT_NE(svg.find("\r\n\t\t</g>\r\n\t</g>\r\n</g>\r\n</svg>"), std::string::npos);
}

TEST(ExportFileName, ProposalsAndCompletionForEitherFormat) {
    for (const std::string ext : {"svg", "emf"}) {
        EXPECT_EQ(ProposeExportFileName("", ext), "Grafik." + ext);
        EXPECT_EQ(ProposeExportFileName("C:\\Zeichnungen\\Plan.rhomba", ext),
                  "C:\\Zeichnungen\\Plan." + ext);
        EXPECT_EQ(ProposeExportFileName("Plan.ISO", ext), "Plan." + ext);
        EXPECT_EQ(ProposeExportFileName("Plan.Pad", ext), "Plan." + ext);
        EXPECT_EQ(ProposeExportFileName("Plan.txt", ext), "Plan.txt");
        EXPECT_EQ(CompleteExportFileName("Plan", ext), "Plan." + ext);
        EXPECT_EQ(CompleteExportFileName("C:\\a.b\\Plan", ext), "C:\\a.b\\Plan." + ext);
        EXPECT_EQ(CompleteExportFileName("Plan.wmf", ext), "Plan.wmf");
    }
}

TEST(SvgExport, WritingToAnImpossiblePathReportsIt) {
    Document doc;
    RecordingReporter reporter;
    const std::string path = test::MissingFolderPath("x.svg");
    EXPECT_FALSE(ExportSvgFile(doc, path, reporter));
    ASSERT_EQ(reporter.messages.size(), 1u);
    EXPECT_EQ(reporter.messages[0], path + " konnte nicht zum Schreiben ge\xF6" "ffnet werden.");
}

bool HaveTool(const char* name) {
#if defined(_WIN32)
    (void)name;
    return false;
#else
    return std::system((std::string("command -v ") + name + " >/dev/null 2>&1").c_str()) == 0;
#endif
}

// Counted in both builds so that their test counts match; it runs where the tools exist.
TEST(SvgExport, ExportedDrawingParsesAsXmlAndRenders) {
    if (!HaveTool("xmllint") || !HaveTool("rsvg-convert")) {
        GTEST_SKIP() << "xmllint and rsvg-convert are needed (libxml2-utils, librsvg2-bin)";
    }
    Document doc;
    RecordingReporter reporter;
    ASSERT_TRUE(LoadNativeFile(doc, RHOMBA_SOURCE_DIR "/examples/haus.rhomba", reporter));
    const std::string dir = test::TestFolder().string();
    const std::string svg = dir + "/haus-export.svg";
    const std::string png = dir + "/haus-export.png";
    ASSERT_TRUE(ExportSvgFile(doc, svg, reporter));
    EXPECT_EQ(std::system(("xmllint --noout '" + svg + "'").c_str()), 0);
    std::filesystem::remove(png);
    EXPECT_EQ(std::system(("rsvg-convert -o '" + png + "' '" + svg + "'").c_str()), 0);
    EXPECT_GT(std::filesystem::file_size(png), 1000u);
}

} // namespace
} // namespace rhomba
