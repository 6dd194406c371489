#pragma once

#include "model/Document.h"
#include "render/CanvasView.h"
#include "ui/dialogs/DialogModel.h"

namespace rhomba {

class ShellHost;

// Everything one run of the editor works on: the drawing, the canvas view on it, the values the
// dialogs remember and the shell around them. The platform creates one and hands every command,
// paint and mouse event to it.
class Editor {
public:
    explicit Editor(ShellHost& host);
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    ShellHost& host;
    Document document;
    CanvasView view{document};
    DialogMemory memory;
    // The tool whose selection feedback the canvas paints.
    int tool = kToolSelect;
};

} // namespace rhomba
