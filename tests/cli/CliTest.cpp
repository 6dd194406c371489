#include "cli/Cli.h"
#include "cli/Step.h"
#include "format/NativeReader.h"
#include "format/NativeWriter.h"
#include "model/Document.h"
#include "model/PathObject.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace rhomba::cli {
namespace {

std::string TempPath(const std::string& name) {
    return (std::filesystem::path(testing::TempDir()) / name).string();
}

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void WriteFile(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

struct Result {
    int code;
    std::string out;
    std::string err;
};

Result Cli(std::vector<std::string> args) {
    std::ostringstream out, err;
    const int code = Run(args, out, err);
    return {code, out.str(), err.str()};
}

const std::string kExample = std::string(RHOMBA_EXAMPLES_DIR) + "/haus.rhomba";

// Two paths on one layer, a group of two more, and a hidden second layer with one path.
const std::string kDrawing =
    "Rhomba Version 1.0\r\n\r\nLayer EVP eins\r\n\r\nPathObject a\r\nM\t0\t0\r\nL\t1\t0\r\nB\r\n"
    "\r\nM\t0\t0\r\nL\t2\t0\r\nB\r\n\r\nGroup g\r\n\r\nM\t0\t0\r\nL\t3\t0\r\nB\r\n"
    "\r\nM\t0\t0\r\nL\t4\t0\r\nB\r\nGroupEnd\r\n\r\nLayer Evp zwei\r\n\r\nM\t0\t0\r\nL\t5\t0\r\nB\r\n"
    "\r\nRhombaEnd\r\n";

TEST(CliUsage, MissingOrWrongArgumentsExitTwoWithUsage) {
    for (const auto& args : std::vector<std::vector<std::string>>{
             {}, {"convert", "a"}, {"info"}, {"frobnicate", "a", "b"}, {"apply", "-"},
             {"convert", kExample, TempPath("x.txt")}}) {
        const Result result = Cli(args);
        EXPECT_EQ(result.code, kExitUsage);
        EXPECT_NE(result.err.find("usage: rhomba-cli"), std::string::npos);
    }
    const Result unknown = Cli({"apply", "-", TempPath("u.rhomba"), "fly away"});
    EXPECT_EQ(unknown.code, kExitUsage);
    EXPECT_FALSE(std::filesystem::exists(TempPath("u.rhomba")));
}

TEST(CliConvert, NativeToNativeKeepsTheBytesAndToSvgWritesSvg) {
    const std::string native = TempPath("haus-kopie.rhomba");
    const std::string svg = TempPath("haus.svg");
    EXPECT_EQ(Cli({"convert", kExample, native}).code, kExitOk);
    EXPECT_EQ(ReadFile(native), ReadFile(kExample));
    EXPECT_EQ(Cli({"convert", kExample, svg}).code, kExitOk);
    const std::string text = ReadFile(svg);
    EXPECT_EQ(text.rfind("<?xml version=\"1.0\"?>\r\n", 0), 0u);
    EXPECT_NE(text.find("<path style="), std::string::npos);
}

TEST(CliConvert, LoadFailurePrintsTheLoaderMessageAndExitsOne) {
    const std::string bad = TempPath("kaputt.rhomba");
    WriteFile(bad, "Kein Rhomba, nur Text mit genug Bytes");
    const Result result = Cli({"convert", bad, TempPath("k.svg")});
    EXPECT_EQ(result.code, kExitFailed);
    EXPECT_NE(result.err.find("Es ist keine Rhomba-Datei.\r\n\r\nAnfang: Kein Rhomba"), std::string::npos);
    EXPECT_EQ(Cli({"info", TempPath("fehlt.rhomba")}).code, kExitFailed);
}

TEST(CliInfo, ListsTheTreeIndentedWithKindsIdsNamesAndFlags) {
    const std::string in = TempPath("info.rhomba");
    WriteFile(in, kDrawing);
    const Result result = Cli({"info", in});
    EXPECT_EQ(result.code, kExitOk);
    EXPECT_EQ(result.out, "16 #1 Gruppe mit 2 Objekten\n"
                          "  15 #2 Gruppe mit 3 Objekten \"eins\"\n"
                          "    1 #3 Pfad mit 2 Knoten \"a\"\n"
                          "    1 #4 Pfad mit 2 Knoten\n"
                          "    14 #5 Gruppe mit 2 Objekten \"g\"\n"
                          "      1 #6 Pfad mit 2 Knoten\n"
                          "      1 #7 Pfad mit 2 Knoten\n"
                          "  15 #8 Gruppe mit 1 Objekten \"zwei\" hidden\n"
                          "    1 #9 Pfad mit 2 Knoten\n");
}

// Runs apply on kDrawing and returns the loaded result.
Result Apply(std::vector<std::string> steps, Document& result, const std::string& in = kDrawing) {
    const std::string inPath = TempPath("apply-in.rhomba");
    const std::string outPath = TempPath("apply-out.rhomba");
    WriteFile(inPath, in);
    std::filesystem::remove(outPath);
    std::vector<std::string> args{"apply", inPath, outPath};
    args.insert(args.end(), steps.begin(), steps.end());
    const Result run = Cli(args);
    std::ostringstream ignored;
    StreamReporter reporter(ignored);
    if (run.code == kExitOk) {
        EXPECT_TRUE(LoadNativeFile(result, outPath, reporter));
    }
    return run;
}

TEST(CliApply, SelectAllTakesDirectChildrenOfVisibleLayersAndDeleteRemovesThem) {
    Document doc;
    EXPECT_EQ(Apply({"select all", "delete"}, doc).code, kExitOk);
    // The hidden layer is left alone; the emptied first layer is then taken over by the second
    // Layer line when the file is read back.
    ASSERT_EQ(doc.LayerCount(), 1u);
    EXPECT_EQ(doc.LayerAt(0).GetName(), "zwei");
    EXPECT_EQ(doc.LayerAt(0).ChildCount(), 1u);
}

TEST(CliApply, SelectByIdAndNameIncludesHiddenOnesAndGroupUngroupArrange) {
    Document doc;
    // #9 is on the hidden layer; grouping puts the group on the layer of the last selected.
    EXPECT_EQ(Apply({"select name a", "select id 4", "group", "deselect", "select id 9", "delete"}, doc).code,
              kExitOk);
    Layer& first = doc.LayerAt(0);
    ASSERT_EQ(first.ChildCount(), 2u);
    EXPECT_EQ(first.ChildAt(1)->GetKind(), ObjectKind::Group);
    EXPECT_EQ(doc.LayerAt(1).ChildCount(), 0u);

    Document arranged;
    EXPECT_EQ(Apply({"select name a", "arrange 111"}, arranged).code, kExitOk);
    EXPECT_EQ(arranged.LayerAt(0).ChildAt(2)->GetName(), "a");

    Document ungrouped;
    EXPECT_EQ(Apply({"select name g", "ungroup"}, ungrouped).code, kExitOk);
    EXPECT_EQ(ungrouped.LayerAt(0).ChildCount(), 4u);

    Document bad;
    EXPECT_EQ(Apply({"arrange 2"}, bad).code, kExitUsage);
    const Result missing = Apply({"select id 999", "select name nix"}, bad);
    EXPECT_EQ(missing.code, kExitOk);
    EXPECT_NE(missing.err.find("no object #999"), std::string::npos);
}

TEST(CliApply, PropChangesEverySelectedObjectThroughGroups) {
    Document doc;
    EXPECT_EQ(Apply({"select all", "prop SetPenWidth 0.5", "prop SetStrokeColor FF0000",
                     "deselect", "select id 9", "prop SetFill 0"}, doc).code,
              kExitOk);
    const Group& group = static_cast<const Group&>(*doc.LayerAt(0).ChildAt(2));
    EXPECT_EQ(group.ChildAt(1)->GetPenWidth(), 0.5);
    EXPECT_EQ(group.ChildAt(1)->GetStrokeColor(), 0x0000FFu);
    EXPECT_EQ(doc.LayerAt(0).ChildAt(0)->GetPenWidth(), 0.5);
    EXPECT_FALSE(doc.LayerAt(1).ChildAt(0)->HasFill());
    EXPECT_TRUE(doc.LayerAt(0).ChildAt(0)->HasFill());
}

TEST(CliApply, CopyAndPasteThroughFilesAndNewStartsAgain) {
    const std::string clip = TempPath("clip.txt");
    std::filesystem::remove(clip);
    Document doc;
    EXPECT_EQ(Apply({"copy " + clip}, doc).code, kExitOk);
    EXPECT_FALSE(std::filesystem::exists(clip)); // nothing selected, nothing written
    EXPECT_EQ(Apply({"select name g", "copy " + clip, "new", "paste " + clip}, doc).code, kExitOk);
    ASSERT_EQ(doc.LayerCount(), 1u);
    ASSERT_EQ(doc.LayerAt(0).ChildCount(), 1u);
    EXPECT_EQ(doc.LayerAt(0).ChildAt(0)->GetName(), "g");

    const std::string plain = TempPath("zeilen.txt");
    std::string lines;
    for (int i = 0; i < 150; ++i) lines += "Zeile\r\n";
    WriteFile(plain, lines);
    Document imported;
    const Result run = Apply({"new", "paste " + plain + " y,n"}, imported);
    EXPECT_EQ(run.code, kExitOk);
    EXPECT_NE(run.err.find("Es wurden 100 Zeilen"), std::string::npos);
    const Group& group = static_cast<const Group&>(*imported.LayerAt(0).ChildAt(0));
    EXPECT_EQ(group.ChildCount(), 100u);

    Document refused;
    Apply({"new", "paste " + plain + " n"}, refused);
    EXPECT_EQ(refused.CurrentLayer().ChildCount(), 0u);
}

TEST(CliApply, NewDocumentFromDashAndSvgOutput) {
    const std::string out = TempPath("leer.svg");
    EXPECT_EQ(Cli({"apply", "-", out}).code, kExitOk);
    const std::string text = ReadFile(out);
    EXPECT_EQ(text.substr(text.size() - 6), "</svg>");
}

TEST(CliSteps, EveryStepHasAUniqueKeywordAndUsage) {
    std::vector<std::string_view> seen;
    for (const Step& step : AllSteps()) {
        EXPECT_FALSE(step.usage.empty());
        EXPECT_EQ(std::find(seen.begin(), seen.end(), step.keyword), seen.end()) << step.keyword;
        seen.push_back(step.keyword);
    }
    EXPECT_GE(seen.size(), 10u);
}

} // namespace
} // namespace rhomba::cli
