// The editor started in the test process: its windows, menus, registry values and commands.
#include "support/Paths.h"
#include "ui/resource.h"
#include "win32/support/EditorFixture.h"
#include "win32/support/ModalDriver.h"

#include <cstring>

namespace rhomba::test {
namespace {

std::string ClassOf(HWND window) {
    wchar_t name[64] = {};
    ::GetClassNameW(window, name, 64);
    return Narrow(name);
}

std::string RegistryDefault(const wchar_t* key) {
    wchar_t value[600] = {};
    LONG size = sizeof value;
    ::RegQueryValueW(HKEY_CLASSES_ROOT, key, value, &size);
    return Narrow(value);
}

// A child's rectangle in the main window's client coordinates.
RECT Placed(HWND child) {
    RECT r{};
    ::GetWindowRect(child, &r);
    ::MapWindowPoints(nullptr, TheShell().main, reinterpret_cast<POINT*>(&r), 2);
    return r;
}

std::string Field(HWND parent, int id) { return ModalDriver::Text(::GetDlgItem(parent, id)); }

using EditorShell = EditorFixture;

TEST_F(EditorShell, StartsWithItsWindowsLaidOutAndTheFileTypeRegistered) {
    const Shell& shell = TheShell();
    EXPECT_EQ(ClassOf(shell.main) + ModalDriver::Text(shell.main) + ClassOf(shell.canvas),
              "RhombaRhombaRHOMBAVIEW");
    EXPECT_EQ(::GetParent(shell.canvas), shell.main);
    RECT client{};
    ::GetClientRect(shell.main, &client);
    const RECT palette = Placed(shell.palette), status = Placed(shell.status),
               canvas = Placed(shell.canvas);
    // The palette and the status strip stand one pixel over the edges; the canvas fills the rest.
    EXPECT_EQ(palette.left, -1);
    EXPECT_EQ(status.bottom, client.bottom);
    EXPECT_EQ(status.right - status.left, client.right + 2);
    EXPECT_EQ(canvas.left, palette.right + 1);
    EXPECT_EQ(canvas.right, client.right);
    EXPECT_EQ(canvas.bottom, status.top + 1);
    HMENU menu = ::GetMenu(shell.main);
    EXPECT_TRUE(::GetMenuState(menu, IDM_PROPERTIES, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(::GetMenuState(menu, IDM_UNDO, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_EQ(Field(shell.palette, IDC_ZOOM), "50 %");
    EXPECT_EQ(RegistryDefault(L".rhomba"), "Rhomba");
    const std::string command = RegistryDefault(L"Rhomba\\shell\\open\\command");
    EXPECT_EQ(command.front(), '"');
    EXPECT_NE(command.find(".exe\" \"%1\""), std::string::npos);
}

// The command line loses every quote; the loader's message comes in a box captioned "Rhomba".
TEST_F(EditorShell, MissingCommandLineFileIsReportedAndLeavesAWorkingEditor) {
    Stop();
    ModalDriver driver;
    driver.Answer(IDOK);
    ASSERT_TRUE(Start("\"Z:\\nirgends\\fe\"hlt.rhomba\""));
    EXPECT_EQ(driver.seen, std::vector<std::string>{"Rhomba|Die Datei 'Z:\\nirgends\\fehlt.rhomba' "
                                                    "konnte nicht zum Lesen ge\xF6"
                                                    "ffnet werden."});
    EXPECT_EQ(Doc().LayerCount(), 0u);
}

// The "Bearbeiten" menu as it opens, without and with a selection and clipboard text.
TEST_F(EditorShell, EditMenuFollowsSelectionAndClipboard) {
    HMENU edit = ::GetSubMenu(::GetMenu(TheShell().main), 1);
    auto grayed = [edit](int id, UINT by = MF_BYCOMMAND) {
        return (::GetMenuState(edit, id, by) & MF_GRAYED) != 0;
    };
    ::OpenClipboard(TheShell().main);
    ::EmptyClipboard();
    ::CloseClipboard();
    for (bool selected : {false, true}) {
        if (selected) Add(Doc(), Square(0, 0, 10));
        if (selected) Command(IDM_COPY); // text on the clipboard enables paste
        ::SendMessageW(TheShell().main, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(edit), 1);
        for (int id : {IDM_PASTE, IDM_COPY, IDM_CUT, IDM_DELETE, IDM_ROTATE, IDM_STRETCH, IDM_SHEAR,
                       IDM_MOVE})
            EXPECT_EQ(grayed(id), !selected) << id;
        EXPECT_EQ(grayed(POS_ISOMETRY_POPUP, MF_BYPOSITION), !selected);
        EXPECT_FALSE(grayed(POS_ISOMETRY_POPUP + 1, MF_BYPOSITION)); // "Is&ometrie II"
        EXPECT_TRUE(grayed(IDM_UNDO) && grayed(IDM_REDO));
    }
}

// Copy puts the text and a picture for other programs on the real clipboard, paste reads the text
// back; text that is no drawing is offered as an import in a Yes/No box.
TEST_F(EditorShell, CopyAndPasteGoThroughTheRealClipboard) {
    Add(Doc(), Square(0, 0, 10))->SetName("Rahmen");
    Command(IDM_COPY);
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_ENHMETAFILE));
    Command(IDM_PASTE);
    Layer& layer = Doc().CurrentLayer();
    ASSERT_EQ(layer.ChildCount(), 2u);
    EXPECT_EQ(Doc().Selection(), std::vector<GraphicObject*>{layer.ChildAt(1)});
    EXPECT_EQ(layer.ChildAt(1)->GetName(), "Rahmen");

    const std::wstring text = L"Ma\u00DFe\tund Gr\u00F6\u00DFen";
    ASSERT_TRUE(::OpenClipboard(TheShell().main));
    ::EmptyClipboard();
    HGLOBAL data = ::GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    std::memcpy(::GlobalLock(data), text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    ::GlobalUnlock(data);
    ::SetClipboardData(CF_UNICODETEXT, data);
    ::CloseClipboard();
    ModalDriver driver;
    driver.Answer(IDYES);
    Command(IDM_PASTE);
    EXPECT_EQ(driver.seen, std::vector<std::string>{"Rhomba|M\xF6"
                                                    "chten Sie ein automatisch generiertes "
                                                    "Textobjekte einf\xFC"
                                                    "gen?"});
    ASSERT_EQ(layer.ChildCount(), 3u);
    EXPECT_EQ(layer.ChildAt(2)->GetName(), "importierter Text");
}

// Keys reach the command table through the accelerators, aimed at the canvas as at the main
// window; "Rueckgaengig" changes and repaints nothing, a command that changes the drawing repaints.
TEST_F(EditorShell, AcceleratorsAndCommandIdsReachTheOperations) {
    Add(Doc(), Square(0, 0, 10));
    Add(Doc(), Square(20, 0, 10));
    BYTE keys[256] = {};
    keys[VK_CONTROL] = 0x80;
    ::SetKeyboardState(keys);
    MSG key{TheShell().canvas, WM_KEYDOWN, VK_PRIOR, 0, 0, {}};
    EXPECT_TRUE(::TranslateAcceleratorW(key.hwnd, TheShell().accelerators, &key));
    Pump();
    EXPECT_EQ(Doc().CurrentLayer().ChildAt(0), Doc().Selection()[0]); // one step back
    keys[VK_CONTROL] = 0;
    ::SetKeyboardState(keys);
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
    EXPECT_NE(driver.seen[0].find("Rhomba Version 1.1"), std::string::npos);
    for (int id : {IDM_UNDO, IDM_DELETE}) {
        ::ValidateRect(TheShell().canvas, nullptr);
        Command(id);
        EXPECT_EQ(::GetUpdateRect(TheShell().canvas, nullptr, FALSE), id == IDM_DELETE);
        EXPECT_EQ(Doc().CurrentLayer().ChildCount(), id == IDM_DELETE ? 1u : 2u);
    }
}

TEST_F(EditorShell, SettingsSwitchTheGuidesOnlyOnOk) {
    const DisplaySwitches start = TheEditor().view.switches;
    EXPECT_TRUE(start.isometricLines && start.pageFrame && !start.coordinateCross);
    for (int button : {IDCANCEL, IDOK}) {
        ModalDriver driver;
        driver.Then([button](HWND dialog) {
            EXPECT_EQ(ModalDriver::Text(dialog), "Einstellungen");
            ::SendMessageW(::GetDlgItem(dialog, IDC_SHOW_CROSS), BM_CLICK, 0, 0);
            ::SendMessageW(::GetDlgItem(dialog, IDC_SHOW_ISO_LINES), BM_CLICK, 0, 0);
            ModalDriver::Press(dialog, button);
        });
        Command(IDM_SETTINGS);
        EXPECT_EQ(TheEditor().view.switches.coordinateCross, button == IDOK);
        EXPECT_EQ(TheEditor().view.switches.isometricLines, button == IDCANCEL);
    }
}

// The status strip and the zoom field show the view in German number style; the zoom field
// opens its menu of steps as soon as it gets the focus, and gives the focus back.
TEST_F(EditorShell, StatusFieldsAndZoomField) {
    ShowCursorPoints(12.345, -0.005);
    SetStatusTextF("dx: %g   dy: %g", 1.5, 2.0);
    EXPECT_EQ(Field(TheShell().status, IDC_STATUS_POINTS), "pt: 12,35  -0,01");
    EXPECT_EQ(Field(TheShell().status, IDC_STATUS_TEXT), "dx: 1.5   dy: 2");
    TheEditor().view.SetZoom(0.995, 0, 0);
    UpdateZoomField();
    EXPECT_EQ(Field(TheShell().palette, IDC_ZOOM), "100 %");
    ModalDriver driver;
    driver.ChooseMenuEntry(6); // "200 %"
    ::SetFocus(::GetDlgItem(TheShell().palette, IDC_ZOOM));
    EXPECT_TRUE(driver.Done());
    EXPECT_EQ(TheEditor().document.view.zoom, 2.0);
    EXPECT_EQ(Field(TheShell().palette, IDC_ZOOM), "200 %");
    EXPECT_EQ(::GetFocus(), TheShell().main);
    // Minimised, the children keep their places.
    const LONG width = Placed(TheShell().canvas).right - Placed(TheShell().canvas).left;
    ::ShowWindow(TheShell().main, SW_MINIMIZE);
    EXPECT_EQ(Placed(TheShell().canvas).right - Placed(TheShell().canvas).left, width);
    ::ShowWindow(TheShell().main, SW_RESTORE);
}

} // namespace
} // namespace rhomba::test
