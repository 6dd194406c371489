#include "cli/Step.h"
#include "CliHarness.h"

#include <algorithm>

namespace rhomba::cli {
namespace {

using Cli = CliHarness;

const std::string kExample = std::string(RHOMBA_EXAMPLES_DIR) + "/haus.rhomba";

// Two paths on one layer, a group of two more, and a hidden second layer with one path.
const std::string kDrawing =
    "Rhomba Version 1.0\r\n\r\nLayer EVP eins\r\n\r\nPathObject a\r\nM\t0\t0\r\nL\t1\t0\r\nB\r\n"
    "\r\nM\t0\t0\r\nL\t2\t0\r\nB\r\n\r\nGroup g\r\n\r\nM\t0\t0\r\nL\t3\t0\r\nB\r\n"
    "\r\nM\t0\t0\r\nL\t4\t0\r\nB\r\nGroupEnd\r\n\r\nLayer Evp zwei\r\n\r\nM\t0\t0\r\nL\t5\t0\r\nB\r\n"
    "\r\nRhombaEnd\r\n";

TEST_F(Cli, MissingOrWrongArgumentsExitTwoWithUsage) {
    for (const auto& args : std::vector<std::vector<std::string>>{
             {}, {"convert", "a"}, {"info"}, {"frobnicate", "a", "b"}, {"apply", "-"},
             {"convert", kExample, Temp("x.txt")}, {"apply", "-", Temp("u.rhomba"), "fly away"},
             {"apply", "-", Temp("u.rhomba"), "select", "all", "fly"}}) {
        EXPECT_EQ(Run(args), kExitUsage);
        EXPECT_NE(err.find("usage: rhomba-cli"), std::string::npos);
    }
    EXPECT_FALSE(std::filesystem::exists(Temp("u.rhomba")));
    // Words a step cannot use stop the run with the step's grammar.
    EXPECT_EQ(Apply(kDrawing, {"arrange", "2"}), kExitUsage);
    EXPECT_NE(err.find("step 'arrange 2' not usable; expected: arrange -1|-111|1|111"),
              std::string::npos);
    for (const char* step : {"sine 10 0 4 0 0 7", "cylinder 30 1 9"}) {
        EXPECT_EQ(Apply(kDrawing, {"select all", step}), kExitUsage) << step;
    }
}

TEST_F(Cli, ConvertKeepsNativeBytesAndWritesSvg) {
    EXPECT_EQ(Run({"convert", kExample, Temp("haus-kopie.rhomba")}), kExitOk);
    EXPECT_EQ(Read(Temp("haus-kopie.rhomba")), Read(kExample));
    EXPECT_EQ(Run({"convert", kExample, Temp("haus.svg")}), kExitOk);
    EXPECT_EQ(Read(Temp("haus.svg")).rfind("<?xml version=\"1.0\"?>\r\n<!DOCTYPE svg>", 0), 0u);
    EXPECT_EQ(Apply("-", {}), kExitOk); // "-" is a new drawing
}

TEST_F(Cli, FilesThatCannotBeReadOrWrittenGiveTheProgramsMessageInUtf8AndExitOne) {
    Write(Temp("kaputt.rhomba"), "Kein Rhomba, nur Text mit genug Bytes");
    const std::string folder = test::TestFolder().string() + "/";
    const std::string unwritable = Temp("gibt-es-nicht/x.txt");
    const struct {
        std::vector<std::string> args;
        std::string message;
    } cases[] = {
        {{"convert", Temp("kaputt.rhomba"), Temp("k.svg")},
         "Es ist keine Rhomba-Datei.\r\n\r\nAnfang: Kein Rhomba"},
        {{"info", folder}, "Die Datei '" + folder + "' konnte nicht zum Lesen ge\xC3\xB6" "ffnet"},
        {{"convert", folder, Temp("k.svg")}, "'" + folder + "' konnte nicht zum Lesen"},
        {{"apply", "-", unwritable}, unwritable + " konnte nicht zum Schreiben ge\xC3\xB6" "ffnet"},
        // A failed copy fails the run, though the drawing itself is written.
        {{"apply", kExample, Temp("c.rhomba"), "select", "all", "copy", unwritable},
         unwritable + " konnte nicht zum Schreiben"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Run(c.args), kExitFailed) << c.message;
        EXPECT_NE(err.find(c.message), std::string::npos) << err;
    }
    EXPECT_EQ(Read(Temp("c.rhomba")), Read(kExample));
}

TEST(CliTerminalText, ProgramTextsBecomeUtf8AndUtf8StaysAsItIs) {
    EXPECT_EQ(TerminalText("ge\xF6" "ffnet \x80 \xC3"), "ge\xC3\xB6" "ffnet \xE2\x82\xAC \xC3\x83");
    EXPECT_EQ(TerminalText("Gr\xC3\xB6\xC3\x9F" "e \xE2\x82\xAC"), "Gr\xC3\xB6\xC3\x9F" "e \xE2\x82\xAC");
}

TEST_F(Cli, InfoListsTheTreeIndentedWithKindsIdsNamesAndFlags) {
    Write(Temp("info.rhomba"), kDrawing);
    EXPECT_EQ(Run({"info", Temp("info.rhomba")}), kExitOk);
    EXPECT_EQ(out, "16 #1 Gruppe mit 2 Objekten\n"
                   "  15 #2 Gruppe mit 3 Objekten \"eins\"\n"
                   "    1 #3 Pfad mit 2 Knoten \"a\"\n"
                   "    1 #4 Pfad mit 2 Knoten\n"
                   "    14 #5 Gruppe mit 2 Objekten \"g\"\n"
                   "      1 #6 Pfad mit 2 Knoten\n"
                   "      1 #7 Pfad mit 2 Knoten\n"
                   "  15 #8 Gruppe mit 1 Objekten \"zwei\" hidden\n"
                   "    1 #9 Pfad mit 2 Knoten\n");
}

TEST_F(Cli, StepsAreShellWordsAndAQuotedWholeStepStillWorks) {
    // A word holding a blank stays one typed text: "-3 mm" reads as the dialog reads it.
    ASSERT_EQ(Apply(kDrawing, {"select", "name", "a", "move", "2,5cm", "-3 mm", "prop",
                               "SetName", "Mein Name", "prop", "SetPenWidth 2"}),
              kExitOk);
    EXPECT_NEAR(PathAt(0, 0).PointAt(1).x, 1 + 2.5 * 2.834653369727658, 1e-4);
    EXPECT_NEAR(PathAt(0, 0).PointAt(1).y, -3 * 2.834653369727658, 1e-4);
    EXPECT_EQ(PathAt(0, 0).GetName(), "Mein Name");
    EXPECT_EQ(PathAt(0, 0).GetPenWidth(), 2);
    const std::string plain = Read(Temp("out.rhomba"));
    ASSERT_EQ(Apply(kDrawing, {"select name a", "move 2,5cm -3mm", "prop SetName Mein Name",
                               "prop SetPenWidth 2"}),
              kExitOk);
    EXPECT_EQ(Read(Temp("out.rhomba")), plain);
}

TEST_F(Cli, SelectTakesDirectChildrenOfVisibleLayersOrAnyObjectByIdOrName) {
    EXPECT_EQ(Apply(kDrawing, {"select", "all", "delete"}), kExitOk);
    // The emptied first layer is taken over by the second Layer line when read back.
    ASSERT_EQ(result.LayerCount(), 1u);
    EXPECT_EQ(result.LayerAt(0).GetName(), "zwei");
    std::string shown = kDrawing; // every visible layer counts
    ASSERT_EQ(Apply(shown.replace(shown.find("Evp"), 3, "EVP"), {"select all", "delete"}), kExitOk);
    EXPECT_EQ(result.CountObjects(), 0);
    // #9 is on the hidden layer; grouping puts the group on the layer of the last selected.
    EXPECT_EQ(Apply(kDrawing, {"select name a", "select id 4", "group", "deselect", "select id 9",
                               "delete", "select id 999", "select name nix"}),
              kExitOk);
    ASSERT_EQ(result.LayerAt(0).ChildCount(), 2u);
    EXPECT_EQ(result.LayerAt(0).ChildAt(1)->GetKind(), ObjectKind::Group);
    EXPECT_EQ(result.LayerAt(1).ChildCount(), 0u);
    EXPECT_NE(err.find("no object #999"), std::string::npos);

    EXPECT_EQ(Apply(kDrawing, {"select", "name", "a", "arrange", "111"}), kExitOk);
    EXPECT_EQ(result.LayerAt(0).ChildAt(2)->GetName(), "a");
    EXPECT_EQ(Apply(kDrawing, {"select", "name", "g", "ungroup"}), kExitOk);
    EXPECT_EQ(result.LayerAt(0).ChildCount(), 4u);
}

TEST_F(Cli, PropChangesEverySelectedObjectThroughGroups) {
    EXPECT_EQ(Apply(kDrawing, {"select all", "prop SetPenWidth 0.5", "prop SetStrokeColor FF0000",
                               "deselect", "select id 9", "prop SetFill 0"}),
              kExitOk);
    const Group& group = static_cast<const Group&>(*result.LayerAt(0).ChildAt(2));
    EXPECT_EQ(group.ChildAt(1)->GetPenWidth(), 0.5);
    EXPECT_EQ(group.ChildAt(1)->GetStrokeColor(), 0x0000FFu);
    EXPECT_FALSE(result.LayerAt(1).ChildAt(0)->HasFill());
    EXPECT_TRUE(result.LayerAt(0).ChildAt(0)->HasFill());
}

TEST_F(Cli, CopyAndPasteThroughFiles) {
    const std::string clip = Temp("clip.txt");
    std::filesystem::remove(clip);
    EXPECT_EQ(Apply(kDrawing, {"copy", clip}), kExitOk);
    EXPECT_FALSE(std::filesystem::exists(clip)); // nothing selected, nothing written
    EXPECT_EQ(Apply(kDrawing, {"select name g", "copy " + clip, "new", "paste", clip}), kExitOk);
    ASSERT_EQ(result.LayerAt(0).ChildCount(), 1u);
    EXPECT_EQ(result.LayerAt(0).ChildAt(0)->GetName(), "g");

    std::string lines;
    for (int i = 0; i < 150; ++i) lines += "Zeile\r\n";
    Write(Temp("zeilen.txt"), lines);
    EXPECT_EQ(Apply("-", {"paste", Temp("zeilen.txt"), "y,n"}), kExitOk);
    EXPECT_NE(err.find("Es wurden 100 Zeilen"), std::string::npos);
    EXPECT_EQ(static_cast<const Group&>(*result.LayerAt(0).ChildAt(0)).ChildCount(), 100u);
    Apply("-", {"paste " + Temp("zeilen.txt") + " n"});
    EXPECT_EQ(result.CurrentLayer().ChildCount(), 0u);
    // A folder pastes nothing and says why, like the loader.
    EXPECT_EQ(Apply("-", {"paste", test::TestFolder().string()}), kExitOk);
    EXPECT_NE(err.find("konnte nicht zum Lesen"), std::string::npos);
}

TEST(CliSteps, EveryStepHasAUniqueKeywordAndUsage) {
    std::vector<std::string_view> seen;
    for (const Step& step : AllSteps()) {
        EXPECT_FALSE(step.usage.empty());
        EXPECT_EQ(std::find(seen.begin(), seen.end(), step.keyword), seen.end()) << step.keyword;
        seen.push_back(step.keyword);
    }
}

} // namespace
} // namespace rhomba::cli
