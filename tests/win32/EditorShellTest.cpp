// The editor started in the test process: its windows, menus, registry values and commands.
#include "support/Paths.h"
#include "win32/support/EditorFixture.h"
#include "win32/support/ModalDriver.h"

#include "ui/resource.h"

#include <gtest/gtest.h>

#include <cstring>

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

void PutTextOnClipboard(const std::wstring& text) {
    ASSERT_TRUE(::OpenClipboard(TheShell().main));
    ::EmptyClipboard();
    HGLOBAL data = ::GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    std::memcpy(::GlobalLock(data), text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    ::GlobalUnlock(data);
    ::SetClipboardData(CF_UNICODETEXT, data);
    ::CloseClipboard();
}

TEST_F(EditorShell, CopyAndPasteGoThroughTheRealClipboard) {
    Add(Doc(), Square(0, 0, 10))->SetName("Rahmen");
    Command(IDM_COPY);
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_UNICODETEXT));
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_ENHMETAFILE)); // the picture for other programs
    Command(IDM_PASTE);
    Layer& layer = Doc().CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), 2u);
    EXPECT_EQ(layer.ChildAt(1)->GetName(), "Rahmen");
    EXPECT_EQ(Doc().Selection(), std::vector<GraphicObject*>{layer.ChildAt(1)});

    // Text that is no drawing is offered as an import, with its first characters shown.
    PutTextOnClipboard(L"Ma\u00DFe\tund Gr\u00F6\u00DFen");
    ModalDriver driver;
    driver.Answer(IDYES);
    Command(IDM_PASTE);
    ASSERT_EQ(driver.seen.size(), 1u);
    EXPECT_EQ(driver.seen[0], "Rhomba|M\xF6" "chten Sie ein automatisch generiertes Textobjekte einf\xFC" "gen?");
    ASSERT_EQ(layer.ChildCount(), 3u);
    EXPECT_EQ(layer.ChildAt(2)->GetName(), "importierter Text");
}

// Keys reach the command table through the accelerators, aimed at the canvas as at the main window.
TEST_F(EditorShell, AcceleratorsFromTheCanvasReachTheCommands) {
    Add(Doc(), Square(0, 0, 10));
    Add(Doc(), Square(20, 0, 10));
    BYTE keys[256] = {};
    ::GetKeyboardState(keys);
    keys[VK_CONTROL] = 0x80;
    ::SetKeyboardState(keys);
    MSG key{TheShell().canvas, WM_KEYDOWN, VK_PRIOR, 0, 0, {}};
    EXPECT_TRUE(::TranslateAcceleratorW(key.hwnd, TheShell().accelerators, &key));
    Pump();
    EXPECT_EQ(Doc().CurrentLayer().ChildAt(0), Doc().Selection()[0]); // one step back
    keys[VK_CONTROL] = 0;
    ::SetKeyboardState(keys);
    key.wParam = VK_DELETE;
    EXPECT_TRUE(::TranslateAcceleratorW(key.hwnd, TheShell().accelerators, &key));
    Pump();
    EXPECT_EQ(Doc().CurrentLayer().ChildCount(), 1u);
    // Alt+7 opens the about box: the key goes to the accelerators first, then its character.
    ModalDriver driver;
    driver.Answer(IDOK);
    for (UINT typed : {WM_SYSKEYDOWN, WM_SYSCHAR}) {
        MSG key7{TheShell().main, typed, '7', 1 << 29, 0, {}};
        if (::TranslateAcceleratorW(key7.hwnd, TheShell().accelerators, &key7)) break;
    }
    Pump();
    ASSERT_EQ(driver.seen.size(), 1u);
    EXPECT_EQ(driver.seen[0].substr(0, 13), "Online-Hilfe|");
    // No undo: the id changes nothing and repaints nothing.
    ::ValidateRect(TheShell().canvas, nullptr);
    Command(IDM_UNDO);
    EXPECT_FALSE(::GetUpdateRect(TheShell().canvas, nullptr, FALSE));
    EXPECT_EQ(Doc().CurrentLayer().ChildCount(), 1u);
    Command(IDM_DELETE);
    EXPECT_TRUE(::GetUpdateRect(TheShell().canvas, nullptr, FALSE));
}

TEST_F(EditorShell, SettingsSwitchTheGuidesOnlyOnOk) {
    const DisplaySwitches start = TheEditor().view.switches;
    EXPECT_TRUE(start.isometricLines && start.pageFrame && !start.coordinateCross);
    ModalDriver driver;
    driver.Then([](HWND dialog) {
        ::SendMessageW(::GetDlgItem(dialog, IDC_SHOW_CROSS), BM_CLICK, 0, 0);
        ModalDriver::Press(dialog, IDCANCEL);
    });
    Command(IDM_SETTINGS);
    Pump();
    EXPECT_FALSE(TheEditor().view.switches.coordinateCross);
    driver.Then([](HWND dialog) {
        EXPECT_EQ(ModalDriver::Caption(dialog), "Einstellungen");
        ::SendMessageW(::GetDlgItem(dialog, IDC_SHOW_CROSS), BM_CLICK, 0, 0);
        ::SendMessageW(::GetDlgItem(dialog, IDC_SHOW_ISO_LINES), BM_CLICK, 0, 0);
        ModalDriver::Press(dialog, IDOK);
    });
    Command(IDM_SETTINGS);
    EXPECT_TRUE(TheEditor().view.switches.coordinateCross);
    EXPECT_FALSE(TheEditor().view.switches.isometricLines);

    driver.Then([](HWND dialog) {
        EXPECT_EQ(ModalDriver::Caption(dialog), "Online-Hilfe");
        EXPECT_NE(ModalDriver::Texts(dialog).find("Rhomba Version 1.1"), std::string::npos);
        ModalDriver::Press(dialog, IDOK);
    });
    Command(IDM_ABOUT);
    EXPECT_TRUE(driver.Done());
}

// The status strip and the zoom field show the view in German number style.
TEST_F(EditorShell, StatusFieldsAndZoomField) {
    ShowCursorPoints(12.345, -0.005);
    ShowCursorMillimetres(28.34653369727658, 0);
    SetStatusTextF("dx: %g   dy: %g", 1.5, 2.0);
    EXPECT_EQ(ModalDriver::Text(::GetDlgItem(TheShell().status, IDC_STATUS_POINTS)), "pt: 12,35  -0,01");
    EXPECT_EQ(ModalDriver::Text(::GetDlgItem(TheShell().status, IDC_STATUS_MILLIMETRES)), "mm: 10,00  0,00");
    EXPECT_EQ(ModalDriver::Text(::GetDlgItem(TheShell().status, IDC_STATUS_TEXT)), "dx: 1.5   dy: 2");
    TheEditor().view.SetZoom(0.995, 0, 0);
    UpdateZoomField();
    EXPECT_EQ(ModalDriver::Text(::GetDlgItem(TheShell().palette, IDC_ZOOM)), "100 %");

    // The zoom field opens its menu of steps as soon as it gets the focus, and gives the focus back.
    ModalDriver driver;
    driver.ChooseMenuEntry(6); // "200 %"
    ::SetFocus(::GetDlgItem(TheShell().palette, IDC_ZOOM));
    EXPECT_TRUE(driver.Done());
    EXPECT_EQ(TheEditor().document.view.zoom, 2.0);
    EXPECT_EQ(ModalDriver::Text(::GetDlgItem(TheShell().palette, IDC_ZOOM)), "200 %");
    EXPECT_EQ(::GetFocus(), TheShell().main);

    // Minimised, the children keep their places; restored, they follow the window again.
    RECT before{};
    ::GetWindowRect(TheShell().canvas, &before);
    ::ShowWindow(TheShell().main, SW_MINIMIZE);
    RECT minimised{};
    ::GetWindowRect(TheShell().canvas, &minimised);
    EXPECT_EQ(minimised.right - minimised.left, before.right - before.left);
    ::ShowWindow(TheShell().main, SW_RESTORE);
}

} // namespace
} // namespace rhomba::test
