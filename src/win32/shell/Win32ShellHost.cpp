#include "win32/shell/Win32ShellHost.h"

#include "ui/Editor.h"
#include "win32/EmfFile.h"
#include "win32/dialogs/ModelDialog.h"
#include "win32/shell/Clipboard.h"
#include "win32/shell/PropertiesPanel.h"
#include "win32/shell/Shell.h"
#include "win32/shell/ShellDialogs.h"

#include <commdlg.h>

#include <cstring>

namespace rhomba {

namespace {

// The common file dialogs keep the program's 8-bit names, as the files' own functions do.
std::optional<std::string> FileDialog(const std::string& proposal, const char* filter, bool save) {
    char file[261] = {};
    std::strncpy(file, proposal.c_str(), sizeof file - 1);
    OPENFILENAMEA dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = TheShell().main;
    dialog.lpstrFilter = filter;
    dialog.nFilterIndex = 1;
    dialog.lpstrFile = file;
    dialog.nMaxFile = sizeof file;
    if (save) {
        dialog.Flags = OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST;
        if (!::GetSaveFileNameA(&dialog)) return std::nullopt;
    } else {
        dialog.Flags = OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;
        if (!::GetOpenFileNameA(&dialog)) return std::nullopt;
    }
    return std::string(file);
}

} // namespace

void Win32ShellHost::Inform(std::string_view message) {
    ShowInfoMessage("%s", std::string(message).c_str());
}

bool Win32ShellHost::Ask(std::string_view question) {
    return ShowMessageBox(MB_YESNO | MB_ICONQUESTION, "%s", std::string(question).c_str()) == IDYES;
}

std::optional<std::string> Win32ShellHost::ChooseFileToOpen() {
    return FileDialog("", kDrawingFileFilter, false);
}

std::optional<std::string> Win32ShellHost::ChooseFileToSave(const SaveDialogSpec& request) {
    return FileDialog(request.proposal, request.filter.c_str(), true);
}

bool Win32ShellHost::ClipboardHasText() { return ::IsClipboardFormatAvailable(CF_TEXT) != FALSE; }

std::optional<ClipboardText> Win32ShellHost::ReadClipboard() {
    return ReadClipboardText(TheShell().main);
}

void Win32ShellHost::WriteClipboard(const std::string& nativeText) {
    WriteClipboardDrawing(TheShell().main, TheShell().copyEdit, nativeText);
}

bool Win32ShellHost::RunModelDialog(int templateId, const DialogModelFactory& factory,
                                    Document& document) {
    return rhomba::RunModelDialog(TheShell().main, templateId, factory, document);
}

void Win32ShellHost::ExportMetafile() {
    ExportEmfCommand(TheShell().main, TheShell().editor->document, *this);
}

void Win32ShellHost::RunPrintDialog() {
    RunPrintDialogBox(TheShell().main, TheShell().editor->document);
}

void Win32ShellHost::RunSettingsDialog() {
    RunSettingsDialogBox(TheShell().main, TheShell().editor->view.switches);
}

void Win32ShellHost::RunAboutDialog() { RunAboutDialogBox(TheShell().main); }

bool Win32ShellHost::IsMenuChecked(int commandId) {
    return (::GetMenuState(::GetMenu(TheShell().main), commandId, MF_BYCOMMAND) & MF_CHECKED) != 0;
}

void Win32ShellHost::SetMenuChecked(int commandId, bool checked) {
    ::CheckMenuItem(::GetMenu(TheShell().main), commandId,
                    MF_BYCOMMAND | (checked ? MF_CHECKED : MF_UNCHECKED));
}

void Win32ShellHost::ShowPanel(bool shown) { ShowPropertiesPanel(shown); }

void Win32ShellHost::Redraw() { rhomba::Redraw(); }

void Win32ShellHost::UpdateTitle(const std::string& fileName) { rhomba::UpdateTitle(fileName); }

void Win32ShellHost::Quit() { ::DestroyWindow(TheShell().main); }

} // namespace rhomba
