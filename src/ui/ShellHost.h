#pragma once

#include "format/Clipboard.h"
#include "model/Reporter.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace rhomba {

class DialogFields;
class DialogModel;
class Document;

// A save dialog's settings: the proposed name and the filter, as pairs of a description and a
// pattern, each followed by a zero byte.
struct SaveDialogSpec {
    std::string proposal;
    std::string filter;
};

// The file dialogs' filter for drawings.
inline constexpr char kDrawingFileFilter[] =
    "Rhomba-Zeichnungen (*.rhomba)\0*.rhomba\0Alle Dateien (*.*)\0*.*\0";

// Makes the model of a dialog once its fields exist.
using DialogModelFactory = std::function<std::unique_ptr<DialogModel>(DialogFields&)>;

// What the commands need of the platform beyond telling and asking: file dialogs, the clipboard,
// the windows around the canvas and the platform's own dialogs. The Win32 shell implements it on
// the main window; tests use a scripted fake. Texts are Windows-1252 bytes.
class ShellHost : public Reporter {
public:
    // The open dialog for drawings; no value when cancelled.
    virtual std::optional<std::string> ChooseFileToOpen() = 0;
    // A save dialog (overwrite prompt, path must exist); no value when cancelled.
    virtual std::optional<std::string> ChooseFileToSave(const SaveDialogSpec& request) = 0;

    virtual bool ClipboardHasText() = 0;
    // The clipboard's text as the paste decision reads it; no value when it holds none.
    virtual std::optional<ClipboardText> ReadClipboard() = 0;
    // Puts the copied drawing on the clipboard: its native text (and, where the platform has
    // one, a picture of it).
    virtual void WriteClipboard(const std::string& nativeText) = 0;

    // Runs modal dialog templateId on the model that factory makes; its OK applies the model to
    // document. True when it closed with OK.
    virtual bool RunModelDialog(int templateId, const DialogModelFactory& factory,
                                Document& document) = 0;
    // The platform's own commands: EMF export, print dialog, settings, about.
    virtual void ExportMetafile() = 0;
    virtual void RunPrintDialog() = 0;
    virtual void RunSettingsDialog() = 0;
    virtual void RunAboutDialog() = 0;

    // The properties panel: shown or hidden, as the check mark of its menu entry says.
    virtual bool IsMenuChecked(int commandId) = 0;
    virtual void SetMenuChecked(int commandId, bool checked) = 0;
    virtual void ShowPanel(bool shown) = 0;

    virtual void Redraw() = 0;
    virtual void UpdateTitle(const std::string& fileName) = 0;
    // Ends the program (destroys the main window).
    virtual void Quit() = 0;
};

} // namespace rhomba
