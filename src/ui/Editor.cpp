#include "ui/Editor.h"

#include "ui/ShellHost.h"

namespace rhomba {

Editor::Editor(ShellHost& shell) : host(shell) {
    // The editor opens with the isometric guide lines on; the settings dialog switches them.
    view.switches.isometricLines = true;
    document.onTitleChange = [this](const std::string& name) { host.UpdateTitle(name); };
}

void Editor::AttachCanvas(CanvasHost& canvas) {
    canvas_ = &canvas;
    tools_ = std::make_unique<ToolController>(document, view, canvas);
}

} // namespace rhomba
