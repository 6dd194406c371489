#include "win32/shell/PropertiesPanel.h"

#include "ui/Editor.h"
#include "ui/resource.h"
#include "win32/panel/PanelWindow.h"
#include "win32/shell/Shell.h"

#include <memory>

namespace rhomba {

namespace {

// The panel of the running main window; a new main window (a test starting the editor again)
// gets a new one.
std::unique_ptr<PanelWindow> panel;

PanelWindow* LivePanel() {
    if (panel != nullptr && ::IsWindow(panel->Frame()) &&
        ::GetParent(panel->Frame()) == TheShell().main) {
        return panel.get();
    }
    return nullptr;
}

} // namespace

void ShowPropertiesPanel(bool shown) {
    const Shell& shell = TheShell();
    PanelWindow* live = LivePanel();
    if (!shown) {
        if (live != nullptr) ::ShowWindow(live->Frame(), SW_HIDE);
        return;
    }
    if (live == nullptr) {
        if (shell.main == nullptr || shell.editor == nullptr) return;
        panel.reset();
        panel = std::make_unique<PanelWindow>(shell.main, shell.canvas, shell.editor->document,
                                              [] { Redraw(); });
        live = LivePanel();
        if (live == nullptr) return;
    }
    // A hidden panel is not kept up to date: it catches up as it shows.
    live->Refresh();
    ::ShowWindow(live->Frame(), SW_SHOWNOACTIVATE);
}

void ShowPropertiesPanelAt(int screenX, int screenY) {
    ShowPropertiesPanel(true);
    ::CheckMenuItem(::GetMenu(TheShell().main), IDM_PROPERTIES, MF_BYCOMMAND | MF_CHECKED);
    if (PanelWindow* live = LivePanel()) live->MoveTo(screenX, screenY);
}

void RefreshPropertiesPanel() {
    PanelWindow* live = LivePanel();
    if (live != nullptr && (::GetWindowLongW(live->Frame(), GWL_STYLE) & WS_VISIBLE) != 0)
        live->Refresh();
}

HWND PropertiesPanelFrame() {
    PanelWindow* live = LivePanel();
    return live != nullptr ? live->Frame() : nullptr;
}

} // namespace rhomba
