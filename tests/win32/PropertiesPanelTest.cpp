// The properties panel in the running editor: what it shows for a selection and what typing and
// clicking in it does to the drawing.
#include "support/Paths.h"
#include "win32/support/EditorFixture.h"
#include "win32/support/ModalDriver.h"

#include "model/TextObject.h"
#include "ui/resource.h"
#include "win32/panel/PanelWindow.h"
#include "win32/shell/PropertiesPanel.h"

#include <gtest/gtest.h>

namespace rhomba::test {
namespace {

class PropertiesPanel : public EditorFixture {
protected:
    static HWND Page(int id) { return ::GetDlgItem(PropertiesPanelFrame(), id); }
    static HWND Control(int page, int id) { return ::GetDlgItem(Page(page), id); }
    static std::string Text(int page, int id) { return ModalDriver::Text(Control(page, id)); }
    static bool Shown(int page) { return ::IsWindowVisible(Page(page)) != FALSE; }

    static void Select(std::initializer_list<GraphicObject*> objects) {
        Doc().ClearSelection();
        for (GraphicObject* object : objects) Doc().AddToSelection(object);
        RefreshPropertiesPanel();
        ::Sleep(20); // the coordinate list comes with a timer
        Pump();
    }
    // Into the field with the keyboard and the text typed; Leave goes back to the drawing.
    static void Enter(int page, int id, const wchar_t* text) {
        ::SetFocus(Control(page, id));
        ModalDriver::Type(Page(page), id, text);
    }
    static void Leave() { ::SetFocus(TheShell().canvas); }
    static bool PanelHasFocus() { return ::IsChild(PropertiesPanelFrame(), ::GetFocus()) != FALSE; }
};

TEST_F(PropertiesPanel, ShowsThePagesOfTheSelectionWithoutTakingTheKeyboard) {
    ::SetFocus(TheShell().canvas);
    ASSERT_NE(PropertiesPanelFrame(), nullptr);
    EXPECT_EQ(ModalDriver::Text(PropertiesPanelFrame()), "Eigenschaften");
    EXPECT_TRUE(Shown(IDD_PANEL_STYLE));
    EXPECT_FALSE(::IsWindowEnabled(Control(IDD_PANEL_STYLE, IDC_PANEL_PEN_WIDTH)));

    auto* path = Add(Doc(), Square(0, 0, 10 * 2.834653369727658));
    auto* text = Add(Doc(), std::make_unique<TextObject>());
    text->SetText("Haus");
    Select({path});
    EXPECT_EQ(::GetFocus(), TheShell().canvas);
    EXPECT_EQ(ModalDriver::Text(PropertiesPanelFrame()), "Pfad - Eigenschaften");
    EXPECT_TRUE(Shown(IDD_PANEL_STYLE) && Shown(IDD_PANEL_POINTS));
    EXPECT_EQ(Text(IDD_PANEL_STYLE, IDC_PANEL_PEN_WIDTH), "0,25");
    EXPECT_EQ(Text(IDD_PANEL_POINTS, IDC_PANEL_POINTS),
              "M 0 0\r\nL 10 0\r\nL 10 10\r\nL 0 10 Z\r\n");

    // Hidden and shown again through the menu entry, catching up with the selection on the way,
    // still without the keyboard.
    Command(IDM_PROPERTIES);
    EXPECT_FALSE(::IsWindowVisible(PropertiesPanelFrame()));
    Select({text});
    Command(IDM_PROPERTIES);
    EXPECT_TRUE(::IsWindowVisible(PropertiesPanelFrame()));
    EXPECT_EQ(::GetFocus(), TheShell().canvas);
    EXPECT_EQ(ModalDriver::Text(PropertiesPanelFrame()), "Text - Eigenschaften");
    EXPECT_TRUE(Shown(IDD_PANEL_FONT) && Shown(IDD_PANEL_TEXT) && !Shown(IDD_PANEL_POINTS));
    EXPECT_EQ(Text(IDD_PANEL_TEXT, IDC_PANEL_TEXT), "Haus");
}

TEST_F(PropertiesPanel, EditsReachObjectsInsideSelectedGroups) {
    auto group = std::make_unique<Group>();
    auto* inner = static_cast<PathObject*>(group->InsertAt(Square(0, 0, 10), &Doc(), 0, 0));
    inner->SetStrokeColor(0x0000FF);
    auto* grouped = Add(Doc(), std::move(group));
    auto* loose = Add(Doc(), Square(20, 0, 10));
    Select({grouped, loose});

    Enter(IDD_PANEL_STYLE, IDC_PANEL_PEN_WIDTH, L"0,5");
    EXPECT_EQ(inner->GetPenWidth(), 0.25);
    Leave();
    EXPECT_EQ(inner->GetPenWidth(), 0.5);
    EXPECT_EQ(loose->GetPenWidth(), 0.5);

    // Tab passes the check boxes and colour buttons by; Enter leaves the field for the drawing.
    ::SendMessageW(Control(IDD_PANEL_STYLE, IDC_PANEL_PEN_WIDTH), WM_KEYDOWN, VK_TAB, 0);
    EXPECT_EQ(::GetFocus(), Control(IDD_PANEL_STYLE, IDC_PANEL_DASH_FIRST));
    Enter(IDD_PANEL_STYLE, IDC_PANEL_DASH_FIRST, L"4");
    Enter(IDD_PANEL_STYLE, IDC_PANEL_DASH_FIRST + 1, L"300");
    ::SendMessageW(Control(IDD_PANEL_STYLE, IDC_PANEL_DASH_FIRST + 1), WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_FALSE(PanelHasFocus());
    DashDot dash{};
    inner->GetDashDot(dash);
    EXPECT_EQ(dash, (DashDot{4, 255, 0, 0, 0, 0, 0, 0}));

    ::SendMessageW(Control(IDD_PANEL_STYLE, IDC_PANEL_FILL), BM_CLICK, 0, 0);
    EXPECT_FALSE(inner->HasFill());
    EXPECT_FALSE(loose->HasFill());
    EXPECT_FALSE(PanelHasFocus());

    // The Delete key in a field edits the field, not the drawing.
    Enter(IDD_PANEL_STYLE, IDC_PANEL_PEN_WIDTH, L"0,5x");
    HWND width = Control(IDD_PANEL_STYLE, IDC_PANEL_PEN_WIDTH);
    ::SendMessageW(width, EM_SETSEL, 3, 3);
    ::PostMessageW(width, WM_KEYDOWN, VK_DELETE, 0);
    Pump();
    EXPECT_EQ(ModalDriver::Text(width), "0,5");
    EXPECT_EQ(Doc().Selection().size(), 2u);

    // The colour button starts the chooser from the colour it shows; Cancel changes nothing.
    ModalDriver driver;
    for (int answer : {IDCANCEL, IDOK}) {
        driver.Answer(answer);
        ::SendMessageW(Control(IDD_PANEL_STYLE, IDC_PANEL_STROKE_COLOUR), BM_CLICK, 0, 0);
        EXPECT_EQ(loose->GetStrokeColor(), answer == IDOK ? 0x0000FFu : 0u);
    }
    EXPECT_FALSE(PanelHasFocus());
}

} // namespace
} // namespace rhomba::test
