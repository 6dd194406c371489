// The editor started in the test process: its windows, menus, registry values and commands.
#include "support/Paths.h"
#include "win32/support/EditorFixture.h"
#include "win32/support/ModalDriver.h"

#include "ui/resource.h"

#include <gtest/gtest.h>

namespace rhomba::test {
namespace {

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = {};
    ::GetClassNameW(window, name, 64);
    return name;
}

std::wstring RegistryDefault(const wchar_t* key) {
    wchar_t value[600] = {};
    LONG size = sizeof value;
    ::RegQueryValueW(HKEY_CLASSES_ROOT, key, value, &size);
    return value;
}

using EditorShell = EditorFixture;

TEST_F(EditorShell, StartsWithItsWindowsLaidOutAndTheFileTypeRegistered) {
    const Shell& shell = TheShell();
    EXPECT_EQ(ClassOf(shell.main), L"Rhomba");
    EXPECT_EQ(ModalDriver::Text(shell.main), "Rhomba");
    EXPECT_EQ(ClassOf(shell.canvas), L"RHOMBAVIEW");
    EXPECT_EQ(::GetParent(shell.canvas), shell.main);

    RECT client{}, palette{}, status{}, canvas{};
    ::GetClientRect(shell.main, &client);
    ::GetWindowRect(shell.palette, &palette);
    ::GetWindowRect(shell.status, &status);
    ::GetWindowRect(shell.canvas, &canvas);
    ::MapWindowPoints(nullptr, shell.main, reinterpret_cast<POINT*>(&palette), 2);
    ::MapWindowPoints(nullptr, shell.main, reinterpret_cast<POINT*>(&status), 2);
    ::MapWindowPoints(nullptr, shell.main, reinterpret_cast<POINT*>(&canvas), 2);
    EXPECT_EQ(palette.left, -1);
    EXPECT_EQ(status.bottom, client.bottom);
    EXPECT_EQ(status.right - status.left, client.right + 2);
    EXPECT_EQ(canvas.left, palette.right + 1); // the palette starts one pixel off the edge
    EXPECT_EQ(canvas.right, client.right);
    EXPECT_EQ(canvas.bottom, status.top + 1);

    HMENU menu = ::GetMenu(shell.main);
    EXPECT_TRUE(::GetMenuState(menu, IDM_PROPERTIES, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(::GetMenuState(menu, IDM_UNDO, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_EQ(ModalDriver::Text(::GetDlgItem(shell.palette, IDC_ZOOM)), "50 %");

    EXPECT_EQ(RegistryDefault(L".rhomba"), L"Rhomba");
    const std::wstring command = RegistryDefault(L"Rhomba\\shell\\open\\command");
    EXPECT_EQ(command.front(), L'"');
    EXPECT_NE(command.find(L".exe\" \"%1\""), std::wstring::npos);
}

TEST_F(EditorShell, CommandLineLosesEveryQuote) {
    EXPECT_EQ(CommandLineFileName("\"C:\\Zeichnungen\\Ha\"us.rhomba\""), "C:\\Zeichnungen\\Haus.rhomba");
    EXPECT_EQ(CommandLineFileName("\"\"\""), "");
}

TEST_F(EditorShell, MissingCommandLineFileIsReportedAndLeavesAWorkingEditor) {
    Stop();
    ModalDriver driver;
    driver.Answer(IDOK);
    ASSERT_TRUE(Start("\"Z:\\nirgends\\fehlt.rhomba\""));
    ASSERT_EQ(driver.seen.size(), 1u);
    EXPECT_EQ(driver.seen[0],
              "Rhomba|Die Datei 'Z:\\nirgends\\fehlt.rhomba' konnte nicht zum Lesen ge\xF6" "ffnet werden.");
    EXPECT_EQ(Doc().LayerCount(), 0u);
}

// The "Bearbeiten" menu as it opens, with and without a selection and clipboard text.
TEST_F(EditorShell, EditMenuFollowsSelectionAndClipboard) {
    HMENU edit = ::GetSubMenu(::GetMenu(TheShell().main), 1);
    auto grayed = [edit](int id, UINT by = MF_BYCOMMAND) {
        return (::GetMenuState(edit, id, by) & MF_GRAYED) != 0;
    };
    auto open = [edit] { ::SendMessageW(TheShell().main, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(edit), 1); };

    ::OpenClipboard(TheShell().main);
    ::EmptyClipboard();
    ::CloseClipboard();
    open();
    EXPECT_TRUE(grayed(IDM_PASTE));
    for (int id : {IDM_COPY, IDM_CUT, IDM_DELETE, IDM_ROTATE, IDM_STRETCH, IDM_SHEAR, IDM_MOVE}) {
        EXPECT_TRUE(grayed(id)) << id;
    }
    EXPECT_TRUE(grayed(POS_ISOMETRY_POPUP, MF_BYPOSITION));
    EXPECT_FALSE(grayed(POS_ISOMETRY_POPUP + 1, MF_BYPOSITION)); // "Is&ometrie II"

    Add(Doc(), Square(0, 0, 10));
    Command(IDM_COPY); // text on the clipboard enables paste
    open();
    EXPECT_FALSE(grayed(IDM_PASTE));
    for (int id : {IDM_COPY, IDM_CUT, IDM_DELETE, IDM_ROTATE, IDM_STRETCH, IDM_SHEAR, IDM_MOVE}) {
        EXPECT_FALSE(grayed(id)) << id;
    }
    EXPECT_FALSE(grayed(POS_ISOMETRY_POPUP, MF_BYPOSITION));
    EXPECT_TRUE(grayed(IDM_UNDO));
    EXPECT_TRUE(grayed(IDM_REDO));
}

} // namespace
} // namespace rhomba::test
