#pragma once

#include "model/Document.h"
#include "render/CanvasView.h"
#include "ui/dialogs/DialogModel.h"
#include "ui/tools/ToolController.h"

#include <memory>

namespace rhomba {

class CanvasHost;
class ShellHost;

// Everything one run of the editor works on: the drawing, the canvas view on it, the values the
// dialogs remember and the shell around them. The platform creates one and hands every command,
// paint and mouse event to it.
class Editor {
public:
    explicit Editor(ShellHost& host);
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    // The tools work on the canvas from here on; the platform calls this once its canvas exists.
    void AttachCanvas(CanvasHost& canvas);
    // Null until a canvas is attached.
    ToolController* Tools() { return tools_.get(); }
    CanvasHost* Canvas() { return canvas_; }
    // The current tool (the select tool while there is no canvas).
    int Tool() const { return tools_ ? tools_->Tool() : kToolSelect; }

    ShellHost& host;
    Document document;
    CanvasView view{document};
    DialogMemory memory;

private:
    CanvasHost* canvas_ = nullptr;
    std::unique_ptr<ToolController> tools_;
};

} // namespace rhomba
