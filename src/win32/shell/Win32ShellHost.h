#pragma once

#include "ui/ShellHost.h"

namespace rhomba {

// The shell services on the main window: message boxes captioned "Rhomba", the common file
// dialogs, the clipboard, the menu's check marks and the shell's own dialogs.
class Win32ShellHost : public ShellHost {
public:
    void Inform(std::string_view message) override;
    bool Ask(std::string_view question) override;

    std::optional<std::string> ChooseFileToOpen() override;
    std::optional<std::string> ChooseFileToSave(const SaveDialogSpec& request) override;

    bool ClipboardHasText() override;
    std::optional<ClipboardText> ReadClipboard() override;
    void WriteClipboard(const std::string& nativeText) override;

    bool RunModelDialog(int templateId, const DialogModelFactory& factory,
                        Document& document) override;
    void ExportMetafile() override;
    void RunPrintDialog() override;
    void RunSettingsDialog() override;
    void RunAboutDialog() override;

    bool IsMenuChecked(int commandId) override;
    void SetMenuChecked(int commandId, bool checked) override;
    void ShowPanel(bool shown) override;

    void Redraw() override;
    void UpdateTitle(const std::string& fileName) override;
    void Quit() override;
};

} // namespace rhomba
