// The properties panel's frame and pages: thin procedures between the controls and PanelModel.
#include "win32/panel/PanelWindow.h"

#include "win32/shell/Shell.h" // Wide

#include <algorithm>

namespace rhomba {

namespace {

constexpr int kMargin = 4; // pixels between the frame and the canvas's edges
constexpr UINT_PTR kPointListTimer = 1;

PanelWindow* Owner(HWND window) {
    return reinterpret_cast<PanelWindow*>(::GetWindowLongPtrW(window, DWLP_USER));
}

BOOL CALLBACK KeepKeysOfEdit(HWND control, LPARAM canvas) {
    KeepEditKeys(control, reinterpret_cast<HWND>(canvas));
    return TRUE;
}

int Height(HWND window) {
    RECT box{};
    ::GetWindowRect(window, &box);
    return box.bottom - box.top;
}

} // namespace

PanelWindow::PanelWindow(HWND owner, HWND canvas, Document& document, std::function<void()> redraw)
    : canvas_(canvas) {
    const HINSTANCE instance = ::GetModuleHandleW(nullptr);
    frame_ = ::CreateDialogParamW(instance, MAKEINTRESOURCEW(IDD_PANEL_FRAME), owner, FrameProc,
                                  reinterpret_cast<LPARAM>(this));
    if (frame_ == nullptr) return;
    for (int page = 0; page < kPanelPageCount; ++page) {
        pages_[page] = ::CreateDialogParamW(instance, MAKEINTRESOURCEW(kPanelPageTemplates[page]),
                                            frame_, PageProc, reinterpret_cast<LPARAM>(this));
        ::SetWindowLongPtrW(pages_[page], GWLP_ID, kPanelPageTemplates[page]);
        heights_[page] = Height(pages_[page]);
        fields_[page].dialog = pages_[page];
        ::EnumChildWindows(pages_[page], KeepKeysOfEdit, reinterpret_cast<LPARAM>(canvas));
    }
    // Typed coordinate lists may grow past the edit field's default limit.
    ::SendDlgItemMessageW(pages_[kPagePoints], IDC_PANEL_POINTS, EM_SETLIMITTEXT, 0, 0);
    // The hotspot's picture: the hand that a click on a hotspot brings.
    HWND icon = ::GetDlgItem(pages_[kPageHotspot], IDC_PANEL_HOTSPOT_ICON);
    ::MoveWindow(icon, 100, 100, 32, 32, FALSE);
    ::SendMessageW(icon, STM_SETICON, reinterpret_cast<WPARAM>(::LoadCursorW(nullptr, IDC_HAND)),
                   0);

    model_ = std::make_unique<PanelModel>(
        document,
        PanelModel::Pages{&fields_[0], &fields_[1], &fields_[2], &fields_[3], &fields_[4]},
        std::move(redraw));

    Place();
}

void PanelWindow::MoveTo(int screenX, int screenY) {
    POINT corner{screenX, screenY};
    ::ScreenToClient(::GetParent(frame_), &corner);
    ::SetWindowPos(frame_, HWND_TOP, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
    movedByUser_ = true;
}

// At the right edge of the canvas, where the page, which starts at the left, shows least.
void PanelWindow::Place() {
    HWND owner = ::GetParent(frame_);
    RECT area{}, outer{};
    ::GetWindowRect(canvas_, &area);
    ::MapWindowPoints(nullptr, owner, reinterpret_cast<POINT*>(&area), 2);
    ::GetWindowRect(frame_, &outer);
    ::MapWindowPoints(nullptr, owner, reinterpret_cast<POINT*>(&outer), 2);
    const int x = std::max<int>(area.left, area.right - (outer.right - outer.left) - kMargin);
    const int y = area.top + kMargin;
    if (x != outer.left || y != outer.top) {
        ::SetWindowPos(frame_, HWND_TOP, x, y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
    }
}

PanelWindow::~PanelWindow() {
    // A handle of a frame that died with its owner may already name another window.
    if (::IsWindow(frame_) && Owner(frame_) == this) ::DestroyWindow(frame_);
}

void PanelWindow::Refresh() {
    if (frame_ == nullptr) return;
    const PanelLayout layout = model_->Refresh();
    // Until the user moves it, the panel follows the canvas's right edge.
    if (!movedByUser_) Place();
    Stack(layout);
    // A timer's message comes after the paint: the drawing shows first, the long list after it.
    if (layout.shown[kPagePoints]) ::SetTimer(frame_, kPointListTimer, 0, nullptr);
    const std::string caption =
        layout.title.empty() ? "Eigenschaften" : layout.title + " - Eigenschaften";
    if (caption != caption_) ::SetWindowTextW(frame_, Wide(caption).c_str());
    caption_ = caption;
}

// The shown pages one below the other in page order; the coordinates page takes what is left.
void PanelWindow::Stack(const PanelLayout& layout) {
    RECT client{};
    ::GetClientRect(frame_, &client);
    int below = 0; // the heights of the shown pages after the coordinates page
    for (int page = kPagePoints + 1; page < kPanelPageCount; ++page)
        below += layout.shown[page] ? heights_[page] : 0;
    int y = 0;
    for (int page = 0; page < kPanelPageCount; ++page) {
        if (!layout.shown[page]) {
            ::ShowWindow(pages_[page], SW_HIDE);
            continue;
        }
        int height = heights_[page];
        if (page == kPagePoints) {
            height = std::max(heights_[page], static_cast<int>(client.bottom) - y - below);
            HWND edit = ::GetDlgItem(pages_[page], IDC_PANEL_POINTS);
            RECT box{};
            ::GetWindowRect(edit, &box);
            ::MapWindowPoints(nullptr, pages_[page], reinterpret_cast<POINT*>(&box), 2);
            ::MoveWindow(edit, box.left, box.top, box.right - box.left, height - box.top - kMargin,
                         TRUE);
        }
        ::SetWindowPos(pages_[page], nullptr, 0, y, client.right, height,
                       SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
        y += height;
    }
}

void PanelWindow::ReturnFocus() const {
    if (::IsWindow(canvas_)) ::SetFocus(canvas_);
}

void PanelWindow::OnPageCommand(int page, int id, int code) {
    if (page == kPageStyle && code == BN_CLICKED &&
        (id == IDC_PANEL_STROKE_COLOUR || id == IDC_PANEL_FILL_COLOUR)) {
        const auto button =
            id == IDC_PANEL_FILL_COLOUR ? PanelModel::kFillButton : PanelModel::kStrokeButton;
        model_->ColourChosen(button, ChooseColour(::GetAncestor(frame_, GA_ROOT),
                                                  model_->Colour(button), model_->CustomColours()));
        ReturnFocus();
    } else if (page == kPageFont && code == BN_CLICKED && id == IDC_PANEL_FONT_CHOOSE) {
        if (auto choice = ChooseFontFor(::GetAncestor(frame_, GA_ROOT), model_->ShownFont()))
            model_->FontChosen(*choice);
        ReturnFocus();
    } else {
        model_->OnCommand(page, id, code);
        // A check box keeps nothing to type: the keyboard goes back to the drawing.
        if (code == BN_CLICKED) ReturnFocus();
    }
}

INT_PTR CALLBACK PanelWindow::FrameProc(HWND frame, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        ::SetWindowLongPtrW(frame, DWLP_USER, lParam);
        return FALSE; // the canvas keeps the keyboard
    case WM_EXITSIZEMOVE:
        if (PanelWindow* panel = Owner(frame)) panel->movedByUser_ = true;
        return TRUE;
    case WM_TIMER:
        ::KillTimer(frame, wParam);
        if (PanelWindow* panel = Owner(frame); panel != nullptr && panel->model_ != nullptr) {
            panel->model_->FillPointList();
        }
        return TRUE;
    case WM_CLOSE:
        // Closed by its own box: hidden, and the menu entry says so.
        ::ShowWindow(frame, SW_HIDE);
        ::CheckMenuItem(::GetMenu(::GetParent(frame)), IDM_PROPERTIES, MF_BYCOMMAND | MF_UNCHECKED);
        return TRUE;
    case WM_COMMAND:
        // Enter and Escape, when a dialog manager hands them over: back to the drawing.
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) {
            if (PanelWindow* panel = Owner(frame)) panel->ReturnFocus();
        }
        return TRUE;
    case WM_DESTROY:
        if (PanelWindow* panel = Owner(frame)) {
            panel->frame_ = nullptr;
            panel->pages_.fill(nullptr);
        }
        return FALSE;
    default:
        return FALSE;
    }
}

INT_PTR CALLBACK PanelWindow::PageProc(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrW(page, DWLP_USER, lParam);
        return FALSE;
    }
    PanelWindow* panel = Owner(page);
    // Notices from the controls while the pages are built, or torn down, reach no model.
    if (panel == nullptr || panel->model_ == nullptr || panel->frame_ == nullptr) return FALSE;
    const auto found = std::find(panel->pages_.begin(), panel->pages_.end(), page);
    if (found == panel->pages_.end()) return FALSE;
    const int index = static_cast<int>(found - panel->pages_.begin());
    switch (message) {
    case WM_COMMAND:
        if (lParam != 0) panel->OnPageCommand(index, LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_DRAWITEM: {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        const auto button = item.CtlID == IDC_PANEL_FILL_COLOUR ? PanelModel::kFillButton
                                                                : PanelModel::kStrokeButton;
        DrawColourButton(item, panel->model_->Colour(button));
        return TRUE;
    }
    case WM_CLOSE:
        ::ShowWindow(page, SW_HIDE);
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace rhomba
