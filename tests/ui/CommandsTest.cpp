#include "ui/Commands.h"

#include "support/FakeShellHost.h"
#include "support/Paths.h"
#include "support/TempFile.h"
#include "ui/Editor.h"
#include "ui/dialogs/AffineDialogs.h"

#include <gtest/gtest.h>

namespace rhomba::test {
namespace {

struct Commands : ::testing::Test {
    FakeShellHost host;
    Editor editor{host};
    Document& document = editor.document;

    PathObject* AddSquare() { return Add(document, Square(0, 0, 10)); }
};

// Every command runs, and repaints unless it only reads the drawing or opens a window of its own.
TEST_F(Commands, EveryCommandRunsAndRepaintsByTheTable) {
    const int quiet[] = {IDM_EXPORT_QUENDA, IDM_EXPORT_SVG, IDM_EXPORT_EMF, IDM_PRINT, IDM_EXIT,
                         IDM_UNDO,          IDM_REDO,       IDM_COPY,       IDM_PROPERTIES, IDM_ABOUT};
    const int loud[] = {IDM_NEW,       IDM_OPEN,      IDM_IMPORT_QUENDA, IDM_SAVE,          IDM_SAVE_AS,
                        IDM_SETTINGS,  IDM_PASTE,     IDM_CUT,           IDM_DELETE,        IDM_ISO_LEFT,
                        IDM_ISO_RIGHT, IDM_ISO_TOP1,  IDM_ISO_TOP2,      IDM_ISO_BACK_LEFT, IDM_ISO_BACK_RIGHT,
                        IDM_ISO_BACK_TOP1, IDM_ISO_BACK_TOP2, IDM_CYLINDER, IDM_PLANE,   IDM_ROTATE,
                        IDM_STRETCH,   IDM_SHEAR,     IDM_MOVE,          IDM_BACK_ONE,      IDM_BACK_ALL,
                        IDM_FORWARD_ONE, IDM_FORWARD_ALL, IDM_POLYGON,   IDM_CIRCLE,        IDM_SINE,
                        IDM_SPIRAL,    IDM_DRAFT,     IDM_TEXT_TO_PATH};
    for (int id : quiet) {
        const int before = host.redraws;
        EXPECT_TRUE(RunCommand(editor, id)) << id;
        EXPECT_EQ(host.redraws, before) << id;
    }
    for (int id : loud) {
        const int before = host.redraws;
        EXPECT_TRUE(RunCommand(editor, id)) << id;
        EXPECT_EQ(host.redraws, before + 1) << id;
    }
    EXPECT_FALSE(RunCommand(editor, IDC_COPY_EDIT));
    EXPECT_EQ(host.platformCalls, (std::vector<std::string>{"emf", "print", "quit", "about", "settings"}));
}

TEST_F(Commands, EditMenuEnablingFollowsSelectionAndClipboard) {
    for (int id : {IDM_COPY, IDM_CUT, IDM_DELETE, IDM_ROTATE, IDM_STRETCH, IDM_SHEAR, IDM_MOVE}) {
        EXPECT_EQ(EnablingOf(id), CommandEnabling::Selection) << id;
    }
    EXPECT_EQ(EnablingOf(IDM_PASTE), CommandEnabling::ClipboardText);
    for (int id : {IDM_UNDO, IDM_CYLINDER, IDM_PLANE, IDM_ISO_LEFT, IDM_NEW}) {
        EXPECT_EQ(EnablingOf(id), CommandEnabling::Always) << id;
    }
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
    Rect2 box;
    ASSERT_TRUE(square->GetBounds(box, false));
    EXPECT_NEAR(box.left, 10 * 2.834653369727658, 1e-9);
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
