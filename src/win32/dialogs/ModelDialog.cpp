#include "win32/dialogs/ModelDialog.h"

#include "ui/dialogs/DialogModel.h"
#include "win32/shell/Shell.h" // Wide, Narrow

#include <memory>

namespace rhomba {

std::string WindowFields::GetText(int id) const {
    HWND control = ::GetDlgItem(dialog, id);
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(control)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextW(control, text.data(), static_cast<int>(text.size()))));
    return Narrow(text);
}

void WindowFields::SetText(int id, std::string_view text) {
    ::SetDlgItemTextW(dialog, id, Wide(std::string(text)).c_str());
}

bool WindowFields::IsChecked(int id) const { return ::IsDlgButtonChecked(dialog, id) == BST_CHECKED; }

void WindowFields::SetChecked(int id, bool on) {
    ::CheckDlgButton(dialog, id, on ? BST_CHECKED : BST_UNCHECKED);
}

bool WindowFields::IsEnabled(int id) const { return ::IsWindowEnabled(::GetDlgItem(dialog, id)) != FALSE; }

void WindowFields::Enable(int id, bool on) { ::EnableWindow(::GetDlgItem(dialog, id), on ? TRUE : FALSE); }

void WindowFields::Invalidate(int id) { ::InvalidateRect(::GetDlgItem(dialog, id), nullptr, TRUE); }

namespace {

struct ModelDialogState {
    const DialogModelFactory& factory;
    Document& document;
    WindowFields fields;
    std::unique_ptr<DialogModel> model;
};

INT_PTR CALLBACK ModelDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        auto* state = reinterpret_cast<ModelDialogState*>(lParam);
        ::SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        state->fields.dialog = dialog;
        state->model = state->factory(state->fields);
        state->model->Open();
        return TRUE;
    }
    auto* state = reinterpret_cast<ModelDialogState*>(::GetWindowLongPtrW(dialog, DWLP_USER));
    // Notifications sent while the dialog is being built, before the model exists, are not typing.
    if (state == nullptr || state->model == nullptr || message != WM_COMMAND) return FALSE;
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
    ModelDialogState state{factory, document, {}, nullptr};
    const INT_PTR result = ::DialogBoxParamW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId), owner,
                                             ModelDialogProc, reinterpret_cast<LPARAM>(&state));
    return result == IDOK;
}

} // namespace rhomba
