#include "ui/Commands.h"

#include "support/FakeShellHost.h"
#include "support/Paths.h"
#include "support/TempFile.h"
#include "ui/Editor.h"

#include <gtest/gtest.h>

namespace rhomba::test {
namespace {

struct Commands : ::testing::Test {
    FakeShellHost host;
    Editor editor{host};
    Document& document = editor.document;

    PathObject* AddSquare() { return Add(document, Square(0, 0, 10)); }
};

// Every command runs and repaints once, unless it only reads the drawing or opens a window of its
// own; the "Bearbeiten" entries that need a selection or clipboard text say so.
TEST_F(Commands, EveryIdRunsRepaintsAndEnablesByTheTable) {
    std::vector<int> quiet, selection, clipboard;
    int commands = 0;
    for (int id = 0; id < 0x10000; ++id) {
        const int before = host.redraws;
        if (!RunCommand(editor, id)) {
            EXPECT_EQ(host.redraws, before);
            EXPECT_EQ(EnablingOf(id), CommandEnabling::Always);
            continue;
        }
        ++commands;
        if (host.redraws == before) quiet.push_back(id);
        else EXPECT_EQ(host.redraws, before + 1) << id;
        EXPECT_EQ(CommandRedraws(id), host.redraws != before) << id;
        if (EnablingOf(id) == CommandEnabling::Selection) selection.push_back(id);
        if (EnablingOf(id) == CommandEnabling::ClipboardText) clipboard.push_back(id);
    }
    EXPECT_EQ(commands, 43);
    EXPECT_EQ(quiet, (std::vector<int>{IDM_ABOUT, IDM_EXIT, IDM_COPY, IDM_PROPERTIES, IDM_EXPORT_QUENDA,
                                       IDM_EXPORT_EMF, IDM_EXPORT_SVG, IDM_PRINT, IDM_UNDO, IDM_REDO}));
    EXPECT_EQ(selection, (std::vector<int>{IDM_COPY, IDM_DELETE, IDM_ROTATE, IDM_STRETCH, IDM_SHEAR,
                                           IDM_MOVE, IDM_CUT}));
    EXPECT_EQ(clipboard, std::vector<int>{IDM_PASTE});
    EXPECT_EQ(host.platformCalls, (std::vector<std::string>{"about", "quit", "emf", "print", "settings"}));

    EXPECT_TRUE(editor.view.switches.isometricLines); // the editor starts with them
    EXPECT_FALSE(IsEnabledNow(editor, CommandEnabling::Selection));
    EXPECT_FALSE(IsEnabledNow(editor, CommandEnabling::ClipboardText));
    AddSquare();
    host.clipboard = ClipboardText{"x", false};
    EXPECT_TRUE(IsEnabledNow(editor, CommandEnabling::Selection));
    EXPECT_TRUE(IsEnabledNow(editor, CommandEnabling::ClipboardText));
}

TEST_F(Commands, SelectionDialogsAskForASelectionGeneratorsDoNot) {
    for (int id : {IDM_ROTATE, IDM_STRETCH, IDM_SHEAR, IDM_MOVE, IDM_CYLINDER, IDM_PLANE}) RunCommand(editor, id);
    EXPECT_EQ(host.messages, std::vector<std::string>(6, "Kein Object markiert!"));
    EXPECT_TRUE(host.dialogs.empty());
    for (int id : {IDM_POLYGON, IDM_CIRCLE, IDM_SINE, IDM_SPIRAL}) RunCommand(editor, id);
    EXPECT_EQ(host.dialogs, (std::vector<int>{IDD_POLYGON, IDD_CIRCLE, IDD_SINE, IDD_SPIRAL}));

    PathObject* square = AddSquare();
    host.dialogInput = [](FieldTable& fields) { fields.SetText(IDC_MOVE_X, "10"); };
    RunCommand(editor, IDM_MOVE);
    EXPECT_NEAR(square->PointAt(0).x, 10 * 2.834653369727658, 1e-9);
    EXPECT_EQ(editor.memory.move.xMillimetres, 10); // remembered by this editor's dialogs
}

TEST_F(Commands, SaveFallsBackToSaveAsAndReportsWhatCannotBeWritten) {
    TempFile file("commands.rhomba");
    AddSquare();
    host.fileToSave = file.path.substr(0, file.path.size() - 7); // typed without extension
    RunCommand(editor, IDM_SAVE);
    ASSERT_EQ(host.saveDialogs.size(), 1u);
    EXPECT_EQ(document.GetFileName(), file.path);
    EXPECT_EQ(host.title, file.path);

    const std::string missing = MissingFolderPath("plan.rhomba");
    document.SetFileName(missing);
    RunCommand(editor, IDM_SAVE);
    EXPECT_EQ(host.saveDialogs.size(), 1u);
    EXPECT_EQ(host.messages.back(), missing + " konnte nicht zum Schreiben ge\xF6" "ffnet werden.");

    RunCommand(editor, IDM_EXPORT_SVG);
    EXPECT_EQ(host.saveDialogs.back().proposal, missing.substr(0, missing.size() - 6) + "svg");
}

TEST_F(Commands, CopyPasteCutAndTheToggles) {
    AddSquare();
    RunCommand(editor, IDM_COPY);
    ASSERT_TRUE(host.clipboard);
    RunCommand(editor, IDM_PASTE);
    EXPECT_EQ(document.CurrentLayer().ChildCount(), 2u);
    RunCommand(editor, IDM_CUT);
    EXPECT_EQ(document.CurrentLayer().ChildCount(), 1u);

    RunCommand(editor, IDM_DRAFT);
    EXPECT_TRUE(document.GetFlags() & Document::kFlagDraft);
    EXPECT_TRUE(host.checks[IDM_DRAFT]);
    RunCommand(editor, IDM_DRAFT);
    EXPECT_FALSE(document.GetFlags() & Document::kFlagDraft);

    host.checks[IDM_PROPERTIES] = true; // the panel starts shown
    RunCommand(editor, IDM_PROPERTIES);
    EXPECT_FALSE(host.panelShown);
    EXPECT_FALSE(host.checks[IDM_PROPERTIES]);

    RunCommand(editor, IDM_IMPORT_QUENDA);
    EXPECT_EQ(host.messages.back(), "Das Quenda-Grafikformat wird von dieser Version nicht unterst\xFCtzt.");
}

} // namespace
} // namespace rhomba::test
