#include "win32/dialogs/ModelDialog.h"

#include "ui/dialogs/DialogModel.h"
#include "ui/dialogs/IsoSpaceDialogs.h"
#include "ui/dialogs/PlanePreview.h"
#include "win32/GdiDevice.h"
#include "win32/shell/Shell.h" // Wide, Narrow

#include <algorithm>
#include <memory>

namespace rhomba {

std::string WindowFields::GetText(int id) const {
    HWND control = ::GetDlgItem(dialog, id);
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(control)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        ::GetWindowTextW(control, text.data(), static_cast<int>(text.size()))));
    return Narrow(text);
}

void WindowFields::SetText(int id, std::string_view text) {
    ::SetDlgItemTextW(dialog, id, Wide(std::string(text)).c_str());
}

bool WindowFields::IsChecked(int id) const {
    return ::IsDlgButtonChecked(dialog, id) == BST_CHECKED;
}

void WindowFields::SetChecked(int id, bool on) {
    ::CheckDlgButton(dialog, id, on ? BST_CHECKED : BST_UNCHECKED);
}

bool WindowFields::IsEnabled(int id) const {
    return ::IsWindowEnabled(::GetDlgItem(dialog, id)) != FALSE;
}

void WindowFields::Enable(int id, bool on) {
    ::EnableWindow(::GetDlgItem(dialog, id), on ? TRUE : FALSE);
}

// Owner-drawn controls paint their whole field, so the background is not erased first.
void WindowFields::Invalidate(int id) {
    ::InvalidateRect(::GetDlgItem(dialog, id), nullptr, FALSE);
}

namespace {

struct ModelDialogState {
    const DialogModelFactory& factory;
    Document& document;
    WindowFields fields;
    std::unique_ptr<DialogModel> model;
    std::unique_ptr<PlanePreview> preview; // made at its first paint
};

// The plane dialog's "3D-Iso-Ansicht": the selection as the controls would turn it, painted off
// screen and copied in one step. False for any other owner-drawn control.
bool PaintPreview(ModelDialogState& state, const DRAWITEMSTRUCT& item) {
    const auto* plane = dynamic_cast<const PlaneDialogModel*>(state.model.get());
    if (plane == nullptr || item.CtlID != PlaneDialogModel::kPreview) return false;
    if (state.preview == nullptr) state.preview = std::make_unique<PlanePreview>(state.document);
    const int width = item.rcItem.right - item.rcItem.left;
    const int height = item.rcItem.bottom - item.rcItem.top;
    OffscreenCanvas canvas(item.hDC, width, height);
    // The labels are written in the dialog's own font, so they grow with the screen's DPI.
    const LRESULT font = ::SendMessageW(::GetParent(item.hwndItem), WM_GETFONT, 0, 0);
    const HGDIOBJ oldFont = ::SelectObject(canvas.Dc(), reinterpret_cast<HGDIOBJ>(font));
    TEXTMETRICW metrics{};
    if (::GetTextMetricsW(canvas.Dc(), &metrics)) state.preview->labelPixels = metrics.tmHeight;
    GdiDevice device(canvas.Dc());
    state.preview->Paint(device, width, height, plane->ReadControls());
    ::SelectObject(canvas.Dc(), oldFont);
    canvas.Present();
    return true;
}

// Each of these dialogs opens centred over its owner, kept on the owner's screen.
void CentreOverOwner(HWND dialog) {
    HWND owner = ::GetWindow(dialog, GW_OWNER);
    if (owner == nullptr) return;
    RECT around{}, own{};
    ::GetWindowRect(owner, &around);
    ::GetWindowRect(dialog, &own);
    const int width = own.right - own.left;
    const int height = own.bottom - own.top;
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    ::GetMonitorInfoW(::MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST), &screen);
    const RECT& work = screen.rcWork;
    // The left or top edge wins where the dialog is larger than the work area.
    auto place = [](LONG low, LONG high, LONG centred) {
        return std::max(low, std::min(high, centred));
    };
    const int x = place(work.left, work.right - width, (around.left + around.right - width) / 2);
    const int y = place(work.top, work.bottom - height, (around.top + around.bottom - height) / 2);
    ::SetWindowPos(dialog, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

INT_PTR CALLBACK ModelDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        auto* state = reinterpret_cast<ModelDialogState*>(lParam);
        ::SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        state->fields.dialog = dialog;
        CentreOverOwner(dialog);
        state->model = state->factory(state->fields);
        state->model->Open();
        return TRUE;
    }
    auto* state = reinterpret_cast<ModelDialogState*>(::GetWindowLongPtrW(dialog, DWLP_USER));
    // Notifications sent while the dialog is being built, before the model exists, are not typing.
    if (state == nullptr || state->model == nullptr) return FALSE;
    if (message == WM_DRAWITEM) {
        return PaintPreview(*state, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
    }
    if (message != WM_COMMAND) return FALSE;
    const int id = LOWORD(wParam);
    if (id == IDOK) {
        if (state->model->Ok(state->document)) ::EndDialog(dialog, IDOK);
    } else if (id == IDCANCEL) {
        ::EndDialog(dialog, IDCANCEL);
    } else {
        state->model->OnCommand(id, HIWORD(wParam));
    }
    return TRUE;
}

} // namespace

bool RunModelDialog(HWND owner, int templateId, const DialogModelFactory& factory,
                    Document& document) {
    ModelDialogState state{factory, document, {}, nullptr, nullptr};
    const INT_PTR result =
        ::DialogBoxParamW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId), owner,
                          ModelDialogProc, reinterpret_cast<LPARAM>(&state));
    return result == IDOK;
}

} // namespace rhomba
