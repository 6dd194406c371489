#pragma once

#include "ui/ShellHost.h"
#include "ui/dialogs/DialogFields.h"

#include <windows.h>

namespace rhomba {

// A dialog model's fields on a real dialog window. Writing an edit field's text makes the
// dialog report the change to the model, exactly as typing does.
class WindowFields : public DialogFields {
public:
    HWND dialog = nullptr;

    std::string GetText(int id) const override;
    void SetText(int id, std::string_view text) override;
    bool IsChecked(int id) const override;
    void SetChecked(int id, bool on) override;
    bool IsEnabled(int id) const override;
    void Enable(int id, bool on) override;
    void Invalidate(int id) override;
};

// Runs dialog template templateId modally over owner on the model factory makes: the model
// opens the fields, hears every control notification, and its Ok applies it to document and
// decides whether the dialog closes. True when it closed through OK.
bool RunModelDialog(HWND owner, int templateId, const DialogModelFactory& factory,
                    Document& document);

} // namespace rhomba
