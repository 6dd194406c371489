#pragma once

#include "ui/panel/PanelModel.h"
#include "win32/dialogs/ModelDialog.h" // WindowFields

#include <windows.h>

#include <array>
#include <functional>
#include <memory>

namespace rhomba {

// The properties panel's windows: the frame (dialog 146) with its five pages as child dialogs,
// each page's fields on the one PanelModel. The pages carry their template ids as control ids,
// so GetDlgItem(frame, IDD_PANEL_STYLE) finds the line and fill page.
class PanelWindow {
public:
    // Creates the frame hidden, as a child of owner, at the right edge of the canvas. canvas gets
    // the keyboard back after every click on a button of the panel.
    PanelWindow(HWND owner, HWND canvas, Document& document, std::function<void()> redraw);
    ~PanelWindow();
    PanelWindow(const PanelWindow&) = delete;
    PanelWindow& operator=(const PanelWindow&) = delete;

    // Null once the frame has been destroyed with its owner.
    HWND Frame() const { return frame_; }
    // Fills the pages from the selection, shows the ones that fit it stacked from the top, and
    // names the selection's kind in the caption.
    void Refresh();
    // Puts the frame's top left corner at a screen point; it stays there from now on.
    void MoveTo(int screenX, int screenY);

private:
    static INT_PTR CALLBACK FrameProc(HWND frame, UINT message, WPARAM wParam, LPARAM lParam);
    static INT_PTR CALLBACK PageProc(HWND page, UINT message, WPARAM wParam, LPARAM lParam);
    void OnPageCommand(int page, int id, int code);
    void Place();
    void Stack(const PanelLayout& layout);
    void ReturnFocus() const;

    HWND frame_ = nullptr;
    HWND canvas_ = nullptr;
    std::array<HWND, kPanelPageCount> pages_{};
    std::array<int, kPanelPageCount> heights_{}; // as the templates make them, in pixels
    std::array<WindowFields, kPanelPageCount> fields_;
    std::unique_ptr<PanelModel> model_;
    std::string caption_ = "Eigenschaften";
    bool movedByUser_ = false;
};

// The frame of the running editor's panel; null before it is first shown (for tests).
HWND PropertiesPanelFrame();

// The colour chooser, full open, starting from colour, with the shared custom colours; no value
// when cancelled.
std::optional<ColorRef> ChooseColour(HWND owner, ColorRef colour, std::array<ColorRef, 16>& custom);
// The font chooser starting from shown; no value when cancelled.
std::optional<FontChoice> ChooseFontFor(HWND owner, const FontChoice& shown);
// Paints an owner-drawn colour button: its edge, a swatch of colour when enabled, its text.
void DrawColourButton(const DRAWITEMSTRUCT& item, ColorRef colour);
// Gives an edit field of the panel (other controls are left alone) the keys a dialog would: Enter
// and Escape hand the keyboard back to canvas (which applies the field), Tab moves on; the edit
// keys that are also the editor's accelerators reach the field again.
void KeepEditKeys(HWND edit, HWND canvas);

} // namespace rhomba
