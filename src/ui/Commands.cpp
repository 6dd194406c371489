#include "ui/Commands.h"

#include "export/ExportFileName.h"
#include "export/SvgWriter.h"
#include "format/Clipboard.h"
#include "format/NativeReader.h"
#include "text/TextToPath.h"
#include "ui/DocumentCommands.h"
#include "ui/CanvasMenus.h"
#include "ui/Editor.h"
#include "ui/ShellHost.h"
#include "ui/dialogs/AffineDialogs.h"
#include "ui/dialogs/GeneratorDialogs.h"
#include "ui/dialogs/IsoSpaceDialogs.h"
#include "ui/resource.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace rhomba {

namespace {

constexpr char kSvgFilter[] = "SVG-Grafik\0*.svg\0Alle Dateien\0*.*\0";

void SaveAs(Editor& editor);

void Save(Editor& editor) {
    Document& document = editor.document;
    if (document.GetFileName().empty()) return SaveAs(editor);
    SaveNativeFile(document, document.GetFileName(), editor.host);
}

void SaveAs(Editor& editor) {
    Document& document = editor.document;
    const std::string filter(kDrawingFileFilter, sizeof kDrawingFileFilter - 1);
    const auto path = editor.host.ChooseFileToSave({document.GetFileName(), filter});
    if (!path) return;
    const std::string target = CompleteExportFileName(*path, "rhomba");
    SaveNativeFile(document, target, editor.host);
}

void Open(Editor& editor) {
    if (const auto path = editor.host.ChooseFileToOpen()) {
        LoadNativeFile(editor.document, *path, editor.host);
    }
}

void ExportSvg(Editor& editor) {
    const std::string filter(kSvgFilter, sizeof kSvgFilter - 1);
    const std::string proposal = ProposeExportFileName(editor.document.GetFileName(), "svg");
    if (const auto path = editor.host.ChooseFileToSave({proposal, filter})) {
        ExportSvgFile(editor.document, CompleteExportFileName(*path, "svg"), editor.host);
    }
}

// The format of these files is not documented anywhere we can reach.
void Quenda(Editor& editor) {
    editor.host.Inform("Das Quenda-Grafikformat wird von dieser Version nicht unterst\xFCtzt.");
}

void Copy(Editor& editor) {
    const std::string text = CopySelectionText(editor.document);
    if (!text.empty()) editor.host.WriteClipboard(text);
}

void Paste(Editor& editor) {
    if (const auto text = editor.host.ReadClipboard()) {
        PasteText(editor.document, *text, editor.host);
    }
}

template <typename Model>
void Dialog(Editor& editor, int templateId) {
    editor.host.RunModelDialog(
        templateId,
        [&editor](DialogFields& fields) { return std::make_unique<Model>(editor.memory, fields); },
        editor.document);
}

// The transformation dialogs open only on a selection.
template <typename Model>
void SelectionDialog(Editor& editor, int templateId) {
    if (RequireSelection(editor.document, editor.host)) Dialog<Model>(editor, templateId);
}

// With the node tool the selected nodes, otherwise the selected objects.
void Delete(Editor& editor) {
    if (ToolController* tools = editor.Tools()) return tools->DeleteSelection();
    RunDocumentCommand(editor.document, IDM_DELETE);
}

void TextToPath(Editor& editor) {
    if (CanvasHost* canvas = editor.Canvas()) {
        ConvertTextsToPaths(editor.document, *canvas);
        return;
    }
    RunDocumentCommand(editor.document, IDM_TEXT_TO_PATH);
}

void ToggleDraft(Editor& editor) {
    Document& document = editor.document;
    const bool on = !editor.host.IsMenuChecked(IDM_DRAFT);
    const std::uint32_t flags = document.GetFlags();
    document.SetFlags(on ? flags | Document::kFlagDraft : flags & ~Document::kFlagDraft);
    editor.host.SetMenuChecked(IDM_DRAFT, on);
}

void ToggleProperties(Editor& editor) {
    const bool on = !editor.host.IsMenuChecked(IDM_PROPERTIES);
    editor.host.ShowPanel(on);
    editor.host.SetMenuChecked(IDM_PROPERTIES, on);
}

struct Command {
    int id;
    bool redraw;
    // Null: a command of the drawing alone, run by RunDocumentCommand.
    void (*run)(Editor&);
    CommandEnabling enabling = CommandEnabling::Always;
};

constexpr auto kSelection = CommandEnabling::Selection;

constexpr Command kCommands[] = {
    {IDM_NEW, true, nullptr},
    {IDM_OPEN, true, Open},
    {IDM_IMPORT_QUENDA, true, Quenda},
    {IDM_SAVE, true, Save},
    {IDM_SAVE_AS, true, SaveAs},
    {IDM_EXPORT_QUENDA, false, Quenda},
    {IDM_EXPORT_SVG, false, ExportSvg},
    {IDM_EXPORT_EMF, false, [](Editor& e) { e.host.ExportMetafile(); }},
    {IDM_PRINT, false, [](Editor& e) { e.host.RunPrintDialog(); }},
    {IDM_SETTINGS, true, [](Editor& e) { e.host.RunSettingsDialog(); }},
    {IDM_EXIT, false, [](Editor& e) { e.host.Quit(); }},
    // No undo exists: the entries stay grayed and their ids, should they arrive, do nothing.
    {IDM_UNDO, false, [](Editor&) {}},
    {IDM_REDO, false, [](Editor&) {}},
    {IDM_COPY, false, Copy, kSelection},
    {IDM_PASTE, true, Paste, CommandEnabling::ClipboardText},
    {IDM_CUT, true,
     [](Editor& e) {
         Copy(e);
         e.document.DeleteSelection();
     },
     kSelection},
    {IDM_DELETE, true, Delete, kSelection},
    {IDM_ISO_LEFT, true, nullptr},
    {IDM_ISO_RIGHT, true, nullptr},
    {IDM_ISO_TOP1, true, nullptr},
    {IDM_ISO_TOP2, true, nullptr},
    {IDM_ISO_BACK_LEFT, true, nullptr},
    {IDM_ISO_BACK_RIGHT, true, nullptr},
    {IDM_ISO_BACK_TOP1, true, nullptr},
    {IDM_ISO_BACK_TOP2, true, nullptr},
    {IDM_CYLINDER, true, [](Editor& e) { SelectionDialog<CylinderDialogModel>(e, IDD_CYLINDER); }},
    {IDM_PLANE, true, [](Editor& e) { SelectionDialog<PlaneDialogModel>(e, IDD_PLANE); }},
    {IDM_ROTATE, true, [](Editor& e) { SelectionDialog<RotateDialogModel>(e, IDD_ROTATE); },
     kSelection},
    {IDM_STRETCH, true, [](Editor& e) { SelectionDialog<StretchDialogModel>(e, IDD_STRETCH); },
     kSelection},
    {IDM_SHEAR, true, [](Editor& e) { SelectionDialog<ShearDialogModel>(e, IDD_SHEAR); },
     kSelection},
    {IDM_MOVE, true, [](Editor& e) { SelectionDialog<MoveDialogModel>(e, IDD_MOVE); }, kSelection},
    {IDM_BACK_ONE, true, nullptr},
    {IDM_BACK_ALL, true, nullptr},
    {IDM_FORWARD_ONE, true, nullptr},
    {IDM_FORWARD_ALL, true, nullptr},
    {IDM_POLYGON, true, [](Editor& e) { Dialog<PolygonDialogModel>(e, IDD_POLYGON); }},
    {IDM_CIRCLE, true, [](Editor& e) { Dialog<CircleDialogModel>(e, IDD_CIRCLE); }},
    {IDM_SINE, true, [](Editor& e) { Dialog<SineDialogModel>(e, IDD_SINE); }},
    {IDM_SPIRAL, true, [](Editor& e) { Dialog<SpiralDialogModel>(e, IDD_SPIRAL); }},
    {IDM_PROPERTIES, false, ToggleProperties},
    {IDM_DRAFT, true, ToggleDraft},
    {IDM_ABOUT, false, [](Editor& e) { e.host.RunAboutDialog(); }},
    {IDM_TEXT_TO_PATH, true, TextToPath},
};

const Command* Find(int id) {
    const auto found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                    [id](const Command& command) { return command.id == id; });
    return found == std::end(kCommands) ? nullptr : found;
}

} // namespace

bool RunCommand(Editor& editor, int id) {
    const Command* command = Find(id);
    if (command == nullptr) return false;
    if (command->run != nullptr) {
        command->run(editor);
    } else {
        RunDocumentCommand(editor.document, id);
    }
    if (command->redraw) editor.host.Redraw();
    return true;
}

bool CommandRedraws(int id) {
    const Command* command = Find(id);
    return command != nullptr && command->redraw;
}

CommandEnabling EnablingOf(int id) {
    const Command* command = Find(id);
    return command != nullptr ? command->enabling : CommandEnabling::Always;
}

bool IsEnabledNow(Editor& editor, CommandEnabling enabling) {
    switch (enabling) {
    case CommandEnabling::Selection: return !editor.document.Selection().empty();
    case CommandEnabling::ClipboardText: return editor.host.ClipboardHasText();
    case CommandEnabling::Always: break;
    }
    return true;
}

} // namespace rhomba
