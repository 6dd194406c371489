#pragma once

#include "support/Reporters.h"
#include "ui/ShellHost.h"
#include "ui/dialogs/DialogFields.h"
#include "ui/dialogs/DialogModel.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace rhomba::test {

// The shell as a script: file dialogs answer from fields, the clipboard is a string, dialogs run
// on in-memory fields that a test may fill before OK, and every call worth checking is counted.
struct FakeShellHost : Recording<ShellHost> {
    std::optional<std::string> fileToOpen;
    std::optional<std::string> fileToSave;
    std::vector<SaveDialogSpec> saveDialogs;
    std::optional<ClipboardText> clipboard;
    // Types into a model dialog's fields before its OK; no value cancels the dialog.
    std::optional<std::function<void(FieldTable&)>> dialogInput;
    std::vector<int> dialogs; // template ids, in the order they ran
    std::vector<std::string> platformCalls;
    std::map<int, bool> checks;
    int redraws = 0;
    bool panelShown = false;
    std::string title;

    std::optional<std::string> ChooseFileToOpen() override { return fileToOpen; }
    std::optional<std::string> ChooseFileToSave(const SaveDialogSpec& request) override {
        saveDialogs.push_back(request);
        return fileToSave;
    }
    bool ClipboardHasText() override { return clipboard.has_value(); }
    std::optional<ClipboardText> ReadClipboard() override { return clipboard; }
    void WriteClipboard(const std::string& text) override { clipboard = ClipboardText{text, false}; }
    bool RunModelDialog(int templateId, const DialogModelFactory& factory, Document& document) override {
        dialogs.push_back(templateId);
        FieldTable fields;
        auto model = factory(fields);
        fields.onNotify = [&model](int id, int code) { model->OnCommand(id, code); };
        model->Open();
        if (!dialogInput) return false;
        (*dialogInput)(fields);
        return model->Ok(document);
    }
    void ExportMetafile() override { platformCalls.push_back("emf"); }
    void RunPrintDialog() override { platformCalls.push_back("print"); }
    void RunSettingsDialog() override { platformCalls.push_back("settings"); }
    void RunAboutDialog() override { platformCalls.push_back("about"); }
    bool IsMenuChecked(int id) override { return checks[id]; }
    void SetMenuChecked(int id, bool on) override { checks[id] = on; }
    void ShowPanel(bool shown) override { panelShown = shown; }
    void Redraw() override { ++redraws; }
    void UpdateTitle(const std::string& name) override { title = name; }
    void Quit() override { platformCalls.push_back("quit"); }
};

} // namespace rhomba::test
