// The tools on the real canvas window: a palette click, a drag that draws, the right-click menu.
#include "geometry/Isometric.h"
#include "support/Paths.h"
#include "ui/CanvasMenus.h"
#include "ui/resource.h"
#include "win32/support/EditorFixture.h"
#include "win32/support/ModalDriver.h"

#include <gtest/gtest.h>

namespace rhomba::test {
namespace {

using CanvasTools = EditorFixture;

void Mouse(UINT message, int x, int y, WPARAM keys) {
    ::SendMessageW(TheShell().canvas, message, keys, MAKELPARAM(x, y));
}

// The texts and enabling of a popup menu window.
ContextMenu ShownMenu(HWND menuWindow) {
    HMENU menu =
        reinterpret_cast<HMENU>(::SendMessageW(menuWindow, 0x01E1 /* MN_GETHMENU */, 0, 0));
    ContextMenu shown;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        wchar_t text[128] = {};
        ::GetMenuStringW(menu, i, text, 128, MF_BYPOSITION);
        const UINT state = ::GetMenuState(menu, i, MF_BYPOSITION);
        shown.entries.push_back(
            {static_cast<int>(::GetMenuItemID(menu, i)), Narrow(text),
             (state & (MF_GRAYED | MF_DISABLED)) == 0 && (state & MF_SEPARATOR) == 0});
    }
    return shown;
}

TEST_F(CanvasTools, RectangleDrawnWithTheMouseAndTheObjectMenuOnIt) {
    ::SendMessageW(::GetDlgItem(TheShell().palette, IDC_TOOL_RECT), BM_CLICK, 0, 0);
    EXPECT_EQ(TheEditor().Tool(), 6);
    EXPECT_EQ(::GetFocus(), TheShell().main);

    Mouse(WM_LBUTTONDOWN, 100, 100, MK_LBUTTON);
    Mouse(WM_MOUSEMOVE, 150, 130, MK_LBUTTON);
    Mouse(WM_MOUSEMOVE, 200, 150, MK_LBUTTON);
    Mouse(WM_LBUTTONUP, 200, 150, 0);
    ASSERT_EQ(Doc().Selection().size(), 1u);
    Rect2 box;
    ASSERT_TRUE(Doc().Selection()[0]->GetBounds(box, false));
    const double pixelsPerPoint = Doc().view.zoom * kScreenPixelsPerPoint;
    EXPECT_NEAR(box.right - box.left, 100 / pixelsPerPoint, 1e-9);
    EXPECT_NEAR(box.top - box.bottom, 50 / pixelsPerPoint, 1e-9);

    // A right click with the select tool opens the object menu of the selection; its "Loeschen"
    // chosen with the keyboard deletes the rectangle.
    ::SendMessageW(::GetDlgItem(TheShell().palette, IDC_TOOL_SELECT), BM_CLICK, 0, 0);
    const ContextMenu expected = BuildObjectMenu(Doc());
    ModalDriver driver;
    driver.Then([&expected](HWND menu) {
        const ContextMenu shown = ShownMenu(menu);
        ASSERT_EQ(shown.entries.size(), expected.entries.size());
        for (std::size_t i = 0; i < shown.entries.size(); ++i) {
            EXPECT_EQ(shown.entries[i].text, expected.entries[i].text) << i;
            EXPECT_EQ(shown.entries[i].enabled, expected.entries[i].enabled) << i;
        }
        for (int i = 0; i < 6; ++i) ::PostMessageW(menu, WM_KEYDOWN, VK_DOWN, 0);
        ::PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 0);
    }, true);
    Mouse(WM_RBUTTONUP, 150, 125, 0);
    ASSERT_TRUE(driver.Done());
    EXPECT_EQ(Doc().CurrentLayer().ChildCount(), 0u);
}

} // namespace
} // namespace rhomba::test
